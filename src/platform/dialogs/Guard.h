// SPDX-License-Identifier: MIT
#pragma once

#include <exception>
#include <functional>
#include <utility>

// Where errors reach the user: whatever an action throws is shown in a critical message box and the
// program goes on. Exceptions must not pass through the toolkit's own frames, so every handler is
// connected through Guarded.

void ReportError(const std::exception& error);

// Returns false when the action threw and the error was shown.
bool RunGuarded(const std::function<void()>& action);

// connect(button, &QPushButton::clicked, this, Guarded(this, &frmX::cmdY_Click));
template<typename Form, typename Result>
auto Guarded(Form* form, Result (Form::*handler)())
{
    return [form, handler] { RunGuarded([form, handler] { (form->*handler)(); }); };
}
