// SPDX-License-Identifier: MIT
#pragma once

#include "story/ParagraphMarkers.h"

#include <QObject>

#include <vector>

class ParagraphText;
class QKeyEvent;
class QListWidget;
class QWidget;

// Puts a placeholder that the user chooses from a list into a paragraph's text.
class MarkerInsertion : public QObject
{
    Q_OBJECT

public:
    struct Controls
    {
        ParagraphText* text;
        QListWidget* list;
        QWidget* begin;  // shown while the list is not
        QWidget* cancel; // shown beside the list
    };

    MarkerInsertion(const Controls& controls, QObject* parent);

    void SetMarkers(std::vector<TextMarker> markers) { markers_ = std::move(markers); }
    const std::vector<TextMarker>& GetMarkers() const { return markers_; }

    void Begin();
    void Cancel();
    void Hide() { ShowList(false); }
    // Of the list while it has the focus: true when the key is used up.
    bool UseKey(const QKeyEvent& key);

private:
    void ShowList(bool isShown);
    void lstInsertCar_Click();

    Controls controls_;
    std::vector<TextMarker> markers_;
};
