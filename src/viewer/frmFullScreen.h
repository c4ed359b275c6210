// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <memory>

class StoryPage;
class frmReelvane;

namespace Ui {
class frmFullScreen;
}

// A whole screen, the one that the viewer is on, for the viewer to draw on: pictures and text on a
// dark ground and nothing else. Keys and clicks go to the viewer, but for those that lead back.
class frmFullScreen : public QDialog
{
    Q_OBJECT

public:
    // The viewer must draw on GetPage() from before the window is shown until it is closed.
    explicit frmFullScreen(frmReelvane& viewer);
    ~frmFullScreen() override;

    StoryPage* GetPage() const;
    void CloseFullScreen();

private:
    void Form_Load();
    void Form_Resize();
    bool Form_KeyDown(const QKeyEvent& key);

    frmReelvane& viewer_;
    std::unique_ptr<Ui::frmFullScreen> ui_;
};
