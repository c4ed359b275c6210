// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class frmPlaceParagraph;
}

// Asks where in the story a new paragraph shall stand. Accepted only with a chapter.
class frmPlaceParagraph : public QDialog
{
    Q_OBJECT

public:
    explicit frmPlaceParagraph(QWidget* parent = nullptr);
    ~frmPlaceParagraph() override;

    qint32 Chapter = 0;
    qint32 After = 0; // the paragraph before it; 0: none

protected:
    void showEvent(QShowEvent* event) override;

private:
    void Form_Load();
    void cboChapter_Click();
    void cmdMakeParagraph_Click();
    void cmdCancel_Click();

    std::unique_ptr<Ui::frmPlaceParagraph> ui_;
};
