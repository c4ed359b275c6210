// SPDX-License-Identifier: MIT
#pragma once

#include "platform/helper/FrameStream.h"

#include <string>
#include <string_view>

// Builds frames and writes them out. Ends the program when nobody reads them any more.
class FrameWriter
{
public:
    explicit FrameWriter(int descriptor) : descriptor_(descriptor) {}

    void Begin(unsigned char kind);
    void Number(std::uint32_t number);
    // mark: bits to set in the size.
    void Text(std::string_view text, std::uint32_t mark = 0);
    void End();
    // Drops what was written since Begin.
    void Cancel() { buffer_.resize(frameStart_); }

    // Bytes so far in the current frame.
    std::size_t GetFrameSize() const { return buffer_.size() - frameStart_; }

    void Flush();

private:
    int descriptor_;
    std::string buffer_;
    std::size_t frameStart_ = 0;
};
