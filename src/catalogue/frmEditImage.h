// SPDX-License-Identifier: MIT
#pragma once

#include "catalogue/Picture.h"
#include "catalogue/VisitedPictures.h"

#include <QDialog>
#include <QStringList>

#include <array>
#include <functional>
#include <memory>

class QKeyEvent;
class ValueBoxes;

namespace Ui {
class frmEditImage;
}

// Describes one picture of the album, then the next ones of its selection. Set the public state
// before calling exec(). What was typed is saved however the window is left.
class frmEditImage : public QDialog
{
    Q_OBJECT

public:
    explicit frmEditImage(QWidget* parent = nullptr);
    ~frmEditImage() override;

    // File of the picture shown; empty afterwards if it was removed from the album.
    QString CurrentImage;
    // Removing the picture closes the window, instead of showing the next one.
    bool IsSinglePicture = false;
    // File of the next picture of the selection, empty when none is left.
    std::function<QString()> NextPicture;
    // Path of that picture, which stays the next one; empty when none is left. May be left unset.
    std::function<QString()> ForeseeNextPicture;
    // How many of the selection are still to come; if not set, none.
    std::function<int()> CountUpcoming;
    // Files that were removed from the album here.
    QStringList TakenOut;

    void reject() override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    void Form_Load();
    bool Form_KeyDown(const QKeyEvent& key);
    void cmdNextImage_Click();
    void cmdPreviousImage_Click();
    void cmdAsBefore_Click();
    void cmdDelete_Click();
    void cmdEditTables_Click();
    void cmdEditLabels_Click();
    void cmdExit_Click();

    void ConnectControls();
    void ShowOnly();
    void DisplayCaracteristicNames();
    void ShowPicture(const QString& file);
    void ShowPlace();
    void BeginDescribing();
    bool HasNext() const;
    bool TakeFieldAsBefore();
    void ShowStored(const Picture& record);
    void ShowRecord(const Picture& record);
    Picture ControlValues() const;
    Picture GetRecord() const;
    bool SettleConflict();
    // False, with nothing saved, when another window has changed the same and the user wants to
    // stay.
    bool SavePicture();
    void GoToNextPicture();
    bool SaveBeforeLeaving();
    bool SaveForUndo();
    void ShowAfterUndo();

    std::unique_ptr<Ui::frmEditImage> ui_;
    ValueBoxes* boxes_;
    VisitedPictures visited_;
    Picture controls_;     // shown_ as the controls return it
    Picture shown_;        // as the album holds it
    bool isKnown_ = false; // the album holds the picture
    bool isLoaded_ = false;
};
