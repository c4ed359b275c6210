// SPDX-License-Identifier: MIT
#include "ui/main/frmAbout.h"
#include "ui_frmAbout.h"

#include "catalogue/UndoWindow.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/dialogs/Guard.h"
#include "platform/shell/SystemInfo.h"
#include "platform/widgets/ThemedIcon.h"

frmAbout::frmAbout(QWidget* parent) : QDialog(parent), ui_(std::make_unique<Ui::frmAbout>())
{
    ui_->setupUi(this);
    connect(ui_->cmdOK, &QPushButton::clicked, this, &frmAbout::close);
    connect(ui_->cmdSysInfo, &QPushButton::clicked, this,
            Guarded(this, &frmAbout::cmdSysInfo_Click));
    new UndoWindow(this);
    Form_Load();
}

frmAbout::~frmAbout() = default;

void frmAbout::cmdSysInfo_Click()
{
    if (!StartSysInfo())
        Tell(tr("System Information Is Unavailable At This Time"), Dialogs::Icon::Warning);
}

void frmAbout::Form_Load()
{
    const QString title = QApplication::applicationDisplayName();
    setWindowTitle(tr("About %1").arg(title));
    ui_->lblTitle->setText(title);
    QFont font = ui_->lblTitle->font();
    font.setPointSizeF(font.pointSizeF() * 1.8);
    ui_->lblTitle->setFont(font);
    ui_->lblVersion->setText(tr("Version %1").arg(QApplication::applicationVersion()));
    ui_->picIcon->setPixmap(ProgramIcon().pixmap(QSize(96, 96), devicePixelRatioF()));
    setFixedSize(sizeHint());
}
