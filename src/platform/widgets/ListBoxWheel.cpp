// SPDX-License-Identifier: MIT
#include "platform/widgets/ListBoxWheel.h"

#include <QApplication>
#include <QComboBox>
#include <QPointer>

namespace {

class ListBoxWheel : public QObject
{
public:
    using QObject::QObject;

    // An open list is a separate window, not a QComboBox.
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::Wheel || !qobject_cast<QComboBox*>(watched))
            return false;
        event->ignore(); // the application offers it to the parent next
        return true;
    }
};

} // namespace

void KeepWheelFromListBoxes()
{
    static QPointer<ListBoxWheel> filter; // deleted with the application
    if (filter)
        return;
    filter = new ListBoxWheel(qApp);
    qApp->installEventFilter(filter);
}
