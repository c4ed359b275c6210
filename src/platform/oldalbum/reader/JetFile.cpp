// SPDX-License-Identifier: MIT
#include "JetFile.h"

#include <sys/stat.h>

#include <algorithm>
#include <cstring>

namespace {

constexpr std::size_t versionAt = 0x14;
constexpr std::size_t passwordAt = 0x42;
constexpr std::size_t creationDateAt = 0x72; // Jet 4: days since 1899-12-30
constexpr std::size_t passwordSizeJet3 = 20; // bytes, padded with zeros
constexpr std::size_t passwordSizeJet4 = 40;

bool HasHead(const char* path)
{
    char head[versionAt + 1] = {};
    std::FILE* file = std::fopen(path, "rb");
    if (!file)
        return false;
    const bool whole = std::fread(head, sizeof head, 1, file) == 1;
    std::fclose(file);
    return whole && std::memcmp(head, "\0\1\0\0Standard Jet DB", 19) == 0 &&
           (head[versionAt] == MDB_VER_JET3 || head[versionAt] == MDB_VER_JET4);
}

// The library converts Jet 4's texts as UCS-2, and makes each half of a surrogate pair a question
// mark.
void ReadSurrogatePairs(MdbHandle* handle)
{
    const iconv_t whole = iconv_open("UTF-8", "UTF-16LE");
    if (whole == iconv_t(-1))
        return;
    iconv_close(handle->iconv_in);
    handle->iconv_in = whole;
}

} // namespace

std::unique_ptr<JetFile> JetFile::Open(const char* path)
{
    if (!HasHead(path))
        return nullptr;
    std::unique_ptr<JetFile> file(new JetFile);
    file->handle_ = mdb_open(path, MDB_NOFLAGS);
    if (!file->handle_)
        return nullptr;
    // The library's own date format omits the century and makes day and month ambiguous.
    mdb_set_date_fmt(file->handle_, "%Y-%m-%d %H:%M:%S");
    if (!IS_JET3(file->handle_))
        ReadSurrogatePairs(file->handle_);
    const auto pageSize = std::size_t(file->handle_->fmt->pg_size);
    struct stat status = {};
    if (stat(path, &status) != 0 || std::size_t(status.st_size) < pageSize)
        return nullptr;
    file->pageCount_ = std::uint32_t(std::size_t(status.st_size) / pageSize);
    // Opening has read the first page and unmasked it in place.
    file->firstPage_.assign(reinterpret_cast<const char*>(file->handle_->pg_buf), pageSize);
    return file;
}

JetFile::~JetFile()
{
    if (handle_)
        mdb_close(handle_);
}

std::string JetFile::GetPassword() const
{
    if (IS_JET3(handle_)) {
        const std::string bytes = firstPage_.substr(passwordAt, passwordSizeJet3);
        return ToUtf8(bytes.substr(0, bytes.find('\0')));
    }
    std::string bytes = firstPage_.substr(passwordAt, passwordSizeJet4);
    double created = 0;
    std::memcpy(&created, firstPage_.data() + creationDateAt, sizeof created);
    const bool isDate = created > -1e9 && created < 1e9;
    const auto mask = std::uint32_t(isDate ? std::int32_t(created) : 0);
    std::size_t length = bytes.size();
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = char(static_cast<unsigned char>(bytes[i]) ^ (mask >> (8 * (i % 4))));
    for (std::size_t i = bytes.size(); i > 0; i -= 2) {
        if (bytes[i - 2] == 0 && bytes[i - 1] == 0)
            length = i - 2;
    }
    return ToUtf8(std::string_view(bytes).substr(0, length));
}

std::string JetFile::ToUtf8(std::string_view bytes) const
{
    // The library skips two bytes at a time over what it cannot convert, and would miss an odd end.
    const bool isPlainJet4 = !IS_JET3(handle_) && bytes.substr(0, 2) != "\xFF\xFE";
    if (isPlainJet4 && bytes.size() % 2 == 1)
        bytes.remove_suffix(1);
    if (bytes.empty())
        return {};
    // No character takes more than three bytes for each byte here; one is for the closing zero.
    std::string text(bytes.size() * 3 + 1, '\0');
    const int size =
        mdb_unicode2ascii(handle_, bytes.data(), bytes.size(), text.data(), text.size());
    text.resize(std::min(std::size_t(std::max(size, 0)), text.size()));
    return text;
}
