// SPDX-License-Identifier: MIT
#include "platform/widgets/WorkProgress.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QProgressBar>
#include <QPushButton>

namespace {

constexpr int showInterval = 40; // milliseconds between two updates of the screen

bool IsUserAction(QEvent::Type type)
{
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::Shortcut:
    case QEvent::Close:
    case QEvent::DragEnter:
    case QEvent::Drop:
        return true;
    default:
        return false;
    }
}

} // namespace

WorkProgress::WorkProgress(QWidget* parent)
    : QWidget(parent), bar_(new QProgressBar), cmdStop_(new QPushButton(tr("Stop")))
{
    bar_->setObjectName(QStringLiteral("barProgress"));
    bar_->setAccessibleName(tr("Progress"));
    cmdStop_->setObjectName(QStringLiteral("cmdStop"));
    cmdStop_->setAutoDefault(false);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(bar_, 1);
    layout->addWidget(cmdStop_);
    connect(cmdStop_, &QPushButton::clicked, this, &WorkProgress::Stop);
    hide();
}

void WorkProgress::Begin(int total, bool canStop)
{
    isWorking_ = true;
    isStopped_ = false;
    bar_->setRange(0, total);
    bar_->setValue(0);
    cmdStop_->setVisible(canStop);
    show();
    qApp->installEventFilter(this);
    sinceShown_.invalidate();
    Advance(0);
}

bool WorkProgress::Advance(int done)
{
    hasShown_ = !sinceShown_.isValid() || sinceShown_.elapsed() >= showInterval;
    if (hasShown_) {
        bar_->setValue(bar_->maximum() > 0 ? done : 0);
        QCoreApplication::processEvents();
        sinceShown_.start();
    }
    return !isStopped_;
}

void WorkProgress::End()
{
    qApp->removeEventFilter(this);
    isWorking_ = false;
    hide();
}

void WorkProgress::Stop()
{
    isStopped_ = isWorking_;
}

bool WorkProgress::eventFilter(QObject* watched, QEvent* event)
{
    if (!IsUserAction(event->type()) || watched == cmdStop_ || !watched->isWidgetType())
        return false;
    const bool isEscape = event->type() == QEvent::KeyPress &&
                          static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape;
    if ((isEscape || event->type() == QEvent::Close) && cmdStop_->isVisible())
        Stop();
    // An accepted override keeps the key from shortcuts.
    event->setAccepted(event->type() == QEvent::ShortcutOverride);
    return true;
}
