// SPDX-License-Identifier: MIT
#pragma once

#include "core/Album.h"
#include "support/AlbumFixture.h"
#include "support/ScriptedDialogs.h"

#include <QtTest>

#include <memory>

// A test whose functions each get a world, a script of boxes, and a window that goes before both.
class WorldTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        world_ = MakeWorld();
        dialogs_ = std::make_unique<ScriptedDialogs>();
    }

    void cleanup()
    {
        front_.reset();
        dialogs_.reset();
        world_.reset();
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

    virtual std::unique_ptr<World> MakeWorld() { return std::make_unique<World>(); }

    std::unique_ptr<World> world_;
    std::unique_ptr<ScriptedDialogs> dialogs_;

private:
    std::unique_ptr<QWidget> front_;
};

// The same in a world with an album that is open.
class AlbumTest : public WorldTest
{
    Q_OBJECT

protected:
    std::unique_ptr<World> MakeWorld() override
    {
        auto world = std::make_unique<AlbumFixture>();
        album_ = world.get();
        return world;
    }

    AlbumFixture* album_ = nullptr; // goes with world_
};
