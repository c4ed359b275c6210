// SPDX-License-Identifier: MIT
#include "catalogue/ValueCompletion.h"

#include "platform/text/ReadingOrder.h"

#include <QKeyEvent>
#include <QListView>
#include <QStringListModel>

namespace {

constexpr int shownAtOnce = 12; // lines

QStringList RecentFirst(QStringList values, const QStringList& recent)
{
    QStringList first;
    for (const QString& value : recent) {
        if (values.removeOne(value))
            first += value;
    }
    return first + values;
}

bool IsEnter(const QKeyEvent& key)
{
    return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
}

} // namespace

ValueCompletion::ValueCompletion(QObject* parent)
    : QCompleter(parent), values_(new QStringListModel(this))
{
    setModel(values_);
    setCompletionMode(PopupCompletion);
    setFilterMode(Qt::MatchContains);
    setCaseSensitivity(Qt::CaseInsensitive);
    setMaxVisibleItems(shownAtOnce);
}

void ValueCompletion::SetValues(const QStringList& values, const QStringList& recent)
{
    if (values != source_ || recent != recent_) {
        source_ = values;
        recent_ = recent;
        values_->setStringList(RecentFirst(SortedForReading(values), recent));
    }
    if (!list_)
        CreateList();
}

// Only when needed: a window opens many times, usually without a value being typed.
void ValueCompletion::CreateList()
{
    auto* list = new QListView;
    list->setUniformItemSizes(true); // else each line would be measured
    list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list->setSelectionBehavior(QAbstractItemView::SelectRows);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setPopup(list);
    list_ = list;
}

bool ValueCompletion::UseKey(const QKeyEvent& key)
{
    const bool isEscape = key.key() == Qt::Key_Escape;
    if ((!IsEnter(key) && !isEscape) || !list_ || !list_->isVisible())
        return false;
    const bool isChosen = list_->currentIndex().isValid();
    if (isEscape)
        list_->setCurrentIndex({}); // the box shows the typed text again
    list_->hide();
    return isChosen || isEscape;
}

bool ValueCompletion::eventFilter(QObject* watched, QEvent* event)
{
    if (!list_ || watched != list_ || event->type() != QEvent::KeyPress)
        return QCompleter::eventFilter(watched, event);
    const auto& key = *static_cast<QKeyEvent*>(event);
    if (UseKey(key))
        return true;
    if (!IsEnter(key) || !widget())
        return QCompleter::eventFilter(watched, event);
    // The list took the key from the box, which may use it.
    QCoreApplication::sendEvent(widget(), event);
    return true;
}
