// SPDX-License-Identifier: MIT
#pragma once

#include "story/ParagraphMarkers.h"

#include <QObject>

#include <vector>

class ParagraphText;
class QKeyEvent;
class QListWidget;
class QWidget;

// Inserts a placeholder that the user chooses from a list into a paragraph's text.
class MarkerInsertion : public QObject
{
    Q_OBJECT

public:
    struct Controls
    {
        ParagraphText* text;
        QListWidget* list;
        QWidget* begin;  // shown while the list is hidden
        QWidget* cancel; // shown beside the list
    };

    MarkerInsertion(const Controls& controls, QObject* parent);

    void SetMarkers(std::vector<TextMarker> markers) { markers_ = std::move(markers); }
    const std::vector<TextMarker>& GetMarkers() const { return markers_; }

    void Begin();
    void Cancel();
    void Hide() { ShowList(false); }
    // A key of the list while it has the focus. True when the key is used.
    bool UseKey(const QKeyEvent& key);

private:
    void ShowList(bool isShown);
    void lstInsertCar_Click();

    Controls controls_;
    std::vector<TextMarker> markers_;
};
