// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <memory>

// Asks the desktop to keep the screen bright and unlocked, through its session bus. Every call
// returns at once; without a bus, or with a desktop that does not offer this, nothing happens.
class StayAwake
{
public:
    // The session bus, looked for when it is first needed.
    StayAwake();
    // A bus that is connected under that name.
    explicit StayAwake(const QString& busName);
    // Lets the screen go.
    ~StayAwake();
    StayAwake(const StayAwake&) = delete;
    StayAwake& operator=(const StayAwake&) = delete;

    void Set(bool on);

private:
    struct State;
    std::shared_ptr<State> state_; // shared with the answers that are still to come
};
