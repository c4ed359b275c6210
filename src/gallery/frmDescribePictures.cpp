// SPDX-License-Identifier: MIT
#include "gallery/frmDescribePictures.h"
#include "ui_frmDescribePictures.h"

#include "catalogue/LastDescribed.h"
#include "catalogue/PictureCards.h"
#include "catalogue/UndoWindow.h"
#include "catalogue/frmEditTables.h"
#include "core/Album.h"
#include "gallery/GroupChoice.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/dialogs/Guard.h"
#include "platform/widgets/BusyPointer.h"
#include "platform/widgets/ButtonMenu.h"
#include "platform/widgets/FormButtons.h"
#include "platform/widgets/KeyPreview.h"
#include "platform/widgets/OfferedControl.h"
#include "platform/widgets/WindowSize.h"

#include <QContextMenuEvent>

#include <algorithm>

namespace {

constexpr QSize describePicturesSize(1120, 780);

void MarkAsTouched(QWidget& field, bool isTouched)
{
    QFont font = field.font();
    font.setBold(isTouched);
    field.setFont(font);
}

} // namespace

frmDescribePictures::frmDescribePictures(QWidget* parent)
    : QDialog(parent), ui_(std::make_unique<Ui::frmDescribePictures>())
{
    ui_->setupUi(this);
    setWindowFlag(Qt::WindowMinMaxButtonsHint);
    KeepWindowSize(this, describePicturesSize);
    ui_->descriptionFields->GetBoxes().SeparateLists();
    ui_->descriptionFields->TakeFocusBetween(ui_->cboLegendWay, ui_->cmdApply);
    groups_ = new GroupChoice(
        {ui_->sheet, ui_->cmdSameFolder, ui_->cmdSameDay, ui_->cmdSameValues, ui_->lblFeedback},
        this);
    ConnectControls();
    ConnectFields();
}

frmDescribePictures::~frmDescribePictures() = default;

void frmDescribePictures::ConnectControls()
{
    using Form = frmDescribePictures;
    ConnectButtons<Form>(this, {
                                   {ui_->cmdApply, "index-pictures", &Form::cmdApply_Click},
                                   {ui_->cmdAsBefore, "as-before", &Form::cmdAsBefore_Click},
                                   {ui_->cmdEditTables, "rename", &Form::cmdEditTables_Click},
                                   {ui_->cmdExit, "exit", &Form::cmdExit_Click},
                               });
    connect(ui_->sheet, &ContactSheet::SelectionChanged, this, Guarded(this, &Form::ChoiceChanged));
    connect(ui_->sheet, &ContactSheet::CurrentChanged, this, Guarded(this, &Form::ChoiceChanged));
    new KeyPreview(this, [this](QKeyEvent& key) { return Form_KeyDown(key); });
    new UndoWindow(this, [this] {
        ui_->lblFeedback->clear();
        ShowAlbumAgain();
    });
}

void frmDescribePictures::ConnectFields()
{
    for (int column = 0; column < columnCount; ++column) {
        QComboBox* box = ui_->descriptionFields->GetBoxes().GetBox(column);
        connect(box->lineEdit(), &QLineEdit::textEdited, this, [this, column] { Touch(column); });
        connect(box, &QComboBox::activated, this, [this, column] { Touch(column); });
    }
    connect(ui_->txtLegend, &QLineEdit::textEdited, this, [this] { TouchLegend(); });
    connect(ui_->cboLegendWay, &QComboBox::activated, this, [this] { TouchLegend(); });
}

void frmDescribePictures::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (event->spontaneous())
        return;
    RunGuarded([this] { Form_Load(); });
    ui_->sheet->setFocus();
}

void frmDescribePictures::Form_Load()
{
    ShowTables();
    TouchNothing();
    ui_->sheet->ShowPictures(Pictures);
    if (ui_->sheet->GetCurrent() == 0 && !Pictures.empty())
        ui_->sheet->GoTo(Pictures.front());
    ChoiceChanged();
}

void frmDescribePictures::ShowTables()
{
    ui_->descriptionFields->ShowLabelsAndValues();
    for (int column = 0; column < columnCount; ++column)
        allowed_[std::size_t(column)] = ValuesOf(column);
}

// What was typed and not applied stays.
void frmDescribePictures::ShowAlbumAgain()
{
    ValueBoxes& boxes = ui_->descriptionFields->GetBoxes();
    const ValueBoxes::Values typed = boxes.GetValues();
    ShowTables();
    for (int column = 0; column < columnCount; ++column) {
        if (isTouched_[std::size_t(column)])
            boxes.GetBox(column)->setEditText(typed[std::size_t(column)]);
    }
    ui_->sheet->MarksChanged();
    ChoiceChanged();
}

void frmDescribePictures::contextMenuEvent(QContextMenuEvent* event)
{
    ButtonMenu menu(this);
    menu.AddButtons({ui_->cmdApply, ui_->cmdAsBefore});
    menu.AddButtons({ui_->cmdSameFolder, ui_->cmdSameDay, ui_->cmdSameValues});
    menu.AddButtons({ui_->cmdEditTables, ui_->cmdExit});
    menu.exec(event->globalPos());
}

bool frmDescribePictures::Form_KeyDown(const QKeyEvent& key)
{
    if (ui_->descriptionFields->GetBoxes().UseKey(key))
        return true;
    if (key.modifiers() == Qt::ControlModifier && key.key() == Qt::Key_D) {
        ui_->cmdAsBefore->click();
        return true;
    }
    const bool isEnter = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
    const bool isField = qobject_cast<QLineEdit*>(focusWidget()) != nullptr ||
                         qobject_cast<QComboBox*>(focusWidget()) != nullptr;
    if (!isEnter || !isField || key.isAutoRepeat())
        return false;
    ui_->cmdApply->click();
    return true;
}

void frmDescribePictures::RefreshState()
{
    const QString readOnly =
        GeneralModule::IsAlbumReadOnly() ? GeneralModule::ReadOnlyReason() : QString();
    const int chosen = int(chosen_.size());
    ui_->lblChosen->setText(
        tr("%1 of %n pictures chosen", nullptr, int(ui_->sheet->GetPictures().size()))
            .arg(locale().toString(chosen)));
    ui_->cmdApply->setText(tr("Apply to %n Pictures", nullptr, chosen));
    OfferUnless(*ui_->cmdApply, chosen > 0 && !GetChange().IsEmpty(), readOnly);
    OfferUnless(*ui_->cmdAsBefore, chosen > 0 && LastDescribed().has_value(), readOnly);
    OfferUnless(*ui_->cmdEditTables, true, readOnly);
    groups_->OfferWhere(chosen > 0);
}

void frmDescribePictures::ChoiceChanged()
{
    chosen_ = ui_->sheet->GetSelected();
    if (chosen_.empty() && ui_->sheet->GetCurrent() != 0)
        chosen_.push_back(ui_->sheet->GetCurrent());
    RefreshState();
    group_.reset();
    reading_.Begin([this](std::chrono::milliseconds time) { return ReadGroup(time); });
}

bool frmDescribePictures::ReadGroup(std::chrono::milliseconds time)
{
    if (!group_)
        group_.emplace(chosen_);
    if (group_->Work(time))
        return true;
    ShowGroup(group_->GetDescription());
    group_.reset();
    return false;
}

void frmDescribePictures::ShowGroup(const GroupDescription& group)
{
    ValueBoxes& boxes = ui_->descriptionFields->GetBoxes();
    for (int column = 0; column < columnCount; ++column) {
        const GroupField& field = group.columns[std::size_t(column)];
        QLineEdit& edit = *boxes.GetBox(column)->lineEdit();
        const QString shown = edit.text();
        QStringList choices;
        for (const GroupField::Text& each : field.texts)
            choices += each.text;
        boxes.SetChoices(column, choices + allowed_[std::size_t(column)]);
        edit.setText(shown);
        ShowField(edit, field, isTouched_[std::size_t(column)]);
    }
    ShowField(*ui_->txtLegend, group.legend, isLegendTouched_);
    if (group.legend.texts.size() > 1)
        ui_->txtLegend->setPlaceholderText(
            tr("%n different legends", nullptr, int(group.legend.texts.size())));
}

void frmDescribePictures::ShowField(QLineEdit& field, const GroupField& texts, bool isTouched) const
{
    field.setPlaceholderText(texts.IsCommon() ? QString() : texts.InWords());
    field.setToolTip(texts.IsCommon() ? QString() : texts.InWords().toHtmlEscaped());
    if (!isTouched)
        field.setText(texts.IsCommon() ? texts.texts.front().text : QString());
    field.setCursorPosition(isTouched ? field.cursorPosition() : 0);
}

void frmDescribePictures::Touch(int column, bool isTouched)
{
    isTouched_[std::size_t(column)] = isTouched;
    MarkAsTouched(*ui_->descriptionFields->GetBoxes().GetBox(column), isTouched);
    RefreshState();
}

void frmDescribePictures::TouchLegend(bool isTouched)
{
    isLegendTouched_ = isTouched;
    MarkAsTouched(*ui_->txtLegend, isTouched);
    RefreshState();
}

void frmDescribePictures::TouchNothing()
{
    for (int column = 0; column < columnCount; ++column)
        Touch(column, false);
    ui_->cboLegendWay->setCurrentIndex(0);
    TouchLegend(false);
}

GroupChange frmDescribePictures::GetChange() const
{
    GroupChange change;
    const ValueBoxes::Values values = ui_->descriptionFields->GetBoxes().GetValues();
    for (std::size_t column = 0; column < columnCount; ++column) {
        if (isTouched_[column])
            change.values[column] = values[column];
    }
    change.legendWay = GroupChange::LegendWay(ui_->cboLegendWay->currentIndex());
    const bool isAdded = change.legendWay != GroupChange::LegendWay::Replace;
    if (isLegendTouched_ && !(isAdded && ui_->txtLegend->text().isEmpty()))
        change.legend = ui_->txtLegend->text();
    return change;
}

void frmDescribePictures::Apply()
{
    const GroupChange change = GetChange();
    const std::vector<qint32> chosen = chosen_;
    if (change.IsEmpty() || chosen.empty())
        return;
    {
        const BusyPointer busy;
        const GroupChange stored = ApplyToGroup(chosen, change);
        for (std::size_t column = 0; column < columnCount; ++column) {
            QStringList& allowed = allowed_[column];
            if (stored.values[column] && !allowed.contains(*stored.values[column]))
                allowed += *stored.values[column];
        }
    }
    const QString file = ReadPictureCards({&chosen.back(), 1}).front().file;
    if (const std::optional<Picture> last = ReadPicture(file))
        RememberDescribed(*last);
    TouchNothing();
    ui_->sheet->MarksChanged();
    ui_->lblFeedback->setText(tr("%n pictures described", nullptr, int(chosen.size())));
    ChoiceChanged();
}

// After the last one that was chosen, where there is one.
void frmDescribePictures::ChooseNext()
{
    const std::vector<qint32>& pictures = ui_->sheet->GetPictures();
    const auto last =
        chosen_.empty() ? pictures.end() : std::ranges::find(pictures, chosen_.back());
    if (last != pictures.end() && last + 1 != pictures.end())
        ui_->sheet->GoTo(*(last + 1));
    ui_->sheet->setFocus();
}

void frmDescribePictures::cmdApply_Click()
{
    Apply();
    ChooseNext();
}

// Fields that the last one has no value for are left alone.
void frmDescribePictures::cmdAsBefore_Click()
{
    const std::optional<Picture> last = LastDescribed();
    if (!last)
        return;
    ValueBoxes& boxes = ui_->descriptionFields->GetBoxes();
    for (int column = 0; column < columnCount; ++column) {
        const QString& value = last->values[std::size_t(column)];
        if (value.isEmpty() || value == noValue)
            continue;
        boxes.GetBox(column)->setEditText(value);
        Touch(column);
    }
}

// What was typed stays, also where the tables no longer hold it.
void frmDescribePictures::cmdEditTables_Click()
{
    const QString file =
        chosen_.empty() ? QString() : ReadPictureCards({&chosen_.back(), 1}).front().file;
    frmEditTables(file, this).exec();
    ShowAlbumAgain();
}

void frmDescribePictures::cmdExit_Click()
{
    close();
}

// Called however the window is closed. What was typed is not lost without a question.
void frmDescribePictures::reject()
{
    if (GetChange().IsEmpty() || GeneralModule::IsAlbumReadOnly())
        return QDialog::reject();
    const Dialogs::Answer answer = Dialogs::Door().Ask(
        {.text = tr("Apply what you have entered to %n pictures ?", nullptr, int(chosen_.size())),
         .icon = Dialogs::Icon::Question,
         .buttons = Dialogs::Buttons::YesNoCancel,
         .defaultAnswer = Dialogs::Answer::Yes});
    if (answer == Dialogs::Answer::Cancel)
        return;
    if (answer == Dialogs::Answer::Yes && !RunGuarded([this] { Apply(); }))
        return;
    QDialog::reject();
}
