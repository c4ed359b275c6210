// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <functional>

#include <sys/types.h>

// Work in a process of its own, which can be killed; what it writes to out comes here. It is forked
// off this one, so nothing may be open and no thread may run here.
class Fork
{
public:
    // What the work throws makes it fail, and is told on the standard error output.
    explicit Fork(const std::function<void(int out)>& work);
    ~Fork();
    Fork(const Fork&) = delete;
    Fork& operator=(const Fork&) = delete;

    // Waits for the next byte; false at the end of what it writes.
    bool WaitForByte() const;
    void Kill() const;
    // Waits for its end. Returns what it has written since.
    QByteArray Finish();
    // How it has ended.
    bool HasSucceeded() const { return status_ == 0; }
    bool WasKilled() const;

private:
    pid_t process_;
    int in_;
    int status_ = -1;
};

void WriteTo(int out, const QByteArray& bytes);
