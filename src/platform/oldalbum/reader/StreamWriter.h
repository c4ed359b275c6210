// SPDX-License-Identifier: MIT
#pragma once

#include "platform/oldalbum/OldAlbumStream.h"

#include <string>
#include <string_view>

// Builds frames and writes them out. Ends the program when nobody reads them any more.
class StreamWriter
{
public:
    explicit StreamWriter(int descriptor) : descriptor_(descriptor) {}

    void Begin(OldAlbumStream::Frame frame);
    void Number(std::uint32_t number);
    void Text(std::string_view text, std::uint32_t mark = 0);
    void End();

    // Bytes so far in the current frame.
    std::size_t GetFrameSize() const { return buffer_.size() - frameStart_; }

    void Flush();

private:
    int descriptor_;
    std::string buffer_;
    std::size_t frameStart_ = 0;
};
