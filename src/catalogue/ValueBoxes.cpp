// SPDX-License-Identifier: MIT
#include "catalogue/ValueBoxes.h"

#include "catalogue/LastDescribed.h"
#include "catalogue/ValueCompletion.h"

#include <QComboBox>
#include <QFocusEvent>
#include <QLineEdit>
#include <QStringListModel>
#include <QTimer>

#include <algorithm>

namespace {

// Index of the value, else of an entry that differs only in letter case; -1 for none. Faster than
// the toolkit's own search, which matters with thousands of entries in twelve lists.
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

} // namespace

ValueBoxes::ValueBoxes(QWidget* window) : QObject(window), completion_(new ValueCompletion(this))
{
    for (int column = 0; column < columnCount; ++column) {
        auto* box = window->findChild<QComboBox*>(QStringLiteral("cboCategory_%1").arg(column));
        boxes_[std::size_t(column)] = box;
        if (LabelledColumnOf(column) == column)
            box->setModel(new QStringListModel(this));
        else
            box->setModel(Model(LabelledColumnOf(column)));
        box->lineEdit()->setCompleter(completion_);
        connect(box->lineEdit(), &QLineEdit::textEdited, this,
                [this, column] { cboCategory_Change(column); });
        box->installEventFilter(this);
    }
}

QStringListModel* ValueBoxes::Model(int column) const
{
    return static_cast<QStringListModel*>(GetBox(column)->model());
}

void ValueBoxes::SetTables(const std::map<int, QStringList>& values)
{
    for (const auto& [column, allowed] : values)
        Model(column)->setStringList(allowed);
}

void ValueBoxes::SeparateLists()
{
    for (int column = 0; column < columnCount; ++column) {
        if (LabelledColumnOf(column) == column)
            continue;
        QComboBox* box = GetBox(column);
        box->lineEdit()->setCompleter(nullptr); // which would get the list as its own
        box->setModel(new QStringListModel(Model(column)->stringList(), this));
        box->lineEdit()->setCompleter(completion_);
    }
}

// Only if they differ: the box would forget what it shows.
void ValueBoxes::SetChoices(int column, QStringList values)
{
    values.removeDuplicates();
    if (values != Model(column)->stringList())
        Model(column)->setStringList(values);
}

void ValueBoxes::Offer(int column, const QString& value)
{
    if (IndexOf(Model(column)->stringList(), value) < 0)
        GetBox(column)->addItem(value);
}

void ValueBoxes::ShowValues(const Values& values)
{
    for (int column = 0; column < columnCount; ++column) {
        const QString& value = values[std::size_t(column)];
        GetBox(column)->setCurrentIndex(IndexOf(Model(column)->stringList(), value));
        GetBox(column)->setEditText(value);
    }
}

ValueBoxes::Values ValueBoxes::GetValues() const
{
    Values values;
    for (int column = 0; column < columnCount; ++column)
        values[std::size_t(column)] = GetBox(column)->currentText();
    return values;
}

bool ValueBoxes::UseKey(const QKeyEvent& key)
{
    return completion_->UseKey(key);
}

// Typing replaces the box's value, even after a click: nothing could be typed after a "-".
bool ValueBoxes::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn) {
        if (const auto* box = qobject_cast<QComboBox*>(watched))
            QTimer::singleShot(0, box->lineEdit(), &QLineEdit::selectAll);
    }
    return QObject::eventFilter(watched, event);
}

void ValueBoxes::cboCategory_Change(int column)
{
    completion_->SetValues(Model(column)->stringList(), RecentValues(column));
    QComboBox* box = GetBox(column);
    QString text = box->currentText();
    for (QString normal = NormalizedValue(text); normal != text; normal = NormalizedValue(text))
        text = normal;
    if (text != box->currentText())
        box->setEditText(text);
}
