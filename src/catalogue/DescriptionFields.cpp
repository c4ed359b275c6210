// SPDX-License-Identifier: MIT
#include "catalogue/DescriptionFields.h"
#include "ui_DescriptionFields.h"

#include "catalogue/ColumnTitles.h"
#include "core/Parameters.h"

using namespace GeneralModule;

DescriptionFields::DescriptionFields(QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::DescriptionFields>())
{
    ui_->setupUi(this);
    boxes_ = new ValueBoxes(this);
}

DescriptionFields::~DescriptionFields() = default;

QLabel* DescriptionFields::LabelOf(const QString& name) const
{
    return findChild<QLabel*>(name);
}

void DescriptionFields::ShowLabels()
{
    QHash<QLabel*, QString> texts;
    std::array<QString, columnCount> names;
    for (int group = 0; group < groupCount; ++group)
        texts.insert(LabelOf(QStringLiteral("lblCaract_%1").arg(group)), CaractLabel(group));
    for (const int column : labelledColumns)
        texts.insert(LabelOf(QStringLiteral("lblCar_%1").arg(column)), SharedTitle(column));
    for (int column = 0; column < columnCount; ++column) {
        const QString name = CaractLabel(GroupOf(column)) + QLatin1Char(' ') + ColumnTitle(column);
        names[std::size_t(column)] = name.trimmed();
    }
    names_ = names;
    for (auto text = texts.cbegin(); text != texts.cend(); ++text)
        text.key()->setText(text.value());
    for (int column = 0; column < columnCount; ++column)
        boxes_->GetBox(column)->setAccessibleName(names_[std::size_t(column)]);
}

void DescriptionFields::ShowLabelsAndValues()
{
    std::map<int, QStringList> values;
    for (const int column : labelledColumns)
        values[column] = ValuesOf(column);
    ShowLabels();
    boxes_->SetTables(values);
}

void DescriptionFields::TakeFocusBetween(QWidget* before, QWidget* after)
{
    QWidget* last = before;
    for (int column = 0; column < columnCount; ++column) {
        setTabOrder(last, boxes_->GetBox(column));
        last = boxes_->GetBox(column);
    }
    setTabOrder(last, after);
}
