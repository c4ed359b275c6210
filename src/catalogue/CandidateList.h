// SPDX-License-Identifier: MIT
#pragma once

#include <QListWidget>
#include <QStringList>

// Files of which one is to be chosen, side by side: each with its picture, folder, size and date.
class CandidateList : public QListWidget
{
    Q_OBJECT

public:
    explicit CandidateList(QWidget* parent = nullptr);

    // chosen: the number of one; -1 for none.
    void Show(const QStringList& files, int chosen);

signals:
    void Chosen(int number);

private:
    bool isFilling_ = false;
};
