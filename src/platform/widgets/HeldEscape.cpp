// SPDX-License-Identifier: MIT
#include "platform/widgets/HeldEscape.h"

#include <QApplication>
#include <QKeyEvent>

namespace {

class HeldEscapeFilter : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() != QEvent::KeyPress && event->type() != QEvent::ShortcutOverride)
            return false;
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() != Qt::Key_Escape || !key->isAutoRepeat())
            return false;
        event->accept(); // as an override: not for the shortcuts
        return true;
    }
};

} // namespace

void InstallHeldEscapeFilter()
{
    qApp->installEventFilter(new HeldEscapeFilter(qApp));
}
