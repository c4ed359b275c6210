// SPDX-License-Identifier: MIT
#include "platform/files/FolderListing.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

#include <algorithm>
#include <filesystem>
#include <string_view>
#include <system_error>

namespace {

namespace fs = std::filesystem;

fs::path ToNative(const QString& path)
{
    const QByteArray utf8 = path.toUtf8();
    return fs::path(std::u8string(utf8.begin(), utf8.end()));
}

void AddName(FolderListing& listing, const fs::path& path)
{
    const std::u8string name = path.filename().u8string();
    const QByteArrayView bytes(reinterpret_cast<const char*>(name.data()), qsizetype(name.size()));
    const QString text = QString::fromUtf8(bytes);
    if (text.startsWith(u'.'))
        return;
    const bool isDoubtful = text.contains(QChar::ReplacementCharacter);
    const bool isUsable = !isDoubtful || text.toUtf8() == bytes;
    (isUsable ? listing.names : listing.unusable).append(text);
}

bool ComesBefore(const QString& first, const QString& second)
{
    const int order = first.compare(second, Qt::CaseInsensitive);
    return order != 0 ? order < 0 : first < second;
}

// An entry's kind comes with its name; only links need a look-up each.
template<typename IsMeant>
FolderListing List(const QString& folder, IsMeant isMeant)
{
    FolderListing listing;
    std::error_code error;
    fs::directory_iterator entry(ToNative(folder), error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        std::error_code unknown;
        if (isMeant(*entry, unknown))
            AddName(listing, entry->path());
    }
    if (error) {
        listing.error =
            QCoreApplication::translate("FolderListing", "The folder '%1' cannot be read: %2")
                .arg(QDir::toNativeSeparators(folder), QString::fromStdString(error.message()));
    }
    std::sort(listing.names.begin(), listing.names.end(), ComesBefore);
    return listing;
}

QString ExistingFolder(QStandardPaths::StandardLocation kind)
{
    const QString folder = QStandardPaths::writableLocation(kind);
    return QDir::toNativeSeparators(QDir(folder).exists() ? folder : QDir::homePath());
}

} // namespace

FolderListing ListFiles(const QString& folder)
{
    return List(folder, [](const fs::directory_entry& entry, std::error_code& error) {
        return entry.is_regular_file(error);
    });
}

FolderListing ListFolders(const QString& folder)
{
    return List(folder, [](const fs::directory_entry& entry, std::error_code& error) {
        return entry.is_directory(error);
    });
}

QString PathIn(const QString& folder, const QString& name)
{
    const QChar separator = QDir::separator();
    return folder.endsWith(separator) ? folder + name : folder + separator + name;
}

QString UsersDocumentFolder()
{
    return ExistingFolder(QStandardPaths::DocumentsLocation);
}

QString UsersPictureFolder()
{
    return ExistingFolder(QStandardPaths::PicturesLocation);
}
