// SPDX-License-Identifier: MIT
#include "catalogue/UndoWindow.h"

#include "catalogue/UndoTurn.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>

using GeneralModule::UndoListener;

namespace {

enum class UndoKey { None, Undo, Redo };

UndoKey KeyOf(const QKeyEvent& key)
{
    if (key.key() != Qt::Key_Z)
        return UndoKey::None;
    if (key.modifiers() == Qt::ControlModifier)
        return UndoKey::Undo;
    return key.modifiers() == (Qt::ControlModifier | Qt::ShiftModifier) ? UndoKey::Redo
                                                                        : UndoKey::None;
}

// The line that the control is, or that it has the user type into.
const QLineEdit* LineOf(const QWidget& control)
{
    if (const auto* box = qobject_cast<const QComboBox*>(&control))
        return box->lineEdit();
    if (qobject_cast<const QAbstractSpinBox*>(&control))
        return control.findChild<const QLineEdit*>();
    return qobject_cast<const QLineEdit*>(&control);
}

// Whether the control has typed text to take back, or to bring again.
bool HasOwn(const QWidget& control, UndoKey key)
{
    const bool isUndo = key == UndoKey::Undo;
    const QLineEdit* line = LineOf(control);
    if (line)
        return !line->isReadOnly() && (isUndo ? line->isUndoAvailable() : line->isRedoAvailable());
    const auto* text = qobject_cast<const QPlainTextEdit*>(&control);
    return text && !text->isReadOnly() &&
           (isUndo ? text->document()->isUndoAvailable() : text->document()->isRedoAvailable());
}

} // namespace

UndoWindow::UndoWindow(QWidget* window, const UndoListener::Show& show,
                       const UndoListener::Save& save)
    : QObject(window),
      window_(window),
      listener_(
          [window, show] {
              if (window->isVisible())
                  show();
          },
          [window, save] { return !window->isVisible() || save(); })
{
    qApp->installEventFilter(this);
}

bool UndoWindow::eventFilter(QObject* watched, QEvent* event)
{
    const bool isPress = event->type() == QEvent::KeyPress;
    if (!isPress && event->type() != QEvent::ShortcutOverride)
        return false;
    const auto* control = qobject_cast<const QWidget*>(watched);
    if (!control || control->window() != window_)
        return false;
    const auto& pressed = *static_cast<QKeyEvent*>(event);
    const UndoKey key = KeyOf(pressed);
    if (key == UndoKey::None || HasOwn(*control, key))
        return false;
    event->accept(); // a menu entry does not take it too
    // Held down, it would take back a whole day.
    if (!isPress || pressed.isAutoRepeat())
        return true;
    if (key == UndoKey::Undo)
        TakeBack(window_);
    else
        MakeAgain(window_);
    return true;
}
