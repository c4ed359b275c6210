// SPDX-License-Identifier: MIT
// A source of every program that measures its own memory: the address sanitizer keeps what was
// given back, by default so much of it that several hundred megabytes count as in use.
#ifdef __SANITIZE_ADDRESS__
extern "C" const char* __asan_default_options();
extern "C" const char* __asan_default_options()
{
    return "quarantine_size_mb=1";
}
#endif
