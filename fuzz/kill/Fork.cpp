// SPDX-License-Identifier: MIT
#include "fuzz/kill/Fork.h"

#include <QtGlobal>

#include <array>
#include <csignal>
#include <cstdio>
#include <exception>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr unsigned maxSeconds = 600; // for a process that is not killed, on a busy machine

} // namespace

Fork::Fork(const std::function<void(int)>& work)
{
    std::fflush(stdout);
    std::array<int, 2> pipe{};
    if (pipe2(pipe.data(), O_CLOEXEC) != 0 || (process_ = fork()) < 0)
        qFatal("no process can be made");
    if (process_ != 0) {
        close(pipe[1]);
        in_ = pipe[0];
        return;
    }
    close(pipe[0]);
    std::signal(SIGALRM, SIG_DFL);
    alarm(maxSeconds);
    int status = 0;
    try {
        work(pipe[1]);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        status = 1;
    }
    _exit(status);
}

Fork::~Fork()
{
    if (process_ > 0) {
        Kill();
        Finish();
    }
}

bool Fork::WaitForByte() const
{
    char byte = 0;
    return read(in_, &byte, 1) == 1;
}

void Fork::Kill() const
{
    kill(process_, SIGKILL);
}

QByteArray Fork::Finish()
{
    QByteArray bytes;
    std::array<char, 65536> part{};
    for (ssize_t count = 0; (count = read(in_, part.data(), part.size())) > 0;)
        bytes.append(part.data(), count);
    close(in_);
    waitpid(process_, &status_, 0);
    process_ = 0;
    return bytes;
}

bool Fork::WasKilled() const
{
    return WIFSIGNALED(status_) && WTERMSIG(status_) == SIGKILL;
}

void WriteTo(int out, const QByteArray& bytes)
{
    for (qsizetype done = 0; done < bytes.size();) {
        const ssize_t count = write(out, bytes.constData() + done, size_t(bytes.size() - done));
        if (count <= 0)
            qFatal("nobody reads");
        done += count;
    }
}
