// SPDX-License-Identifier: MIT
#include "viewer/frmFullScreen.h"
#include "ui_frmFullScreen.h"

#include "catalogue/UndoWindow.h"
#include "platform/widgets/IdlePointer.h"
#include "platform/widgets/KeyPreview.h"
#include "platform/widgets/SettledResize.h"
#include "viewer/PageHost.h"
#include "viewer/StoryPage.h"
#include "viewer/ViewerKeys.h"

#include <QContextMenuEvent>
#include <QScreen>

frmFullScreen::frmFullScreen(PageHost& viewer)
    : QDialog(viewer.GetWindow()), viewer_(viewer), ui_(std::make_unique<Ui::frmFullScreen>())
{
    ui_->setupUi(this);
    ui_->page->Darken();
    Form_Load();
    viewer_.TakeClicksOf(ui_->page);
    new KeyPreview(this, [this](QKeyEvent& key) { return Form_KeyDown(key); });
    new SettledResize(this, [this] { Form_Resize(); });
    new IdlePointer(this);
    new UndoWindow(this); // the viewer shows the page again
}

frmFullScreen::~frmFullScreen() = default;

StoryPage* frmFullScreen::GetPage() const
{
    return ui_->page;
}

void frmFullScreen::CloseFullScreen()
{
    close();
}

void frmFullScreen::Form_Load()
{
    setWindowFlag(Qt::FramelessWindowHint);
    setWindowTitle(viewer_.GetWindow()->windowTitle());
    // The position tells the desktop which screen to fill.
    setGeometry(viewer_.GetWindow()->screen()->geometry());
    setWindowState(windowState() | Qt::WindowFullScreen);
}

void frmFullScreen::Form_Resize()
{
    viewer_.DisplayAgain();
}

void frmFullScreen::contextMenuEvent(QContextMenuEvent* event)
{
    viewer_.ShowMenu(event->globalPos());
}

bool frmFullScreen::Form_KeyDown(const QKeyEvent& key)
{
    switch (CommandOf(key)) {
    case ViewerCommand::Leave:
        return false;
    case ViewerCommand::Close:
    case ViewerCommand::FullScreen:
        CloseFullScreen();
        return true;
    default:
        viewer_.Form_KeyDown(key);
        return true;
    }
}
