// SPDX-License-Identifier: MIT
#include "platform/data/DatabaseFile.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>

namespace {

constexpr int firstBlock = 1024; // the smallest page that encrypted albums are written with

// At least three bytes each: an encrypted album begins with random bytes, which would match a
// two-byte magic number once in 65,536 albums.
bool HasKnownMagic(const QByteArray& head)
{
    static const std::array<QByteArray, 20> magics{
        "\xFF\xD8\xFF",
        "\x89PNG",
        "GIF8",
        "RIFF",
        "PK\x03\x04",
        "%PDF",
        "\x1F\x8B\x08",
        "BZh",
        "\xFD"
        "7zXZ",
        "7z\xBC\xAF",
        "Rar!",
        "\x28\xB5\x2F\xFD",
        "\x7F"
        "ELF",
        QByteArray("II*\0", 4),
        QByteArray("MM\0*", 4),
        "Salted__",
        "OggS",
        "ID3",
        "wOF",
        "\xCA\xFE\xBA\xBE",
    };
    return std::any_of(magics.begin(), magics.end(),
                       [&head](const QByteArray& magic) { return head.startsWith(magic); });
}

// Encrypted pages look like random bytes. Chi-square over the byte values of the first 1,024 bytes
// (255 degrees of freedom): 40,000 random blocks stayed below 363, deflated data begins at 690.
bool LooksRandom(const QByteArray& block)
{
    std::array<int, 256> counts{};
    for (const char byte : block)
        ++counts[static_cast<unsigned char>(byte)];
    const double expected = double(block.size()) / double(counts.size());
    double chiSquare = 0;
    for (const int count : counts)
        chiSquare += (count - expected) * (count - expected) / expected;
    return chiSquare < 400;
}

bool MayBeEncrypted(const QByteArray& head, qint64 size)
{
    return head.size() == firstBlock && size % 512 == 0 && !HasKnownMagic(head) &&
           LooksRandom(head);
}

DatabaseFileKind KindOfContents(QFile& file)
{
    const QByteArray head = file.read(firstBlock);
    if (head.isEmpty())
        return file.error() == QFile::NoError ? DatabaseFileKind::Empty
                                              : DatabaseFileKind::Unopenable;
    if (head.startsWith(QByteArray("SQLite format 3\0", 16)))
        return DatabaseFileKind::Plain;
    const QByteArray format = head.mid(4, 15);
    if (format == "Standard Jet DB" || format == "Standard ACE DB")
        return DatabaseFileKind::OldAlbum;
    return MayBeEncrypted(head, file.size()) ? DatabaseFileKind::Encrypted
                                             : DatabaseFileKind::NotADatabase;
}

// The permission bits are checked besides the right to write: an administrator can write
// everything, but a file that its owner protected must not change.
bool IsProtected(const QFileInfo& file)
{
    constexpr auto anyWrite = QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;
    return !file.isWritable() || !(file.permissions() & anyWrite);
}

} // namespace

DatabaseFileKind KindOfDatabaseFile(const QString& path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return DatabaseFileKind::Missing;
    if (!info.isFile())
        return DatabaseFileKind::Unopenable;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return DatabaseFileKind::Unopenable;
    return KindOfContents(file);
}

bool IsReadOnlyDatabaseFile(const QString& path)
{
    const QFileInfo file(path);
    return IsProtected(file) || !QFileInfo(file.absolutePath()).isWritable();
}
