// SPDX-License-Identifier: MIT
#pragma once

#include "platform/widgets/KeySheet.h"

#include <QKeySequence>
#include <QList>
#include <QObject>

#include <vector>

class QAction;
class QKeyEvent;

// What a key of a window does.
struct WindowKey
{
    const char* keys;    // "Return; Enter", as QKeySequence::listFromString reads them
    const char* meaning; // in English, for the sheet of keys
    const char* action;  // name of the window's action; null where the key works without this table
    const char* control = nullptr; // works while this control has the focus; null: everywhere
    bool repeats = false;          // while it is held down
    bool isShown = true;           // in the menu beside the action, whose caption does not name it
};

// All keys of a window. The meanings and the title are translated in the context.
struct WindowKeyTable
{
    const char* context;
    const char* title;
    std::vector<WindowKey> rows;
};

KeySection DescribeKeys(const WindowKeyTable& table);

// Makes the keys of a table trigger the window's actions, as far as these are enabled. The window
// owns it.
class WindowKeys : public QObject
{
public:
    // The actions and controls of the table must be there.
    WindowKeys(QWidget* window, const WindowKeyTable& table);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct ControlKey
    {
        const QObject* control;
        QList<QKeySequence> keys;
        QAction* action;
        bool repeats;
    };

    void Connect(QWidget* window, const WindowKey& row);
    const ControlKey* Find(const QObject* control, const QKeyEvent& key) const;

    std::vector<ControlKey> controlKeys_;
};
