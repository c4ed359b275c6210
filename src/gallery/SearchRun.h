// SPDX-License-Identifier: MIT
#pragma once

#include "platform/shell/IdleWork.h"
#include "story/PictureSearch.h"

#include <QObject>

#include <optional>

// Looks for pictures while nothing else is to do. Who changes the terms waits for nothing: what is
// not found yet is given up.
class SearchRun : public QObject
{
    Q_OBJECT

public:
    explicit SearchRun(QObject* parent = nullptr);

    // After a short pause, so that a word can be typed.
    void Begin(const SearchTerms& terms);
    // Without one.
    void BeginAtOnce(const SearchTerms& terms);
    bool IsRunning() const { return work_.IsWorking(); }

signals:
    // So far; when isComplete, all. Comes at the first ones, then at each doubling.
    void Found(const std::vector<qint32>& pictures, bool isComplete);
    // In words for the user.
    void Failed(const QString& reason);

private:
    void Begin(const SearchTerms& terms, std::chrono::milliseconds pause);
    bool Work(const SearchTerms& terms, std::chrono::milliseconds time);

    IdleWork work_;
    std::optional<PictureSearch> search_;
    int told_ = 0;
};
