// SPDX-License-Identifier: MIT
#include "story/MarkerInsertion.h"

#include "platform/dialogs/Guard.h"
#include "story/ParagraphText.h"

#include <QKeyEvent>
#include <QListWidget>

MarkerInsertion::MarkerInsertion(const Controls& controls, QObject* parent)
    : QObject(parent), controls_(controls)
{
    connect(controls_.list, &QListWidget::itemClicked, this,
            Guarded(this, &MarkerInsertion::lstInsertCar_Click));
    Hide();
}

void MarkerInsertion::ShowList(bool isShown)
{
    controls_.list->setVisible(isShown);
    controls_.cancel->setVisible(isShown);
    controls_.begin->setVisible(!isShown);
}

void MarkerInsertion::Begin()
{
    controls_.list->clear();
    for (const TextMarker& marker : markers_)
        controls_.list->addItem(marker.title);
    ShowList(true);
    controls_.list->setCurrentRow(0);
    controls_.list->setFocus();
}

void MarkerInsertion::Cancel()
{
    Hide();
    controls_.text->setFocus();
}

bool MarkerInsertion::UseKey(const QKeyEvent& key)
{
    if (controls_.list->window()->focusWidget() != controls_.list)
        return false;
    switch (key.key()) {
    case Qt::Key_Escape:
        Cancel();
        return true;
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        lstInsertCar_Click();
        return true;
    default:
        return false;
    }
}

void MarkerInsertion::lstInsertCar_Click()
{
    const int row = controls_.list->currentRow();
    if (row < 0 || std::size_t(row) >= markers_.size())
        return;
    controls_.text->Insert(markers_[std::size_t(row)].display);
    Cancel();
}
