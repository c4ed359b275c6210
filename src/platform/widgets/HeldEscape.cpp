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
        const bool isRelease = event->type() == QEvent::KeyRelease;
        const bool isPress =
            event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
        if (!isRelease && !isPress)
            return false;
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() != Qt::Key_Escape)
            return false;
        if (isRelease)
            lastRelease_ = key->timestamp();
        if (!isPress || !IsRepetition(*key))
            return false;
        event->accept(); // as an override, so that no shortcut gets it
        return true;
    }

private:
    // When a window has just closed, X11 repeats a key as a release and a press with the same time,
    // which the toolkit does not recognise. Events made by a program have time 0.
    bool IsRepetition(const QKeyEvent& press) const
    {
        return press.isAutoRepeat() || (lastRelease_ != 0 && press.timestamp() == lastRelease_);
    }

    quint64 lastRelease_ = 0; // in the window system's milliseconds
};

} // namespace

void InstallHeldEscapeFilter()
{
    qApp->installEventFilter(new HeldEscapeFilter(qApp));
}
