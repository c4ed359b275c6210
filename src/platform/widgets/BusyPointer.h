// SPDX-License-Identifier: MIT
#pragma once

// Shows the busy mouse pointer while one lives; they may be nested. A hidden pointer stays hidden.
class BusyPointer
{
public:
    BusyPointer();
    ~BusyPointer();
    BusyPointer(const BusyPointer&) = delete;
    BusyPointer& operator=(const BusyPointer&) = delete;

private:
    bool isShown_;
};
