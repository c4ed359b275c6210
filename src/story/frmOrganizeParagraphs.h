// SPDX-License-Identifier: MIT
#pragma once

#include "story/ParagraphChain.h"

#include <QDialog>

#include <memory>
#include <vector>

class QKeyEvent;

namespace Ui {
class frmOrganizeParagraphs;
}

// The paragraph organiser: lists the paragraphs of a chapter, one line each, and moves them within
// it and into the chapters before and after it.
//
// Set chapter and paragraph before showing it modally; afterwards CurrentParagraph is the chosen
// one. CurrentChapter is the listed one, which need not be the paragraph's own.
class frmOrganizeParagraphs : public QDialog
{
    Q_OBJECT

public:
    explicit frmOrganizeParagraphs(QWidget* parent = nullptr);
    ~frmOrganizeParagraphs() override;

    qint32 CurrentChapter = 0;
    qint32 CurrentParagraph = 0;

protected:
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void ConnectControls();
    bool lstParagraph_KeyDown(QKeyEvent& key);
    void RefreshParagraphList();
    void RefreshButtons();
    void ShowPreviousChapter();
    void ShowNextChapter();
    void ShowChapter(qint32 chapter);

    void lstParagraph_Click();
    void lstParagraph_DblClick();
    void cmdUp_Click();
    void cmdDown_Click();
    void Select(int row);
    void Move(bool (*moveParagraph)(ParagraphPlace& place));
    void cmdMoveUp_Click();
    void cmdMoveDown_Click();
    void cmdExit_Click();

    std::unique_ptr<Ui::frmOrganizeParagraphs> ui_;
    std::vector<qint32> paragraphs_; // one for each line
};
