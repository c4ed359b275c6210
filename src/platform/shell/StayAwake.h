// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <memory>

// Asks the desktop through the session bus to keep the screen bright and unlocked. Every call
// returns at once; nothing happens without a bus, or where the desktop does not offer this.
class StayAwake
{
public:
    // Uses the session bus, which is looked up when first needed.
    StayAwake();
    // Uses a bus that is already connected under that name.
    explicit StayAwake(const QString& busName);
    // Ends the request.
    ~StayAwake();
    StayAwake(const StayAwake&) = delete;
    StayAwake& operator=(const StayAwake&) = delete;

    void Set(bool on);

private:
    struct State;
    std::shared_ptr<State> state_; // shared with pending answers
};
