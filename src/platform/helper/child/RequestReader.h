// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

// Reads numbered requests from standard input, each its number, its size and its bytes.
class RequestReader
{
public:
    // beforeWaiting is called each time when no more input is at hand.
    explicit RequestReader(std::function<void()> beforeWaiting)
        : beforeWaiting_(std::move(beforeWaiting))
    {
    }

    // False at the end of the input.
    bool Next();
    std::uint32_t GetNumber() const { return number_; }
    const std::string& GetBytes() const { return bytes_; }

private:
    bool Fill(std::size_t size);

    std::function<void()> beforeWaiting_;
    std::string buffer_;
    std::size_t used_ = 0;
    std::uint32_t number_ = 0;
    std::string bytes_;
};

// Takes numbers and texts off the front of a request. Missing ones read as 0 or empty.
std::uint32_t TakeNumber(std::string_view& from);
std::string_view TakeText(std::string_view& from);
