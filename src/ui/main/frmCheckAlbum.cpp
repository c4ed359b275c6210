// SPDX-License-Identifier: MIT
#include "ui/main/frmCheckAlbum.h"
#include "ui_frmCheckAlbum.h"

#include "catalogue/UndoWindow.h"
#include "core/Album.h"
#include "core/EarlierStates.h"
#include "platform/dialogs/Guard.h"
#include "platform/widgets/FormButtons.h"
#include "platform/widgets/OfferedControl.h"
#include "platform/widgets/WindowSize.h"
#include "ui/main/frmRepairAlbum.h"

#include <QScopeGuard>
#include <QThread>

#include <atomic>

using namespace GeneralModule;

namespace {

constexpr QSize proposedSize(700, 480);
constexpr unsigned long looks = 20; // milliseconds between two of them at the progress

QString StepText(CheckStep step)
{
    switch (step) {
    case CheckStep::Copying:
        return frmCheckAlbum::tr(
            "The album is being copied, so that nobody waits for the check...");
    case CheckStep::File:
        return frmCheckAlbum::tr("The album's file is being checked...");
    case CheckStep::Links:
        return frmCheckAlbum::tr("Chapters, paragraphs and links are being checked...");
    case CheckStep::Values:
        return frmCheckAlbum::tr("What pictures are described by is being checked...");
    case CheckStep::Files:
        return frmCheckAlbum::tr("The pictures' files are being looked for...");
    }
    return {};
}

} // namespace

frmCheckAlbum::frmCheckAlbum(QWidget* parent)
    : QDialog(parent), ui_(std::make_unique<Ui::frmCheckAlbum>())
{
    using Form = frmCheckAlbum;
    ui_->setupUi(this);
    KeepWindowSize(this, proposedSize);
    ConnectButtons<Form>(this, {{ui_->cmdCheck, "preview", &Form::cmdCheck_Click},
                                {ui_->cmdRepair, "repair", &Form::cmdRepair_Click},
                                {ui_->cmdStates, "as-before", &Form::cmdStates_Click},
                                {ui_->cmdExit, "exit", &Form::cmdExit_Click}});
    new UndoWindow(this);
    ui_->cmdRepair->setEnabled(false);
    ui_->cmdStates->setEnabled(!EarlierStatesOf(OpenAlbumPath()).empty());
}

frmCheckAlbum::~frmCheckAlbum() = default;

bool frmCheckAlbum::ShowProgress(CheckStep step, int percent)
{
    const bool goesOn = ui_->progress->Advance(percent);
    if (ui_->progress->HasShown())
        ui_->lblStep->setText(StepText(step));
    return goesOn;
}

// The copy is read in a thread of its own, which ends before this returns.
CheckReport frmCheckAlbum::Check()
{
    const auto end = qScopeGuard([this] { ui_->progress->End(); });
    ui_->progress->Begin(100, true);
    AlbumCheck check([this](CheckStep step, int percent) { return ShowProgress(step, percent); });
    std::atomic<CheckStep> step = CheckStep::Copying;
    std::atomic<int> percent = 0;
    std::atomic<bool> isStopped = false;
    CheckReport report;
    const std::unique_ptr<QThread> thread(QThread::create([&] {
        report = check.Run([&](CheckStep now, int done) {
            step = now;
            percent = done;
            return !isStopped;
        });
    }));
    thread->start();
    while (!thread->wait(looks)) {
        if (!ShowProgress(step, percent))
            isStopped = true;
    }
    return report;
}

void frmCheckAlbum::cmdCheck_Click()
{
    ui_->txtReport->clear();
    ui_->cmdRepair->setEnabled(false);
    const CheckReport report = Check();
    ui_->txtReport->setPlainText(DescribeCheck(report));
    ui_->lblStep->setText(report.isStopped   ? tr("The check was stopped before its end.")
                          : report.IsEmpty() ? tr("Nothing is wrong.")
                                             : tr("%n finding(s); each tells what mends it.",
                                                  nullptr, int(report.findings.size())));
    OfferUnless(*ui_->cmdRepair, report.Has(CheckReport::Kind::Links) && report.IsWhole(),
                IsAlbumReadOnly() ? ReadOnlyReason() : QString());
}

void frmCheckAlbum::cmdRepair_Click()
{
    frmRepairAlbum(this).exec();
    cmdCheck_Click();
}

void frmCheckAlbum::cmdStates_Click()
{
    WantsEarlierStates = true;
    accept();
}

void frmCheckAlbum::cmdExit_Click()
{
    reject();
}
