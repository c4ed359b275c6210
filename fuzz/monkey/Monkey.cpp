// SPDX-License-Identifier: MIT
#include "fuzz/monkey/Monkey.h"

#include "fuzz/Trials.h"
#include "fuzz/monkey/RandomDialogs.h"

#include <QtTest>
#include <QtWidgets>

#include <cstdlib>
#include <vector>

#include <unistd.h>

namespace {

constexpr unsigned hangSeconds = 60; // without a turn of the event loop, whatever else is running
constexpr qint64 slowMilliseconds = 20000; // of processor time, for work that does end
constexpr int maxRefusals = 200;
// Starts another program.
const QString outside = QStringLiteral("cmdSysInfo");

QWidget* Front(QWidget* window)
{
    QWidget* modal = QApplication::activeModalWidget();
    return modal ? modal : window;
}

template<typename Widget>
QList<QWidget*> Usable(const QWidget& front)
{
    QList<QWidget*> usable;
    for (Widget* control : front.findChildren<Widget*>()) {
        if (control->isVisible() && control->isEnabled() && control->objectName() != outside &&
            control->window() == &front)
            usable += control;
    }
    return usable;
}

} // namespace

void Monkey::Play(QWidget& window, int actions)
{
    window_ = &window;
    left_ = actions;
    refusals_ = 0;
    tickBegan_ = Trials::ProcessorMilliseconds();
    QTimer::singleShot(0, this, &Monkey::Tick);
    loop_.exec();
    alarm(0);
}

void Monkey::Tick()
{
    alarm(hangSeconds);
    if (const qint64 took = Trials::ProcessorMilliseconds() - tickBegan_; took > slowMilliseconds)
        trials_.Fault(QStringLiteral("took %1 ms").arg(took));
    const bool isOver = left_ <= 0 || !window_->isVisible();
    if (isOver && !QApplication::activeModalWidget() && !QApplication::activePopupWidget()) {
        loop_.quit();
        return;
    }
    // Armed before the action: what it opens runs an event loop of its own.
    QTimer::singleShot(isOver || trials_.OneIn(12) ? trials_.Below(120) : 0, this, &Monkey::Tick);
    tickBegan_ = Trials::ProcessorMilliseconds();
    if (isOver)
        return CloseFront();
    QWidget* popup = QApplication::activePopupWidget();
    QWidget* front = Front(window_);
    if (front->inherits("LongWorkDialog") && !trials_.OneIn(20))
        return;
    --left_;
    ++visits_[front->metaObject()->className()];
    if (popup)
        ActOnPopup(*popup);
    else
        Act(*front);
}

void Monkey::CloseFront()
{
    QWidget* popup = QApplication::activePopupWidget();
    QWidget* front = popup ? popup : QApplication::activeModalWidget();
    if (front->inherits("LongWorkDialog"))
        return; // goes when its work is done
    Note("close", *front);
    if (++refusals_ > maxRefusals) {
        trials_.Fault(QStringLiteral("does not close"));
        std::_Exit(trials_.Finish());
    }
    front->close();
}

void Monkey::ActOnPopup(QWidget& popup)
{
    if (trials_.OneIn(3))
        return Click(popup, {&popup});
    static const QList<Qt::Key> keys{Qt::Key_Down, Qt::Key_Up,     Qt::Key_Down, Qt::Key_Return,
                                     Qt::Key_End,  Qt::Key_Escape, Qt::Key_A};
    const Qt::Key key = trials_.AnyOf(keys);
    Note("popup key", popup, QString::number(key, 16));
    QTest::keyClick(popup.focusWidget() ? popup.focusWidget() : &popup, key);
}

void Monkey::Act(QWidget& front)
{
    // Sooner where there is less to find.
    const bool isDull = front.inherits("HelpWindow") || front.inherits("frmAbout");
    if (&front != window_ && trials_.OneIn(isDull ? 5 : 25)) {
        Note("close", front);
        front.close();
        return;
    }
    // From there the ways go out.
    if (&front == window_ && trials_.OneIn(2))
        return Choose(front);
    using Action = void (Monkey::*)(QWidget&);
    static const std::vector<std::pair<int, Action>> actions{
        {5, &Monkey::PressButton}, {3, &Monkey::ClickAnywhere}, {5, &Monkey::PressKey},
        {3, &Monkey::Type},        {3, &Monkey::Choose},        {1, &Monkey::Shake}};
    int choice = trials_.Below(20);
    for (const auto& [weight, action] : actions) {
        if ((choice -= weight) < 0)
            return (this->*action)(front);
    }
}

void Monkey::PressButton(QWidget& front)
{
    QList<QWidget*> buttons = Usable<QAbstractButton>(front);
    // The ways back are many enough.
    buttons.removeIf([this](const QWidget* button) {
        static const QStringList waysBack{"cmdExit", "cmdClose", "cmdCancel"};
        return waysBack.contains(button->objectName()) && !trials_.OneIn(8);
    });
    Click(front, buttons);
}

// A picture, where there are some: behind it lies another window.
void Monkey::ClickAnywhere(QWidget& front)
{
    const QList<QWidget*> controls = Usable<QWidget>(front);
    QList<QWidget*> pictures = controls;
    pictures.removeIf([](const QWidget* control) {
        return !control->objectName().startsWith(QLatin1String("imgImage"));
    });
    Click(front, pictures.isEmpty() || trials_.OneIn(2) ? controls : pictures);
}

void Monkey::Click(QWidget& front, const QList<QWidget*>& controls)
{
    QWidget& control = controls.isEmpty() ? front : *trials_.AnyOf(controls);
    const QPoint place(trials_.Below(qMax(1, control.width())),
                       trials_.Below(qMax(1, control.height())));
    const Qt::MouseButton button = trials_.OneIn(3) ? Qt::RightButton : Qt::LeftButton;
    const bool isDouble = trials_.OneIn(5);
    Note(isDouble ? "double click" : "click", control,
         QStringLiteral("%1 %2,%3").arg(button).arg(place.x()).arg(place.y()));
    if (isDouble)
        QTest::mouseDClick(&control, button, {}, place);
    else
        QTest::mouseClick(&control, button, {}, place);
}

void Monkey::PressKey(QWidget& front)
{
    static const QList<Qt::Key> keys{
        Qt::Key_Left,  Qt::Key_Right, Qt::Key_Up,       Qt::Key_Down,     Qt::Key_PageUp,
        Qt::Key_Space, Qt::Key_Home,  Qt::Key_End,      Qt::Key_PageDown, Qt::Key_Return,
        Qt::Key_Plus,  Qt::Key_Minus, Qt::Key_Escape,   Qt::Key_Asterisk, Qt::Key_Tab,
        Qt::Key_F3,    Qt::Key_F2,    Qt::Key_F5,       Qt::Key_F11,      Qt::Key_Delete,
        Qt::Key_A,     Qt::Key_F,     Qt::Key_N,        Qt::Key_Q,        Qt::Key_T,
        Qt::Key_1,     Qt::Key_5,     Qt::Key_Backspace};
    static const QList<Qt::KeyboardModifiers> modifiers{
        Qt::NoModifier,    Qt::NoModifier,      Qt::NoModifier,  Qt::NoModifier,
        Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier, Qt::KeypadModifier};
    QWidget& target = front.focusWidget() ? *front.focusWidget() : front;
    const Qt::Key key = trials_.OneIn(100) ? Qt::Key_F1 : trials_.AnyOf(keys);
    const Qt::KeyboardModifiers modifier = trials_.AnyOf(modifiers);
    Note("key", target, QStringLiteral("%1 with %2").arg(key, 0, 16).arg(modifier, 0, 16));
    QTest::keyClick(&target, key, modifier);
}

void Monkey::Type(QWidget& front)
{
    QList<QWidget*> fields =
        Usable<QLineEdit>(front) + Usable<QTextEdit>(front) + Usable<QPlainTextEdit>(front);
    if (fields.isEmpty())
        return PressKey(front);
    QWidget* field = trials_.AnyOf(fields);
    const QString text = AnyText(trials_);
    Note("type", *field, text.left(30));
    field->setFocus();
    if (auto* line = qobject_cast<QLineEdit*>(field))
        line->insert(text);
    else if (auto* area = qobject_cast<QTextEdit*>(field))
        area->insertPlainText(text);
    else
        qobject_cast<QPlainTextEdit*>(field)->insertPlainText(text);
}

// An entry of the menus, or of a list.
void Monkey::Choose(QWidget& front)
{
    QList<QAction*> entries;
    for (QAction* entry : front.findChildren<QAction*>()) {
        if (entry->isEnabled() && entry->isVisible() && !entry->menu() &&
            (entry->objectName() != QLatin1String("mnuExit") || trials_.OneIn(20)))
            entries += entry;
    }
    QList<QWidget*> lists = Usable<QComboBox>(front) + Usable<QListWidget>(front);
    if (!entries.isEmpty() && (lists.isEmpty() || trials_.OneIn(2))) {
        QAction* entry = trials_.AnyOf(entries);
        Note("choose", front, entry->objectName() + ' ' + entry->text().left(30));
        return entry->trigger();
    }
    if (lists.isEmpty())
        return PressKey(front);
    QWidget* list = trials_.AnyOf(lists);
    const Qt::Key key = trials_.OneIn(2) ? Qt::Key_Down : Qt::Key_Up;
    Note("go along", *list);
    for (int i = trials_.Below(5); i >= 0; --i)
        QTest::keyClick(list, key);
}

void Monkey::Shake(QWidget& front)
{
    if (trials_.OneIn(2)) {
        const QSize size(100 + trials_.Below(1500), 100 + trials_.Below(1000));
        Note("resize", front, QStringLiteral("%1x%2").arg(size.width()).arg(size.height()));
        front.resize(size);
        return;
    }
    const QList<QWidget*> controls = Usable<QWidget>(front);
    QWidget& control = controls.isEmpty() ? front : *trials_.AnyOf(controls);
    Note("wheel", control);
    const QPointF middle = QRectF(control.rect()).center();
    QWheelEvent turn(middle, control.mapToGlobal(middle), {}, {0, trials_.OneIn(2) ? 120 : -120},
                     Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&control, &turn);
}

void Monkey::Note(const char* what, const QWidget& widget, const QString& more)
{
    const QString line =
        QStringLiteral("%1 %2 in %3 %4")
            .arg(QLatin1String(what), widget.objectName(), widget.window()->objectName(), more);
    trials_.AddInput(line.toUtf8());
}
