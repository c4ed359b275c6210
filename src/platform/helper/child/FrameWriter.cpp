// SPDX-License-Identifier: MIT
#include "platform/helper/child/FrameWriter.h"

#include <unistd.h>

#include <cerrno>
#include <cstdlib>

namespace {

constexpr std::size_t writeAt = 32 * 1024; // bytes; half a pipe's buffer

void PutNumber(std::string& text, std::size_t at, std::uint32_t number)
{
    for (int byte = 0; byte < 4; ++byte)
        text[at + std::size_t(byte)] = char(number >> (8 * byte));
}

} // namespace

void FrameWriter::Begin(unsigned char kind)
{
    frameStart_ = buffer_.size();
    buffer_.push_back(char(kind));
    buffer_.append(4, '\0');
}

void FrameWriter::Number(std::uint32_t number)
{
    buffer_.append(4, '\0');
    PutNumber(buffer_, buffer_.size() - 4, number);
}

void FrameWriter::Text(std::string_view text, std::uint32_t mark)
{
    Number(std::uint32_t(text.size()) | mark);
    buffer_.append(text);
}

void FrameWriter::End()
{
    PutNumber(buffer_, frameStart_ + 1, std::uint32_t(GetFrameSize() - FrameStream::frameHead));
    if (buffer_.size() >= writeAt)
        Flush();
}

void FrameWriter::Flush()
{
    std::string_view left = buffer_;
    while (!left.empty()) {
        const ssize_t written = write(descriptor_, left.data(), left.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            std::_Exit(EXIT_FAILURE);
        left.remove_prefix(std::size_t(written));
    }
    buffer_.clear();
}
