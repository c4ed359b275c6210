// SPDX-License-Identifier: MIT
#include "story/FilterPanel.h"
#include "ui_FilterPanel.h"

#include "catalogue/ColumnTitles.h"
#include "core/Parameters.h"
#include "platform/dialogs/Guard.h"
#include "platform/widgets/ClickLabel.h"
#include "platform/widgets/LiteralText.h"
#include "story/ParagraphMarkers.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>

namespace {

constexpr int tokenRole = Qt::UserRole;
constexpr int longestInCell = 1000; // characters; more than any screen is wide
constexpr int labelPadding = 3;     // logical pixels; aligns the texts of both cells

// Each group is a column of the grid; a characteristic has two cells, its label above its values.
int LabelRow(int column)
{
    return column % columnsPerGroup * 2;
}

bool IsChoosingKey(int key)
{
    return key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter;
}

// Keeps its whole text, and draws what there is room for.
class CarLabel : public ClickLabel
{
protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.setPen(palette().color(foregroundRole()));
        const QRect room = contentsRect();
        painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                         fontMetrics().elidedText(text(), Qt::ElideRight, room.width()));
    }
};

} // namespace

FilterPanel::FilterPanel(QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::FilterPanel>())
{
    ui_->setupUi(this);
    values_.fill(anyValue);
    CreateGrid();
    connect(ui_->grdCar, &QTableWidget::cellClicked, this, [this](int row, int gridColumn) {
        RunGuarded([&] { grdCar_Click(row, gridColumn); });
    });
    connect(ui_->lstCar, &QListWidget::itemClicked, this,
            Guarded(this, &FilterPanel::lstCar_Click));
    connect(ui_->cmdEditLabels, &QPushButton::clicked, this, &FilterPanel::LabelsWanted);
    ui_->grdCar->installEventFilter(this);
    ui_->lstCar->installEventFilter(this);
    CloseList();
}

FilterPanel::~FilterPanel() = default;

void FilterPanel::CreateGrid()
{
    QTableWidget& grid = *ui_->grdCar;
    grid.setRowCount(2 * columnsPerGroup);
    grid.setColumnCount(groupCount);
    grid.horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    grid.horizontalHeader()->setSectionsClickable(false);
    for (int column = 0; column < columnCount; ++column) {
        auto* label = new CarLabel;
        label->setObjectName(QStringLiteral("lblCar_%1").arg(column));
        label->setToolTip(tr("Click to select filter"));
        label->setWordWrap(false);
        label->setCursor(Qt::PointingHandCursor);
        label->setAutoFillBackground(true);
        label->setContentsMargins(labelPadding, 0, labelPadding, 0);
        connect(label, &ClickLabel::Clicked, this,
                [this, column] { RunGuarded([&] { lblCar_Click(column); }); });
        lblCar_[std::size_t(column)] = label;
        grid.setCellWidget(LabelRow(column), GroupOf(column), label);
        auto* below = new QTableWidgetItem;
        auto* back = new QTableWidgetItem;
        back->setFlags(Qt::NoItemFlags); // arrow keys skip it
        grid.setItem(LabelRow(column), GroupOf(column), back);
        grid.setItem(LabelRow(column) + 1, GroupOf(column), below);
    }
    grid.setCurrentCell(1, 0);
    FitGridHeight();
}

// The grid is shown whole, without scrolling, in any font; in a high window its rows are a little
// higher and the list beside it is longer.
void FilterPanel::FitGridHeight()
{
    QTableWidget& grid = *ui_->grdCar;
    const int line = grid.fontMetrics().height() + 6;
    grid.verticalHeader()->setMinimumSectionSize(line);
    grid.verticalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    const int height = grid.horizontalHeader()->sizeHint().height() + grid.rowCount() * line +
                       2 * grid.frameWidth();
    grid.setMinimumHeight(height);
    setMaximumHeight(2 * height);
}

void FilterPanel::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        FitGridHeight();
}

void FilterPanel::ShowLabels()
{
    // Everything is read first, so that a failure leaves the panel unchanged.
    QStringList groups;
    for (int group = 0; group < groupCount; ++group)
        groups += GeneralModule::CaractLabel(group);
    QStringList labels;
    for (int column = 0; column < columnCount; ++column)
        labels += ColumnTitle(column);
    const std::vector<TextMarker> markers = ReadTextMarkers();
    const bool hasLabels = HasColumnLabels();
    ui_->grdCar->setHorizontalHeaderLabels(groups);
    for (int column = 0; column < columnCount; ++column) {
        names_[std::size_t(column)] = markers[std::size_t(column) + 1].title;
        ClickLabel* label = lblCar_[std::size_t(column)];
        label->setText(labels[column]);
        label->setAccessibleName(names_[std::size_t(column)]);
    }
    ui_->cmdEditLabels->setVisible(!hasLabels);
    CloseList();
}

void FilterPanel::SetValues(const CarValues& values)
{
    values_ = values;
    for (int column = 0; column < columnCount; ++column)
        ShowFilter(column);
    CloseList();
}

// Palette roles instead of colours follow the desktop's theme.
void FilterPanel::ShowFilter(int column)
{
    const QString& value = values_[std::size_t(column)];
    const bool restricts = Restricts(value);
    ClickLabel* label = lblCar_[std::size_t(column)];
    label->setBackgroundRole(restricts ? QPalette::Highlight : QPalette::Button);
    label->setForegroundRole(restricts ? QPalette::HighlightedText : QPalette::ButtonText);
    QFont font = label->font();
    font.setUnderline(column == openColumn_);
    label->setFont(font);
    QTableWidgetItem* item = ui_->grdCar->item(LabelRow(column) + 1, GroupOf(column));
    const QString description = DescribeFilter(value);
    item->setText(description.left(longestInCell));
    item->setToolTip(AsToolTip(names_[std::size_t(column)] + QStringLiteral(": ") + description));
}

void FilterPanel::lblCar_Click(int column)
{
    OpenList(column);
}

// A click on the values chooses the characteristic above them.
void FilterPanel::grdCar_Click(int row, int gridColumn)
{
    OpenList(gridColumn * columnsPerGroup + row / 2);
}

void FilterPanel::OpenList(int column)
{
    CloseList();
    const std::vector<FilterChoice> choices = FilterChoices(column, values_[std::size_t(column)]);
    openColumn_ = column;
    for (const FilterChoice& choice : choices) {
        auto* item = new QListWidgetItem(choice.text, ui_->lstCar);
        item->setData(tokenRole, choice.token);
        QFont font = item->font();
        font.setItalic(!choice.isKnown);
        item->setFont(font);
        if (!choice.isKnown)
            item->setToolTip(tr("No longer among the values of this caracteristic"));
        else if (choice.token == negation)
            item->setToolTip(tr("Pictures that have none of the chosen values"));
    }
    ui_->lstCar->setEnabled(true);
    ui_->lblOpenCar->setText(names_[std::size_t(column)]);
    ui_->grdCar->setCurrentCell(LabelRow(column) + 1, GroupOf(column));
    ui_->lstCar->setCurrentRow(0);
    ui_->lstCar->setFocus();
    ShowFilter(column);
    MarkChosen();
}

void FilterPanel::CloseList()
{
    const int closed = openColumn_;
    openColumn_ = -1;
    if (closed >= 0)
        ShowFilter(closed);
    ui_->lstCar->clear();
    ui_->lstCar->setEnabled(false);
    ui_->lblOpenCar->setText(tr("Click a caracteristic to filter pictures"));
}

void FilterPanel::MarkChosen()
{
    const HeldTokens held(values_[std::size_t(openColumn_)]);
    for (int row = 0; row < ui_->lstCar->count(); ++row) {
        QListWidgetItem* item = ui_->lstCar->item(row);
        const QString token = item->data(tokenRole).toString();
        const bool chosen = held.Contain(token);
        if (token != anyValue)
            item->setCheckState(chosen ? Qt::Checked : Qt::Unchecked);
        QFont font = item->font();
        font.setBold(chosen);
        item->setFont(font);
    }
}

void FilterPanel::lstCar_Click()
{
    const QListWidgetItem* item = ui_->lstCar->currentItem();
    if (!item || openColumn_ < 0)
        return;
    QString& value = values_[std::size_t(openColumn_)];
    value = ToggleToken(value, item->data(tokenRole).toString());
    ShowFilter(openColumn_);
    MarkChosen();
    emit ValuesChanged();
}

bool FilterPanel::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress || !IsChoosingKey(static_cast<QKeyEvent*>(event)->key()))
        return QWidget::eventFilter(watched, event);
    RunGuarded([&] {
        if (watched == ui_->lstCar)
            lstCar_Click();
        else
            grdCar_Click(ui_->grdCar->currentRow(), ui_->grdCar->currentColumn());
    });
    return true;
}
