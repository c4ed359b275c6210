// SPDX-License-Identifier: MIT
#include "catalogue/frmEditImage.h"
#include "ui_frmEditImage.h"

#include "catalogue/ColumnTitles.h"
#include "catalogue/DescriptionFields.h"
#include "catalogue/LastDescribed.h"
#include "catalogue/UndoWindow.h"
#include "catalogue/frmEditLabels.h"
#include "catalogue/frmEditTables.h"
#include "core/Album.h"
#include "core/EditConflict.h"
#include "core/LocalCopy.h"
#include "platform/data/DatabaseError.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/dialogs/Guard.h"
#include "platform/widgets/FormButtons.h"
#include "platform/widgets/KeyPreview.h"
#include "platform/widgets/OfferedControl.h"
#include "platform/widgets/WindowSize.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>

using namespace GeneralModule;

namespace {

constexpr QSize proposedSize(1020, 780);

bool IsTyping(const QWidget* focus)
{
    return qobject_cast<const QLineEdit*>(focus) || qobject_cast<const QComboBox*>(focus);
}

} // namespace

frmEditImage::frmEditImage(QWidget* parent)
    : QDialog(parent), ui_(std::make_unique<Ui::frmEditImage>())
{
    ui_->setupUi(this);
    setWindowFlag(Qt::WindowMinMaxButtonsHint);
    KeepWindowSize(this, proposedSize);
    boxes_ = &ui_->descriptionFields->GetBoxes();
    ui_->descriptionFields->TakeFocusBetween(ui_->txtLegend, ui_->cmdEditLabels);
    ConnectControls();
    if (IsAlbumReadOnly())
        ShowOnly();
}

frmEditImage::~frmEditImage() = default;

void frmEditImage::ConnectControls()
{
    using Form = frmEditImage;
    ConnectButtons<Form>(
        this, {
                  {ui_->cmdNextImage, "next-pictures", &Form::cmdNextImage_Click},
                  {ui_->cmdPreviousImage, "previous-paragraph", &Form::cmdPreviousImage_Click},
                  {ui_->cmdAsBefore, "as-before", &Form::cmdAsBefore_Click},
                  {ui_->cmdDelete, "delete", &Form::cmdDelete_Click},
                  {ui_->cmdEditTables, "rename", &Form::cmdEditTables_Click},
                  {ui_->cmdEditLabels, "", &Form::cmdEditLabels_Click},
                  {ui_->cmdExit, "exit", &Form::cmdExit_Click},
              });
    ui_->cmdNextImage->setShortcut(Qt::ALT | Qt::Key_N);
    ui_->cmdPreviousImage->setShortcut(Qt::ALT | Qt::Key_P);
    new KeyPreview(this, [this](QKeyEvent& key) { return Form_KeyDown(key); });
    new UndoWindow(
        this, [this] { ShowAfterUndo(); }, [this] { return SaveForUndo(); });
}

// In a read-only album the picture's description can still be read.
void frmEditImage::ShowOnly()
{
    for (int column = 0; column < columnCount; ++column)
        OfferUnless(*boxes_->GetBox(column), false, ReadOnlyReason());
    for (QPushButton* button : {ui_->cmdDelete, ui_->cmdEditTables, ui_->cmdEditLabels})
        OfferUnless(*button, false, ReadOnlyReason());
    ui_->txtLegend->setReadOnly(true);
    QPalette legend = ui_->txtLegend->palette();
    legend.setColor(QPalette::Base, legend.color(QPalette::Window));
    ui_->txtLegend->setPalette(legend);
    ui_->txtLegend->setToolTip(ReadOnlyReason());
}

void frmEditImage::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (isLoaded_)
        return;
    isLoaded_ = true;
    RunGuarded([this] { Form_Load(); });
}

void frmEditImage::Form_Load()
{
    DisplayCaracteristicNames();
    ShowPicture(CurrentImage);
    visited_.Show(CurrentImage);
    ShowPlace();
    ui_->txtLegend->setFocus();
}

// Everything is read before a control is touched, so that a failure leaves the window unchanged.
void frmEditImage::DisplayCaracteristicNames()
{
    const bool hasLabels = HasColumnLabels();
    ui_->descriptionFields->ShowLabelsAndValues();
    ui_->offer->setVisible(!hasLabels);
}

void frmEditImage::cmdEditLabels_Click()
{
    frmEditLabels(this).exec();
    const bool hasLabels = HasColumnLabels();
    ui_->descriptionFields->ShowLabels();
    ui_->offer->setVisible(!hasLabels);
}

void frmEditImage::ShowPicture(const QString& file)
{
    const std::optional<Picture> record = ReadPicture(file);
    const QString path = ResolvePictureFile(file);
    CurrentImage = file;
    ui_->stage->ShowPicture(file, path);
    ui_->lblFileName->setText(file);
    isKnown_ = record.has_value();
    ShowStored(record.value_or(Picture()));
    if (!isKnown_)
        Tell(tr("Internal Error : Image File %1 not found").arg(CurrentImage),
             Dialogs::Icon::Critical);
}

bool frmEditImage::HasNext() const
{
    return visited_.HasNext() || (CountUpcoming && CountUpcoming() > 0);
}

// Where the picture is in its selection, and what can be done from there.
void frmEditImage::ShowPlace()
{
    const int count = visited_.Count() + (CountUpcoming ? CountUpcoming() : 0);
    ui_->lblPlace->setText(count > 1 ? tr("%1 of %2").arg(visited_.GetNumber()).arg(count)
                                     : QString());
    ui_->cmdNextImage->setVisible(HasNext());
    ui_->cmdPreviousImage->setVisible(count > 1);
    ui_->cmdPreviousImage->setEnabled(visited_.HasPrevious());
    OfferUnless(*ui_->cmdAsBefore, LastDescribed().has_value(),
                IsAlbumReadOnly() ? ReadOnlyReason() : QString());
    if (visited_.HasNext())
        ui_->stage->Expect(FindPictureFile(visited_.GetNext()));
    else if (ForeseeNextPicture)
        ui_->stage->Expect(ForeseeNextPicture());
}

void frmEditImage::ShowStored(const Picture& record)
{
    shown_ = record;
    ShowRecord(record);
    controls_ = ControlValues();
}

void frmEditImage::ShowRecord(const Picture& record)
{
    boxes_->ShowValues(record.values);
    if (ui_->txtLegend->text() != record.legend)
        ui_->txtLegend->setText(record.legend);
}

void frmEditImage::cmdNextImage_Click()
{
    if (SavePicture())
        GoToNextPicture();
}

void frmEditImage::GoToNextPicture()
{
    const bool wasSeen = visited_.HasNext();
    QString next;
    if (wasSeen)
        next = visited_.GetNext();
    else if (NextPicture)
        next = NextPicture();
    if (next.isEmpty()) {
        close();
        return;
    }
    ShowPicture(next);
    if (wasSeen)
        visited_.GoOn();
    else
        visited_.Show(next);
    BeginDescribing();
}

void frmEditImage::cmdPreviousImage_Click()
{
    if (!visited_.HasPrevious() || !SavePicture())
        return;
    ShowPicture(visited_.GetPrevious());
    visited_.GoBack();
    BeginDescribing();
}

void frmEditImage::BeginDescribing()
{
    ShowPlace();
    ui_->txtLegend->setFocus();
    ui_->txtLegend->selectAll();
}

// Nothing is saved yet, and the legend stays, which seldom fits two pictures.
void frmEditImage::cmdAsBefore_Click()
{
    if (const std::optional<Picture> last = LastDescribed())
        ShowRecord(WithValuesOf(ControlValues(), *last));
}

// Of the field that has the focus. False where that is none.
bool frmEditImage::TakeFieldAsBefore()
{
    const std::optional<Picture> last = LastDescribed();
    if (!last || IsAlbumReadOnly())
        return false;
    Picture picture = ControlValues();
    if (ui_->txtLegend->hasFocus()) {
        picture.legend = last->legend;
        ShowRecord(picture);
        return true;
    }
    for (int column = 0; column < columnCount; ++column) {
        const QComboBox* box = boxes_->GetBox(column);
        if (box != focusWidget() && !box->isAncestorOf(focusWidget()))
            continue;
        picture.values[std::size_t(column)] = last->values[std::size_t(column)];
        ShowRecord(picture);
        box->lineEdit()->selectAll();
        return true;
    }
    return false;
}

void frmEditImage::cmdDelete_Click()
{
    const Dialogs::Answer answer = Dialogs::Door().Ask(
        {.text = tr("Do you also want to delete the file %1 ?").arg(CurrentImage),
         .icon = Dialogs::Icon::Question,
         .buttons = Dialogs::Buttons::YesNoCancel,
         .defaultAnswer = Dialogs::Answer::Cancel,
         .note = tr("The file goes to the desktop's trash, or where there is none, it is deleted "
                    "for good. Undo brings back the album's entry, not the file.")});
    if (answer == Dialogs::Answer::Cancel)
        return;
    const QString trouble = TakeOutPicture(CurrentImage, answer == Dialogs::Answer::Yes);
    if (!trouble.isEmpty())
        return Tell(trouble, Dialogs::Icon::Warning);
    TakenOut.append(CurrentImage);
    visited_.Remove();
    CurrentImage.clear();
    if (IsSinglePicture)
        close();
    else
        GoToNextPicture();
}

void frmEditImage::cmdExit_Click()
{
    close();
}

// Saves first, so that a value just typed is in its table, and a replacement finds it.
void frmEditImage::cmdEditTables_Click()
{
    if (!SavePicture())
        return;
    frmEditTables(CurrentImage, this).exec();
    DisplayCaracteristicNames();
    ShowStored(ReadPicture(CurrentImage).value_or(shown_));
}

bool frmEditImage::Form_KeyDown(const QKeyEvent& key)
{
    if (boxes_->UseKey(key))
        return true;
    if (key.modifiers() == Qt::ControlModifier && key.key() == Qt::Key_D) {
        ui_->cmdAsBefore->click();
        return true;
    }
    if (key.modifiers() == Qt::ControlModifier && key.key() == Qt::Key_Space)
        return TakeFieldAsBefore();
    const bool isPlain = !(key.modifiers() & (Qt::ControlModifier | Qt::AltModifier));
    const bool isTyping = IsTyping(focusWidget());
    const bool isEnter = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
    if (isEnter && isTyping && ui_->cmdNextImage->isVisible()) {
        cmdNextImage_Click();
        return true;
    }
    if (key.key() != Qt::Key_Q || !isPlain || isTyping)
        return false;
    close();
    return true;
}

Picture frmEditImage::ControlValues() const
{
    return {ui_->txtLegend->text(), boxes_->GetValues()};
}

// Unedited fields keep the shown value, even where a one-line control changes it.
Picture frmEditImage::GetRecord() const
{
    return MergePicture(controls_, ControlValues(), shown_, true);
}

// False when the user wants to stay.
bool frmEditImage::SettleConflict()
{
    const Picture edited = GetRecord();
    if (edited == shown_)
        return true;
    const Picture stored = ReadPicture(CurrentImage).value_or(shown_);
    if (!HasConflict(shown_, edited, stored))
        return true;
    const ConflictChoice choice =
        AskAboutConflict(tr("This picture"), DescribePicture(edited), DescribePicture(stored));
    if (choice == ConflictChoice::Stay)
        return false;
    const Picture merged = MergePicture(shown_, edited, stored, choice == ConflictChoice::KeepMine);
    ShowStored(stored);
    ShowRecord(merged);
    return true;
}

bool frmEditImage::SavePicture()
{
    if (CurrentImage.isEmpty() || !isKnown_)
        return true;
    if (!SettleConflict())
        return false;
    const Picture saved = StorePicture(CurrentImage, shown_, GetRecord());
    for (int column = 0; column < columnCount; ++column) {
        const QString& value = saved.values[std::size_t(column)];
        if (value != shown_.values[std::size_t(column)])
            boxes_->Offer(column, value);
    }
    ShowStored(saved);
    RememberDescribed(saved);
    return true;
}

// Called however the window is closed.
void frmEditImage::reject()
{
    if (SaveBeforeLeaving())
        QDialog::reject();
}

bool frmEditImage::SaveForUndo()
{
    return !isKnown_ || GetRecord() == shown_ || SavePicture();
}

void frmEditImage::ShowAfterUndo()
{
    TakenOut.removeIf([](const QString& file) { return ReadPicture(file).has_value(); });
    const std::optional<Picture> record = ReadPicture(CurrentImage);
    isKnown_ = record.has_value();
    if (!isKnown_) {
        TakenOut.append(CurrentImage);
        close();
        return;
    }
    DisplayCaracteristicNames();
    ShowStored(*record);
    ShowPlace();
}

bool frmEditImage::SaveBeforeLeaving()
{
    try {
        return SavePicture();
    } catch (const DatabaseError& error) {
        const Dialogs::Answer answer = Dialogs::Door().Ask(
            {.text = error.GetDescription() + QLatin1Char('\n') +
                     tr("The picture could not be saved. Leave without saving ?"),
             .icon = Dialogs::Icon::Warning,
             .buttons = Dialogs::Buttons::YesNo,
             .defaultAnswer = Dialogs::Answer::No});
        return answer == Dialogs::Answer::Yes;
    }
}
