// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QTimer>
#include <QWidget>

// Preloaded into a program that is measured, so that it is the very program that users start: ends
// it once its first window has been painted, children and all.

namespace {

class EndAfterFirstPaint : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject* receiver, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && receiver->isWidgetType() &&
            static_cast<QWidget*>(receiver)->isWindow()) {
            qApp->removeEventFilter(this);
            // The children are painted after their window and within the same event.
            QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        }
        return false;
    }
};

void Watch()
{
    qApp->installEventFilter(new EndAfterFirstPaint(qApp));
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(Watch)
