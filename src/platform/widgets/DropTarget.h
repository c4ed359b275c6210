// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QObject>
#include <QUrl>

// Takes files that are dropped on a window, while no other window is in front, which may hold
// something that is not saved. The window owns it.
class DropTarget : public QObject
{
    Q_OBJECT

public:
    explicit DropTarget(QWidget* window);

signals:
    // Comes when the program from which they come need not wait for message boxes; never when
    // another window has come to the front since.
    void Dropped(const QList<QUrl>& urls);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool IsInFront() const;
    void Take(const QList<QUrl>& urls);
};
