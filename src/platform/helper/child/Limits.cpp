// SPDX-License-Identifier: MIT
#include "platform/helper/child/Limits.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/time.h>
#include <unistd.h>

void LimitMemory([[maybe_unused]] std::size_t bytes)
{
    const rlimit none = {0, 0};
    setrlimit(RLIMIT_CORE, &none);
#ifndef __SANITIZE_ADDRESS__ // reserves far more address space than it uses
    const rlimit memory = {bytes, bytes};
    setrlimit(RLIMIT_AS, &memory);
#endif
}

void LimitProcessorTime(long seconds)
{
    itimerval time = {};
    time.it_value.tv_sec = seconds;
    setitimer(ITIMER_PROF, &time, nullptr);
}

int TakeOutput()
{
    const int output = dup(STDOUT_FILENO);
    const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
    dup2(nowhere, STDOUT_FILENO);
    dup2(nowhere, STDERR_FILENO);
    return output;
}
