// SPDX-License-Identifier: MIT
#pragma once

#include "catalogue/PictureRecord.h"

#include <QDialog>
#include <QStringList>

#include <array>
#include <functional>
#include <memory>

class QKeyEvent;
class QLabel;
class ValueBoxes;

namespace Ui {
class frmEditImage;
}

// Describes one picture of the album, and then the next ones of the selection that it belongs to.
// Whoever opens it sets the public state and then calls exec(). However it is left, what was typed
// is saved.
class frmEditImage : public QDialog
{
    Q_OBJECT

public:
    explicit frmEditImage(QWidget* parent = nullptr);
    ~frmEditImage() override;

    // File of the picture on show; empty afterwards when it was taken out of the album.
    QString CurrentImage;
    // Taking the picture out closes the window; else the next one follows.
    bool IsSinglePicture = false;
    // File of the next picture of the selection, empty when there is none left.
    std::function<QString()> NextPicture;
    // Whether the selection holds further pictures; without it there is no Next Picture.
    std::function<bool()> HasNextPicture;
    // Files that were taken out of the album here.
    QStringList TakenOut;

    void reject() override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    void Form_Load();
    bool Form_KeyDown(const QKeyEvent& key);
    void cmdNextImage_Click();
    void cmdDelete_Click();
    void cmdEditTables_Click();
    void cmdEditLabels_Click();
    void cmdExit_Click();

    void ConnectControls();
    void ShowOnly();
    void DisplayCaracteristicNames();
    void DisplayLabels();
    void ShowPicture(const QString& file);
    void ShowStored(const PictureRecord& record);
    void ShowRecord(const PictureRecord& record);
    PictureRecord ControlValues() const;
    PictureRecord GetRecord() const;
    bool SettleConflict();
    // False when another window has changed the same and the user wants to stay; nothing is saved.
    bool SavePicture();
    void GoToNextPicture();
    bool SaveBeforeLeaving();
    QLabel* LabelOf(const QString& name) const;

    std::unique_ptr<Ui::frmEditImage> ui_;
    ValueBoxes* boxes_;
    PictureRecord controls_; // shown_ as the controls give it back
    PictureRecord shown_;    // as the album holds it
    bool isKnown_ = false;   // the album holds the picture
    bool isLoaded_ = false;
};
