// SPDX-License-Identifier: MIT
#include "platform/widgets/LongWorkDialog.h"

#include <QEventLoop>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QThread>
#include <QVBoxLayout>

#include <exception>
#include <memory>

namespace {

constexpr unsigned long hiddenTime = 300; // milliseconds of work that need no dialog
constexpr int dialogWidth = 420;

} // namespace

LongWorkDialog::LongWorkDialog(const QString& text, bool canStop, QWidget* parent)
    : QDialog(parent), cmdStop_(new QPushButton(tr("Stop")))
{
    setObjectName(QStringLiteral("frmLongWork"));
    setWindowTitle(QApplication::applicationDisplayName());
    setModal(true);
    auto* label = new QLabel(text);
    label->setObjectName(QStringLiteral("lblWork"));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    auto* bar = new QProgressBar;
    bar->setRange(0, 0);
    bar->setAccessibleName(text);
    cmdStop_->setObjectName(QStringLiteral("cmdStop"));
    cmdStop_->setVisible(canStop);
    connect(cmdStop_, &QPushButton::clicked, this, &LongWorkDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 18, 20, 18);
    layout->setSpacing(14);
    layout->addWidget(label);
    layout->addWidget(bar);
    layout->addWidget(cmdStop_, 0, Qt::AlignRight);
    setMinimumWidth(dialogWidth);
}

void LongWorkDialog::Run(const Dialogs::Work& work)
{
    std::exception_ptr failure;
    const std::unique_ptr<QThread> thread(QThread::create([&] {
        try {
            work([this] { return isStopped_.load(); });
        } catch (...) {
            failure = std::current_exception();
        }
    }));
    QEventLoop untilDone;
    connect(thread.get(), &QThread::finished, &untilDone, &QEventLoop::quit);
    thread->start();
    if (!thread->wait(hiddenTime)) {
        show();
        untilDone.exec();
        thread->wait();
        hide();
    }
    if (failure)
        std::rethrow_exception(failure);
}

void LongWorkDialog::reject()
{
    if (cmdStop_->isHidden())
        return;
    isStopped_ = true;
    cmdStop_->setEnabled(false);
}
