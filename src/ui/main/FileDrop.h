// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QList>
#include <QUrl>

#include <functional>

class WorkProgress;
struct DroppedFiles;

// What the main window does with files that are dropped on it: an album is opened, pictures are
// loaded into the open one. A message reports the result.
class FileDrop
{
    Q_DECLARE_TR_FUNCTIONS(FileDrop)

public:
    // The bar must outlive it. onLoaded runs after loading, before the message, also when loading
    // breaks off.
    FileDrop(WorkProgress* progress, std::function<void(const QString& path)> openAlbum,
             std::function<void()> onLoaded);

    void Take(const QList<QUrl>& urls) const;

private:
    // Why nothing can be done with them; empty when something can.
    static QString ReasonAgainst(const DroppedFiles& files);
    // Returns how many of them were worked through before the user stopped.
    int Load(const DroppedFiles& files) const;
    void LoadAndTell(const DroppedFiles& files) const;

    WorkProgress* progress_;
    std::function<void(const QString& path)> openAlbum_;
    std::function<void()> onLoaded_;
};
