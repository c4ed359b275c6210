// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <memory>

class PageHost;
class StoryPage;

namespace Ui {
class frmFullScreen;
}

// A page that fills the screen which the viewer is on: pictures and text on a dark ground and
// nothing else. Keys and clicks go to the viewer, except for the keys that lead back.
class frmFullScreen : public QDialog
{
    Q_OBJECT

public:
    // The viewer must draw on GetPage() from before the window is shown until it is closed.
    explicit frmFullScreen(PageHost& viewer);
    ~frmFullScreen() override;

    StoryPage* GetPage() const;
    void CloseFullScreen();

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void Form_Load();
    void Form_Resize();
    bool Form_KeyDown(const QKeyEvent& key);

    PageHost& viewer_;
    std::unique_ptr<Ui::frmFullScreen> ui_;
};
