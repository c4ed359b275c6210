// SPDX-License-Identifier: MIT
#pragma once

// Shows the busy mouse pointer while one lives; they may lie inside each other. A pointer that is
// hidden stays so.
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
