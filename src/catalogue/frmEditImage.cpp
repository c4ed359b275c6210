// SPDX-License-Identifier: MIT
#include "catalogue/frmEditImage.h"
#include "ui_frmEditImage.h"

#include "catalogue/ColumnTitles.h"
#include "catalogue/ValueCompletion.h"
#include "catalogue/frmEditLabels.h"
#include "catalogue/frmEditTables.h"
#include "core/Album.h"
#include "core/Parameters.h"
#include "core/PictureFile.h"
#include "platform/data/DatabaseError.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/dialogs/Guard.h"
#include "platform/widgets/KeyPreview.h"
#include "platform/widgets/OfferedControl.h"
#include "platform/widgets/ThemedIcon.h"
#include "platform/widgets/WindowSize.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QStringListModel>
#include <QTimer>

#include <algorithm>

using namespace GeneralModule;

namespace {

constexpr QSize proposedSize(1020, 780);

// Of the entry that is the value, else of one that differs from it in letter case only; -1 for
// none. Faster than the toolkit's own search, which matters with thousands of entries in twelve
// lists.
int IndexOf(const QStringList& values, const QString& value)
{
    const qsizetype exact = values.indexOf(value);
    if (exact >= 0)
        return int(exact);
    const auto same = std::find_if(values.begin(), values.end(), [&value](const QString& entry) {
        return entry.compare(value, Qt::CaseInsensitive) == 0;
    });
    return same == values.end() ? -1 : int(same - values.begin());
}

bool IsTyping(const QWidget* focus)
{
    return qobject_cast<const QLineEdit*>(focus) || qobject_cast<const QComboBox*>(focus);
}

} // namespace

frmEditImage::frmEditImage(QWidget* parent)
    : QDialog(parent),
      ui_(std::make_unique<Ui::frmEditImage>()),
      completion_(new ValueCompletion(this))
{
    ui_->setupUi(this);
    setWindowFlag(Qt::WindowMinMaxButtonsHint);
    KeepWindowSize(this, proposedSize);
    // Twins offer the same values, held once.
    for (int column = 0; column < columnCount; ++column) {
        auto* combo = findChild<QComboBox*>(QStringLiteral("cboCategory_%1").arg(column));
        cboCategory_[std::size_t(column)] = combo;
        if (LabelledColumnOf(column) == column)
            combo->setModel(new QStringListModel(this));
        else
            combo->setModel(ValuesModel(LabelledColumnOf(column)));
        combo->lineEdit()->setCompleter(completion_);
    }
    ConnectControls();
    if (IsAlbumReadOnly())
        ShowOnly();
}

frmEditImage::~frmEditImage() = default;

void frmEditImage::ConnectControls()
{
    ui_->cmdNextImage->setIcon(ThemedIcon(QStringLiteral("next-pictures")));
    ui_->cmdNextImage->setShortcut(Qt::ALT | Qt::Key_N);
    ui_->cmdDelete->setIcon(ThemedIcon(QStringLiteral("delete")));
    ui_->cmdEditTables->setIcon(ThemedIcon(QStringLiteral("rename")));
    ui_->cmdExit->setIcon(ThemedIcon(QStringLiteral("exit")));
    connect(ui_->cmdNextImage, &QPushButton::clicked, this,
            Guarded(this, &frmEditImage::cmdNextImage_Click));
    connect(ui_->cmdDelete, &QPushButton::clicked, this,
            Guarded(this, &frmEditImage::cmdDelete_Click));
    connect(ui_->cmdEditTables, &QPushButton::clicked, this,
            Guarded(this, &frmEditImage::cmdEditTables_Click));
    connect(ui_->cmdEditLabels, &QPushButton::clicked, this,
            Guarded(this, &frmEditImage::cmdEditLabels_Click));
    connect(ui_->cmdExit, &QPushButton::clicked, this, &QDialog::close);
    for (int column = 0; column < columnCount; ++column) {
        QComboBox* combo = cboCategory_[std::size_t(column)];
        connect(combo->lineEdit(), &QLineEdit::textEdited, this,
                [this, column] { cboCategory_Change(column); });
        combo->installEventFilter(this);
    }
    new KeyPreview(this, [this](QKeyEvent& key) { return Form_KeyDown(key); });
}

// What is known of a picture can be read in an album that cannot be changed, too.
void frmEditImage::ShowOnly()
{
    for (QComboBox* combo : cboCategory_)
        OfferUnless(*combo, false, ReadOnlyReason());
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

// What is typed takes the place of the value that was there, also after a click: behind a "-"
// nothing could be typed.
bool frmEditImage::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn) {
        if (const auto* combo = qobject_cast<QComboBox*>(watched))
            QTimer::singleShot(0, combo->lineEdit(), &QLineEdit::selectAll);
    }
    return QDialog::eventFilter(watched, event);
}

void frmEditImage::Form_Load()
{
    DisplayCaracteristicNames();
    ShowPicture(CurrentImage);
    ui_->txtLegend->setFocus();
}

QLabel* frmEditImage::LabelOf(const QString& name) const
{
    return findChild<QLabel*>(name);
}

// Here and below everything is read before a control is touched: what cannot be read leaves the
// window as it was.
void frmEditImage::DisplayCaracteristicNames()
{
    QHash<int, QStringList> values;
    for (const int column : labelledColumns)
        values.insert(column, ValuesOf(column));
    DisplayLabels();
    for (const int column : labelledColumns)
        ValuesModel(column)->setStringList(values.value(column));
}

void frmEditImage::DisplayLabels()
{
    QHash<QWidget*, QString> texts;
    QHash<QWidget*, QString> names;
    for (int group = 0; group < groupCount; ++group)
        texts.insert(LabelOf(QStringLiteral("lblCaract_%1").arg(group)), CaractLabel(group));
    for (const int column : labelledColumns)
        texts.insert(LabelOf(QStringLiteral("lblCar_%1").arg(column)), SharedTitle(column));
    for (int column = 0; column < columnCount; ++column) {
        const QString name = CaractLabel(GroupOf(column)) + QLatin1Char(' ') + ColumnTitle(column);
        names.insert(cboCategory_[std::size_t(column)], name.trimmed());
    }
    const bool hasLabels = HasColumnLabels();
    for (auto text = texts.cbegin(); text != texts.cend(); ++text)
        static_cast<QLabel*>(text.key())->setText(text.value());
    for (auto name = names.cbegin(); name != names.cend(); ++name)
        name.key()->setAccessibleName(name.value());
    ui_->offer->setVisible(!hasLabels);
}

void frmEditImage::cmdEditLabels_Click()
{
    frmEditLabels(this).exec();
    DisplayLabels();
}

QStringListModel* frmEditImage::ValuesModel(int column) const
{
    return static_cast<QStringListModel*>(cboCategory_[std::size_t(column)]->model());
}

void frmEditImage::ShowPicture(const QString& file)
{
    const std::optional<PictureRecord> record = ReadPictureRecord(file);
    const QString path = ResolvePictureFile(file);
    CurrentImage = file;
    ui_->stage->ShowPicture(file, path);
    ui_->lblFileName->setText(file);
    ui_->cmdNextImage->setVisible(HasNextPicture && HasNextPicture());
    isKnown_ = record.has_value();
    ShowStored(record.value_or(PictureRecord()));
    if (!isKnown_)
        Tell(tr("Internal Error : Image File ") + CurrentImage + tr(" not found"),
             Dialogs::Icon::Critical);
}

void frmEditImage::ShowStored(const PictureRecord& record)
{
    shown_ = record;
    ShowRecord(record);
    controls_ = ControlValues();
}

void frmEditImage::ShowRecord(const PictureRecord& record)
{
    for (int column = 0; column < columnCount; ++column)
        SetValue(column, record.values[std::size_t(column)]);
    if (ui_->txtLegend->text() != record.legend)
        ui_->txtLegend->setText(record.legend);
}

// A value that the table does not offer is shown all the same, with no entry selected, so that
// nobody takes the picture for one without.
void frmEditImage::SetValue(int column, const QString& value)
{
    QComboBox* combo = cboCategory_[std::size_t(column)];
    combo->setCurrentIndex(IndexOf(ValuesModel(column)->stringList(), value));
    combo->setEditText(value);
}

// In the list of a column, once.
void frmEditImage::OfferValue(int column, const QString& value)
{
    if (IndexOf(ValuesModel(column)->stringList(), value) < 0)
        cboCategory_[std::size_t(column)]->addItem(value);
}

void frmEditImage::cboCategory_Change(int column)
{
    completion_->SetValues(ValuesModel(column)->stringList());
    QComboBox* combo = cboCategory_[std::size_t(column)];
    QString text = combo->currentText();
    for (QString normal = NormalizedValue(text); normal != text; normal = NormalizedValue(text))
        text = normal;
    if (text != combo->currentText())
        combo->setEditText(text);
}

void frmEditImage::cmdNextImage_Click()
{
    if (SavePicture())
        GoToNextPicture();
}

void frmEditImage::GoToNextPicture()
{
    const QString next = NextPicture ? NextPicture() : QString();
    if (next.isEmpty()) {
        close();
        return;
    }
    ShowPicture(next);
    ui_->txtLegend->setFocus();
    ui_->txtLegend->selectAll();
}

void frmEditImage::cmdDelete_Click()
{
    const Dialogs::Answer answer = Dialogs::Door().Ask(
        {.text = tr("Do you also want to delete the file ") + CurrentImage + QStringLiteral(" ?"),
         .icon = Dialogs::Icon::Question,
         .buttons = Dialogs::Buttons::YesNoCancel,
         .defaultAnswer = Dialogs::Answer::Cancel});
    if (answer == Dialogs::Answer::Cancel ||
        !TakeOutPicture(CurrentImage, answer == Dialogs::Answer::Yes))
        return;
    TakenOut.append(CurrentImage);
    CurrentImage.clear();
    if (IsSinglePicture)
        close();
    else
        GoToNextPicture();
}

// Saved first, so that a value just typed stands in its table, and a replacement reaches it.
void frmEditImage::cmdEditTables_Click()
{
    if (!SavePicture())
        return;
    frmEditTables(CurrentImage, this).exec();
    DisplayCaracteristicNames();
    ShowStored(ReadPictureRecord(CurrentImage).value_or(shown_));
}

bool frmEditImage::Form_KeyDown(const QKeyEvent& key)
{
    if (completion_->UseKey(key))
        return true;
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
