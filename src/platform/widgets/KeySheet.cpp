// SPDX-License-Identifier: MIT
#include "platform/widgets/KeySheet.h"

#include "platform/widgets/WindowSize.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

namespace {

constexpr int rowSpacing = 6; // logical pixels
constexpr int columnSpacing = 28;
constexpr int sectionGap = 16;

QLabel* MakeLabel(const QString& text)
{
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    return label;
}

QLabel* MakeHeading(const QString& text)
{
    QLabel* heading = MakeLabel(text);
    QFont font = heading->font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * 1.15);
    heading->setFont(font);
    return heading;
}

} // namespace

QString KeyNames(const QList<QKeySequence>& keys)
{
    QStringList names;
    for (const QKeySequence& key : keys)
        names += key.toString(QKeySequence::NativeText);
    return names.join(QStringLiteral(", "));
}

KeySheet::KeySheet(const std::vector<KeySection>& sections, QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmKeys"));
    setWindowTitle(tr("Keys"));
    auto* page = new QWidget;
    auto* grid = new QGridLayout(page);
    grid->setHorizontalSpacing(columnSpacing);
    grid->setVerticalSpacing(rowSpacing);
    grid->setColumnStretch(1, 1);
    for (const KeySection& section : sections)
        AddSection(section, *grid);
    grid->setRowStretch(grid->rowCount(), 1);

    auto* area = new QScrollArea;
    area->setObjectName(QStringLiteral("keyArea"));
    area->setAccessibleName(tr("Keys"));
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setWidget(page);
    const int bar = area->verticalScrollBar()->sizeHint().width();
    area->setMinimumWidth(page->sizeHint().width() + bar);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    buttons->button(QDialogButtonBox::Close)->setObjectName(QStringLiteral("cmdClose"));
    connect(buttons, &QDialogButtonBox::rejected, this, &KeySheet::close);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(area, 1);
    layout->addWidget(buttons);
    KeepWindowSize(this, layout->sizeHint().expandedTo({0, page->sizeHint().height() + 90}));
}

void KeySheet::AddSection(const KeySection& section, QGridLayout& grid)
{
    int row = grid.rowCount();
    QLabel* heading = MakeHeading(section.title);
    heading->setContentsMargins(0, row > 1 ? sectionGap : 0, 0, 0);
    grid.addWidget(heading, row, 0, 1, 2);
    for (const KeyRow& each : section.rows) {
        ++row;
        grid.addWidget(MakeLabel(each.keys), row, 0);
        grid.addWidget(MakeLabel(each.meaning), row, 1);
    }
}
