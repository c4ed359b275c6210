// SPDX-License-Identifier: MIT
#include "story/FilterPanel.h"
#include "ui_FilterPanel.h"

#include "catalogue/ColumnTitles.h"
#include "core/Parameters.h"
#include "platform/dialogs/Guard.h"
#include "platform/widgets/ClickLabel.h"
#include "platform/widgets/LiteralText.h"
#include "story/FilterSentence.h"
#include "story/FilterValueList.h"
#include "story/ParagraphMarkers.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>

#include <utility>

namespace {

constexpr int longestInCell = 1000; // characters; more than any screen is wide
constexpr int labelPadding = 3;     // logical pixels; aligns the texts of both cells

// Each group is a column of the grid; a characteristic has two cells, its label above its values.
int LabelRow(int column)
{
    return column % columnsPerGroup * 2;
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
    list_ = new FilterValueList(ui_->lstCar, ui_->txtFindValue, this);
    values_.fill(anyValue);
    CreateGrid();
    connect(ui_->grdCar, &QTableWidget::cellClicked, this, [this](int row, int gridColumn) {
        RunGuarded([&] { grdCar_Click(row, gridColumn); });
    });
    connect(list_, &FilterValueList::Chosen, this,
            [this](const QString& token) { RunGuarded([&] { lstCar_Click(token); }); });
    connect(ui_->lblSentence, &QLabel::linkActivated, this,
            [this](const QString& column) { RunGuarded([&] { lblSentence_Click(column); }); });
    connect(ui_->cmdEditLabels, &QPushButton::clicked, this, &FilterPanel::LabelsWanted);
    ui_->grdCar->installEventFilter(this);
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
    constexpr int maxLines = 3; // of the sentence
    ui_->lblSentence->setMaximumHeight(maxLines * fontMetrics().lineSpacing());
    setMaximumHeight(2 * height + layout()->spacing() + ui_->lblSentence->maximumHeight());
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
    ColumnTexts titles;
    for (int column = 0; column < columnCount; ++column)
        titles[std::size_t(column)] = ColumnTitle(column);
    const std::vector<TextMarker> markers = ReadTextMarkers();
    const bool hasLabels = HasColumnLabels();
    titles_ = titles;
    ui_->grdCar->setHorizontalHeaderLabels(groups);
    for (int column = 0; column < columnCount; ++column) {
        names_[std::size_t(column)] = markers[std::size_t(column) + 1].title;
        ClickLabel* label = lblCar_[std::size_t(column)];
        label->setText(titles_[std::size_t(column)]);
        label->setAccessibleName(names_[std::size_t(column)]);
    }
    ui_->cmdEditLabels->setVisible(!hasLabels);
    CloseList();
    ShowSentence();
}

void FilterPanel::SetValues(const CarValues& values)
{
    values_ = values;
    for (int column = 0; column < columnCount; ++column)
        ShowFilter(column);
    CloseList();
    count_.reset();
    ShowSentence();
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
    list_->Open(column, values_[std::size_t(column)]);
    const int closed = std::exchange(openColumn_, column);
    if (closed >= 0)
        ShowFilter(closed);
    ui_->lblOpenCar->setText(names_[std::size_t(column)]);
    ui_->grdCar->setCurrentCell(LabelRow(column) + 1, GroupOf(column));
    ui_->lstCar->setFocus();
    ShowFilter(column);
}

void FilterPanel::CloseList()
{
    list_->Close();
    const int closed = std::exchange(openColumn_, -1);
    if (closed >= 0)
        ShowFilter(closed);
    ui_->lblOpenCar->setText(tr("Click a caracteristic to filter pictures"));
}

void FilterPanel::lstCar_Click(const QString& token)
{
    if (openColumn_ < 0)
        return;
    QString& value = values_[std::size_t(openColumn_)];
    value = ToggleToken(value, token);
    ShowFilter(openColumn_);
    list_->MarkChosen(value);
    count_.reset();
    emit ValuesChanged();
    ShowSentence();
}

void FilterPanel::lblSentence_Click(const QString& column)
{
    OpenList(column.toInt());
}

void FilterPanel::SetOtherTerms(const SearchTerms& terms)
{
    others_ = terms;
    count_.reset();
    ShowSentence();
}

SearchTerms FilterPanel::GetTerms() const
{
    SearchTerms terms = others_;
    terms.query.values = values_;
    return terms;
}

void FilterPanel::ShowCount(std::optional<int> pictures)
{
    count_ = pictures;
    ShowSentence();
}

void FilterPanel::ShowSentence()
{
    const QString sentence = FilterSentence(GetTerms(), titles_);
    const QString text = WithCount(sentence, count_);
    ui_->lblSentence->setText(text);
    ui_->lblSentence->setToolTip(text);
}

bool FilterPanel::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress || !IsChoosingKey(static_cast<QKeyEvent*>(event)->key()))
        return QWidget::eventFilter(watched, event);
    RunGuarded([&] { grdCar_Click(ui_->grdCar->currentRow(), ui_->grdCar->currentColumn()); });
    return true;
}
