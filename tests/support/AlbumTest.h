// SPDX-License-Identifier: MIT
#pragma once

#include "support/AlbumFixture.h"
#include "support/ScriptedDialogs.h"

#include <QtTest>

#include <memory>

// A test whose functions each get an album, a script of boxes, and a window that goes before both.
class AlbumTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        album_ = std::make_unique<AlbumFixture>();
        dialogs_ = std::make_unique<ScriptedDialogs>();
    }

    void cleanup()
    {
        front_.reset();
        dialogs_.reset();
        album_.reset();
    }

protected:
    using Icon = Dialogs::Icon;
    using Buttons = Dialogs::Buttons;
    using Answer = Dialogs::Answer;

    template<typename Window, typename... Arguments>
    Window* Make(const Arguments&... arguments)
    {
        auto window = std::make_unique<Window>(arguments...);
        Window* made = window.get();
        front_ = std::move(window);
        return made;
    }

    std::unique_ptr<AlbumFixture> album_;
    std::unique_ptr<ScriptedDialogs> dialogs_;

private:
    std::unique_ptr<QWidget> front_;
};
