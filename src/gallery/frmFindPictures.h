// SPDX-License-Identifier: MIT
#pragma once

#include "gallery/SearchRun.h"
#include "story/PictureQuery.h"

#include <QDialog>
#include <QSet>

#include <functional>
#include <memory>

namespace Ui {
class frmFindPictures;
}

// Finds pictures of the album by words, filter and folder, and shows them as one types. From there
// they are read, described, linked, or become a paragraph. Set the public state before exec().
class frmFindPictures : public QDialog
{
    Q_OBJECT

public:
    explicit frmFindPictures(QWidget* parent = nullptr);
    ~frmFindPictures() override;

    CarValues Values = AnyValues(); // what is looked for at first
    bool IsMissing = false;         // and that
    qint32 CurrentParagraph = 0;    // that pictures can be linked to; 0: none
    // Shows files of the album in the viewer, in front of the window; if not set, there is no Read.
    std::function<void(QWidget* window, const QStringList& files)> ReadPictures;

protected:
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void ConnectControls();
    void Form_Load();
    SearchTerms GetTerms() const;
    void TermsChanged();
    void SearchAgain();
    void ShowFound(const std::vector<qint32>& pictures, bool isComplete);
    void ShowFailure(const QString& reason);
    void RefreshState();
    void GoToSheet();
    QStringList ChosenFiles() const;
    bool AreAllLinked(const QStringList& files) const;

    void cmdFolder_Click();
    void cmdReadPictures_Click();
    void cmdDescribe_Click();
    void cmdDescribeTogether_Click();
    void cmdLink_Click();
    void cmdTakeFromFiles_Click();
    void cmdMakeParagraph_Click();
    void cmdExit_Click();

    std::unique_ptr<Ui::frmFindPictures> ui_;
    SearchRun* run_;
    QSet<QString> linked_;
};
