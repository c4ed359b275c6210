// SPDX-License-Identifier: MIT
#pragma once

#include "story/ParagraphChain.h"

#include <QDialog>

#include <functional>
#include <memory>
#include <vector>

class QMenu;
class RowDrag;

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

private:
    void ConnectControls();
    void ConnectEntries();
    void MakeMenu();
    void RefreshParagraphList();
    void RefreshButtons();
    void ShowPreviousChapter();
    void ShowNextChapter();
    void ShowChapter(qint32 chapter);
    void ShowAfterUndo();

    void lstParagraph_Click();
    void lstParagraph_DblClick();
    void cmdUp_Click();
    void cmdDown_Click();
    void Select(int row);
    void Move(const std::function<bool(ParagraphPlace& place)>& moveParagraph);
    void cmdMoveUp_Click();
    void cmdMoveDown_Click();
    void MoveRow(int from, int to);
    void cmdExit_Click();
    void mnuKeys_Click();

    std::unique_ptr<Ui::frmOrganizeParagraphs> ui_;
    QMenu* menu_; // of the list
    RowDrag* drag_;
    std::vector<qint32> paragraphs_; // one for each line
};
