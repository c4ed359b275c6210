// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>

// What a helper, a small program that reads files from strangers, writes to its standard output. A
// frame is its kind (one byte), the size of its contents (four bytes) and the contents. All numbers
// are 32-bit little-endian; texts are their size, then their bytes.
namespace FrameStream {

constexpr std::size_t frameHead = 5; // bytes

// Maximum bytes of a frame's contents; the largest row of an album and something for its head.
constexpr std::uint32_t largestFrame = 64 * 1024 * 1024 + 64 * 1024;

} // namespace FrameStream
