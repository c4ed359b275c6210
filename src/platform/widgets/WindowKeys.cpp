// SPDX-License-Identifier: MIT
#include "platform/widgets/WindowKeys.h"

#include <QAction>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QShortcut>
#include <QWidget>

#include <algorithm>

namespace {

QList<QKeySequence> KeysOf(const WindowKey& row)
{
    return QKeySequence::listFromString(QString::fromLatin1(row.keys));
}

template<typename Object>
Object* FindByName(const QWidget* window, const char* name)
{
    auto* found = window->findChild<Object*>(QString::fromLatin1(name));
    if (!found)
        qFatal("the window has no %s for its key", name);
    return found;
}

} // namespace

KeySection DescribeKeys(const WindowKeyTable& table)
{
    KeySection section{QCoreApplication::translate(table.context, table.title), {}};
    for (const WindowKey& row : table.rows) {
        section.rows.push_back(
            {KeyNames(KeysOf(row)), QCoreApplication::translate(table.context, row.meaning)});
    }
    return section;
}

WindowKeys::WindowKeys(QWidget* window, const WindowKeyTable& table) : QObject(window)
{
    for (const WindowKey& row : table.rows) {
        if (row.action)
            Connect(window, row);
    }
}

void WindowKeys::Connect(QWidget* window, const WindowKey& row)
{
    auto* action = FindByName<QAction>(window, row.action);
    const QList<QKeySequence> keys = KeysOf(row);
    if (!row.isShown) {
        for (const QKeySequence& key : keys)
            connect(new QShortcut(key, window), &QShortcut::activated, action, &QAction::trigger);
        return;
    }
    action->setShortcuts(keys);
    action->setAutoRepeat(row.repeats);
    if (!row.control) {
        window->addAction(action);
        return;
    }
    // The menu shows the key; the control finds it below, before it takes it for its own.
    action->setShortcutContext(Qt::WidgetShortcut);
    auto* control = FindByName<QWidget>(window, row.control);
    controlKeys_.push_back({control, keys, action, row.repeats});
    control->removeEventFilter(this);
    control->installEventFilter(this);
}

const WindowKeys::ControlKey* WindowKeys::Find(const QObject* control, const QKeyEvent& key) const
{
    const Qt::KeyboardModifiers modifiers =
        key.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    const QKeySequence pressed(QKeyCombination(modifiers, Qt::Key(key.key())));
    const auto found =
        std::find_if(controlKeys_.begin(), controlKeys_.end(), [&](const ControlKey& each) {
            return each.control == control && each.keys.contains(pressed);
        });
    return found == controlKeys_.end() ? nullptr : &*found;
}

bool WindowKeys::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto& key = *static_cast<const QKeyEvent*>(event);
    const ControlKey* found = Find(watched, key);
    if (!found)
        return false;
    if (found->action->isEnabled() && (found->repeats || !key.isAutoRepeat()))
        found->action->trigger();
    return true;
}
