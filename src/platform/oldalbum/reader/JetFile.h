// SPDX-License-Identifier: MIT
#pragma once

// Included first: the library's own header includes it inside extern "C".
#include <glib.h>

#include <mdbtools.h>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

// A Jet database file, opened for reading. Jet 3 has pages of 2,048 bytes and texts in a code page,
// Jet 4 pages of 4,096 bytes and texts in Unicode.
class JetFile
{
public:
    // Null when the file is not Jet 3 or Jet 4, or its first page cannot be read.
    static std::unique_ptr<JetFile> Open(const char* path);
    ~JetFile();
    JetFile(const JetFile&) = delete;
    JetFile& operator=(const JetFile&) = delete;

    MdbHandle* GetHandle() const { return handle_; }
    std::uint32_t GetPageCount() const { return pageCount_; }

    // The password stored in the first page, empty when there is none. It protects nothing: the
    // other pages can be read without it.
    std::string GetPassword() const;

    // Converts a text of the file to UTF-8.
    std::string ToUtf8(std::string_view bytes) const;

private:
    JetFile() = default;

    MdbHandle* handle_ = nullptr;
    std::uint32_t pageCount_ = 0;
    std::string firstPage_; // with its header unmasked
};
