// SPDX-License-Identifier: MIT
#include "platform/helper/child/RequestReader.h"

#include <algorithm>
#include <array>
#include <cerrno>

#include <unistd.h>

namespace {

constexpr std::size_t requestHead = 8; // bytes

} // namespace

bool RequestReader::Fill(std::size_t size)
{
    if (buffer_.size() - used_ >= size)
        return true;
    buffer_.erase(0, used_);
    used_ = 0;
    std::array<char, 64 * 1024> chunk{};
    while (buffer_.size() < size) {
        beforeWaiting_();
        const ssize_t got = read(STDIN_FILENO, chunk.data(), chunk.size());
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0)
            return false;
        buffer_.append(chunk.data(), std::size_t(got));
    }
    return true;
}

bool RequestReader::Next()
{
    if (!Fill(requestHead))
        return false;
    std::string_view head(buffer_.data() + used_, requestHead);
    number_ = TakeNumber(head);
    const std::size_t size = TakeNumber(head);
    if (!Fill(requestHead + size))
        return false;
    bytes_.assign(buffer_, used_ + requestHead, size);
    used_ += requestHead + size;
    return true;
}

std::uint32_t TakeNumber(std::string_view& from)
{
    std::uint32_t number = 0;
    if (from.size() < 4) {
        from = {};
        return 0;
    }
    for (unsigned byte = 0; byte < 4; ++byte)
        number |= std::uint32_t(static_cast<unsigned char>(from[byte])) << (8 * byte);
    from.remove_prefix(4);
    return number;
}

std::string_view TakeText(std::string_view& from)
{
    const std::size_t size = std::min<std::size_t>(TakeNumber(from), from.size());
    const std::string_view text = from.substr(0, size);
    from.remove_prefix(size);
    return text;
}
