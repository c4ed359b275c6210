// SPDX-License-Identifier: MIT
#include "story/FilterValueList.h"

#include "platform/dialogs/Guard.h"
#include "platform/widgets/CountDelegate.h"
#include "story/FilterValues.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>

namespace {

constexpr int tokenRole = Qt::UserRole;
constexpr int fewestToSearch = 12; // choices; fewer are seen at once

} // namespace

FilterValueList::FilterValueList(QListWidget* list, QLineEdit* search, QObject* parent)
    : QObject(parent), lstCar_(list), txtFindValue_(search)
{
    lstCar_->setItemDelegate(new CountDelegate(lstCar_));
    connect(lstCar_, &QListWidget::itemClicked, this, &FilterValueList::Choose);
    connect(txtFindValue_, &QLineEdit::textChanged, this, &FilterValueList::Narrow);
    lstCar_->installEventFilter(this);
    txtFindValue_->installEventFilter(this);
    Close();
}

void FilterValueList::Open(int column, const QString& filter)
{
    const std::vector<FilterChoice> choices = FilterChoices(column, filter);
    Close();
    for (const FilterChoice& choice : choices) {
        auto* item = new QListWidgetItem(choice.text, lstCar_);
        item->setData(tokenRole, choice.token);
        QFont font = item->font();
        font.setItalic(!choice.isKnown);
        item->setFont(font);
        if (!choice.isKnown)
            item->setToolTip(tr("No longer among the values of this caracteristic"));
        else if (choice.token == negation)
            item->setToolTip(tr("Pictures that have none of the chosen values"));
    }
    lstCar_->setEnabled(true);
    lstCar_->setCurrentRow(0);
    txtFindValue_->setVisible(lstCar_->count() > fewestToSearch);
    MarkChosen(filter);
    BeginCounting(column);
}

void FilterValueList::Close()
{
    counting_.Stop();
    lstCar_->clear();
    lstCar_->setEnabled(false);
    txtFindValue_->clear();
    txtFindValue_->hide();
}

void FilterValueList::MarkChosen(const QString& filter)
{
    const HeldTokens held(filter);
    for (int row = 0; row < lstCar_->count(); ++row) {
        QListWidgetItem* item = lstCar_->item(row);
        const QString token = item->data(tokenRole).toString();
        const bool chosen = held.Contain(token);
        if (token != anyValue)
            item->setCheckState(chosen ? Qt::Checked : Qt::Unchecked);
        QFont font = item->font();
        font.setBold(chosen);
        item->setFont(font);
    }
}

// In one scan for all values. One that fails shows no numbers.
void FilterValueList::BeginCounting(int column)
{
    counting_.Begin([this, column](std::chrono::milliseconds time) {
        if (!counts_)
            counts_.emplace(column);
        if (counts_->Work(time))
            return true;
        ShowCounts();
        return false;
    });
    counts_.reset();
}

void FilterValueList::ShowCounts()
{
    for (int row = 0; row < lstCar_->count(); ++row) {
        QListWidgetItem* item = lstCar_->item(row);
        const QString token = item->data(tokenRole).toString();
        if (token != anyValue && token != negation)
            item->setData(CountDelegate::countRole,
                          lstCar_->locale().toString(counts_->CountOf(token)));
    }
}

// The first value that is left becomes the current one, for Return.
void FilterValueList::Narrow()
{
    const QString text = txtFindValue_->text();
    QListWidgetItem* first = nullptr;
    for (int row = 0; row < lstCar_->count(); ++row) {
        QListWidgetItem* item = lstCar_->item(row);
        item->setHidden(!item->text().contains(text, Qt::CaseInsensitive));
        const bool isBetter = !first || (!first->text().startsWith(text, Qt::CaseInsensitive) &&
                                         item->text().startsWith(text, Qt::CaseInsensitive));
        if (!item->isHidden() && isBetter)
            first = item;
    }
    lstCar_->setCurrentItem(first);
}

void FilterValueList::Choose(const QListWidgetItem* item)
{
    if (item && !item->isHidden())
        emit Chosen(item->data(tokenRole).toString());
}

bool FilterValueList::UseKeyOfList(const QString& text, int key)
{
    if (IsChoosingKey(key)) {
        Choose(lstCar_->currentItem());
        return true;
    }
    const bool isText = !text.isEmpty() && text[0].isPrint();
    if (isText && txtFindValue_->isVisible()) {
        txtFindValue_->setFocus();
        txtFindValue_->insert(text);
        return true;
    }
    return false;
}

bool FilterValueList::UseKeyOfSearch(int key)
{
    if (key == Qt::Key_Down) {
        lstCar_->setFocus();
        return true;
    }
    if (key != Qt::Key_Return && key != Qt::Key_Enter)
        return false;
    Choose(lstCar_->currentItem());
    txtFindValue_->selectAll();
    return true;
}

bool FilterValueList::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return QObject::eventFilter(watched, event);
    const auto* key = static_cast<QKeyEvent*>(event);
    const bool isShortcut = key->modifiers() & (Qt::ControlModifier | Qt::AltModifier);
    bool isUsed = false;
    RunGuarded([&] {
        isUsed = watched == lstCar_ ? UseKeyOfList(isShortcut ? QString() : key->text(), key->key())
                                    : UseKeyOfSearch(key->key());
    });
    return isUsed || QObject::eventFilter(watched, event);
}
