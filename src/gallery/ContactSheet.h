// SPDX-License-Identifier: MIT
#pragma once

#include "gallery/EvenGrid.h"
#include "gallery/SheetModel.h"
#include "gallery/ThumbnailStore.h"
#include "gallery/TypedText.h"

#include <QTimer>

#include <optional>

class LargeViewing;
class SheetDelegate;
class SheetDrag;

// Pictures of the open album as thumbnails, any number of them: only those that are seen are read
// and decoded. Everything can be done by keys: the arrows with Shift and Ctrl, Ctrl+A, Ctrl + and -
// for the size, letters to find a legend or a name, Enter for the picture over the whole window.
class ContactSheet : public EvenGrid
{
    Q_OBJECT

public:
    using Captions = SheetModel::Captions;

    explicit ContactSheet(QWidget* parent = nullptr);

    // Shows these, in this order, each once. What was selected or current stays so where it is
    // among them; where the current one is not, the one that took its place is current.
    void ShowPictures(std::vector<qint32> ids);
    const std::vector<qint32>& GetPictures() const { return model_->GetIds(); }

    // In the order of the sheet.
    std::vector<qint32> GetSelected() const;
    qint32 GetCurrent() const; // 0 when there is none
    // Makes it the current and only selected one, and shows it. False when it is not on the sheet.
    bool GoTo(qint32 id);

    // Selects those that are on the sheet, and shows the first of them.
    void Select(std::vector<qint32> ids);

    // Which files of the album are marked as linked; it is called for those that are seen.
    void SetLinked(std::function<bool(const QString& file)> isLinked);
    // The album, the links or the pictures' files have changed: what is seen is looked at again.
    void MarksChanged();
    void SetCaptions(Captions captions);

    // Lets the user drag the selected pictures to another place, see SheetDrag.
    void AllowDragging(bool isAllowed);

    // Of the squares that thumbnails fit into, logical pixels.
    int GetSide() const { return side_; }
    void SetSide(int side);

    // Whether thumbnails are still to come.
    bool IsWorking() const { return asking_.isActive() || thumbnails_->IsWorking(); }

signals:
    // The selected pictures were dropped before that row; the number of pictures: at the end.
    void Dropped(int before);
    void SelectionChanged();
    void CurrentChanged();
    // By the user.
    void SideChanged(int side);

protected:
    void keyboardSearch(const QString& text) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& gone) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void changeEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void startDrag(Qt::DropActions actions) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void SetUpView();
    void SetUpWork();
    void KeepPlace(int row, int top);
    void GoToRow(int row);
    static std::optional<CursorAction> ExtendingActionOf(const QKeyEvent& key);
    // Selects from the picture where that began.
    void ExtendTo(int row);
    void ChangeSide(int steps);
    void AskForSeen();
    void AskAgain();
    void ThumbnailChanged(const QString& file);
    void FindTyped(const QString& text);

    SheetModel* model_;
    ThumbnailStore* thumbnails_;
    SheetDelegate* delegate_;
    LargeViewing* large_;
    SheetDrag* drag_;
    int side_ = 0;
    bool isFilling_ = false; // the signals wait
    bool isExtending_ = false;
    int anchor_ = 0; // row from which Shift selects

    QTimer asking_;
    QTimer retry_;
    QStringList seen_; // files that thumbnails were asked for
    int firstSeen_ = 0;
    int sideAsked_ = 0; // device pixels; 0: nothing was asked for

    TypedText typed_;
};
