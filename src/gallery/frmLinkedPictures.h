// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QStringList>

#include <memory>

namespace Ui {
class frmLinkedPictures;
}

// The pictures linked to a paragraph, in the order in which it shows them: they are put in another
// order or taken out, and others are linked. Set the paragraph before exec().
class frmLinkedPictures : public QDialog
{
    Q_OBJECT

public:
    explicit frmLinkedPictures(QWidget* parent = nullptr);
    ~frmLinkedPictures() override;

    qint32 CurrentParagraph = 0;

protected:
    void showEvent(QShowEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void ConnectControls();
    void ConnectEntries();
    void Form_Load();
    void RefreshState();
    // Rows in ascending order: the selected pictures, else the current one.
    std::vector<int> ChosenRows() const;
    QStringList ChosenFiles() const;
    void MoveChosen(int before);

    void cmdEarlier_Click();
    void cmdLater_Click();
    void cmdTakeOut_Click();
    void cmdTakeOutLost_Click();
    void cmdFindPictures_Click();
    void cmdExit_Click();
    void mnuKeys_Click();

    std::unique_ptr<Ui::frmLinkedPictures> ui_;
    QStringList files_; // of the sheet's rows
    QStringList lost_;  // linked files that the album does not hold
};
