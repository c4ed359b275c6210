// SPDX-License-Identifier: MIT
#pragma once

#include "platform/dialogs/Guard.h"
#include "platform/widgets/ThemedIcon.h"

#include <QPushButton>

#include <initializer_list>

// A button of a form, the name of its icon ("" for none), and what a click on it runs.
template<typename Form>
struct FormButton
{
    QPushButton* button;
    const char* icon;
    void (Form::*handler)();
};

// Errors that a handler throws are reported in a message box.
template<typename Form>
void ConnectButtons(Form* form, std::initializer_list<FormButton<Form>> buttons)
{
    for (const FormButton<Form>& entry : buttons) {
        entry.button->setIcon(ThemedIcon(QString::fromLatin1(entry.icon)));
        QObject::connect(entry.button, &QPushButton::clicked, form, Guarded(form, entry.handler));
    }
}
