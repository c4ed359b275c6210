// SPDX-License-Identifier: MIT
// Damaged pictures that say something of themselves, small ones made here and those of the folders
// given, and damaged sidecars. Each file gets an answer, in time and in order; nothing that the
// helper meets may end this program. What a sidecar becomes can be read again, and one that cannot
// be taken over stays as it is.
#include "fuzz/Trials.h"
#include "platform/metadata/MetadataReader.h"
#include "platform/metadata/SidecarWriter.h"
#include "support/TestFiles.h"
#include "tests/platform/metadata/PictureTexts.h"

#include <QCoreApplication>
#include <QDirIterator>
#include <QTemporaryDir>

#include <algorithm>
#include <array>
#include <cstdio>

namespace {

constexpr int maxSeconds = 120; // of a batch, under sanitizers
constexpr int filesPerBatch = 200;

QList<QByteArray> MadePictures(const QString& folder)
{
    const QString path = folder + QStringLiteral("/made.jpg");
    QList<QByteArray> files;
    const QByteArray date("1998:07:14 12:00:00\0", 20);
    for (const PictureTexts& texts :
         {PictureTexts{.xmp = XmpCaption("here") + XmpKeywords({"a", "b, c"})},
          PictureTexts{.iptc = {{120, "\xC9t\xE9"}, {25, "lake"}, {25, "sea"}, {55, "19980714"}}},
          PictureTexts{.exif = {{0x010E, QByteArray("A cup of tea\0", 13)},
                                {0x9C9C, QByteArray("t\0e\0x\0t\0\0\0", 10)},
                                {0x9C9E, QByteArray("N\0;\0S\0\0\0", 8)},
                                {0x9003, date},
                                {0x9286, QByteArray("UNICODE\0n\0o\0t\0", 14)}},
          .comment = "said"}}) {
        WritePicture(path, texts);
        files += ReadFile(path);
    }
    return files;
}

QList<QByteArray> FilesOf(const QStringList& folders)
{
    QList<QByteArray> files;
    for (const QString& folder : folders) {
        QDirIterator each(folder, QDir::Files, QDirIterator::Subdirectories);
        while (each.hasNext())
            files += ReadFile(each.next());
    }
    return files;
}

// Sizes and offsets stand at the beginning, and most of what is read.
void Damage(QByteArray& bytes, Trials& trials)
{
    for (int i = trials.Below(12); i >= 0 && !bytes.isEmpty(); --i) {
        const qsizetype reach = trials.OneIn(2) ? 4096 : 65536;
        const int at = trials.Below(std::min(bytes.size(), reach));
        switch (trials.Below(6)) {
        case 0:
            bytes[at] = trials.OneIn(2) ? '\xFF' : '\0';
            break;
        case 1:
            bytes[at] ^= char(1U << trials.Below(8));
            break;
        case 2:
            bytes.insert(at, bytes.mid(trials.Below(bytes.size()), trials.Below(200)));
            break;
        case 3:
            if (trials.OneIn(8))
                bytes.truncate(at);
            break;
        default:
            bytes[at] = char(trials.Random()());
        }
    }
}

QByteArray SidecarBytes(Trials& trials)
{
    static constexpr std::array elements{
        "<f:secret xmlns:f=\"http://f.example/\">kept</f:secret>",
        "<photoshop:SidecarForExtension>jpg</photoshop:SidecarForExtension>",
        "<dc:title><rdf:Alt><rdf:li xml:lang=\"fr\">titre</rdf:li></rdf:Alt></dc:title>",
        "<m:all xmlns:m=\"http://m.example/\" rdf:parseType=\"Resource\"><m:one>1</m:one></m:all>"};
    QByteArray bytes = XmpCaption("theirs") + XmpKeywords({"x", "y"});
    for (const char* element : elements) {
        if (trials.OneIn(2))
            bytes += element;
    }
    bytes = XmpPacket(bytes);
    if (trials.OneIn(2))
        Damage(bytes, trials);
    return bytes;
}

// Reads all in slices, as a window does.
std::vector<FileMetadata> ReadAll(const QStringList& paths, Trials& trials)
{
    std::vector<FileMetadata> all;
    MetadataReader reader(paths);
    while (reader.Work(std::chrono::milliseconds(20),
                       [&all, &trials](int number, const FileMetadata& metadata) {
                           if (number != int(all.size()))
                               trials.Fault(QStringLiteral("an answer out of turn"));
                           all.push_back(metadata);
                       }))
        ;
    if (all.size() != std::size_t(paths.size()))
        trials.Fault(QStringLiteral("%1 answers for %2 files").arg(all.size()).arg(paths.size()));
    return all;
}

void WriteSidecars(const QStringList& paths, Trials& trials)
{
    SidecarWriter writer(int(paths.size()), [&paths](int number) {
        return SidecarContent{paths[number],
                              QStringLiteral("mine"),
                              {QStringLiteral("word")},
                              {{QStringLiteral("Legend"), QStringLiteral("\"mine\"")}}};
    });
    QList<QByteArray> before;
    for (const QString& path : paths)
        before += ReadFile(path + QStringLiteral(".xmp"));
    QStringList troubles;
    while (writer.Work(
        std::chrono::milliseconds(20),
        [&troubles](int, const QString&, const QString& trouble) { troubles += trouble; }))
        ;
    const std::vector<FileMetadata> after = ReadAll(paths, trials);
    for (qsizetype i = 0; i < paths.size() && i < troubles.size(); ++i) {
        const QByteArray now = ReadFile(paths[i] + QStringLiteral(".xmp"));
        const bool isMine = after[std::size_t(i)].ownFields.value(QStringLiteral("Legend")) ==
                            QLatin1String("\"mine\"");
        if (!troubles[i].isEmpty() && now != before[i])
            trials.Fault(QStringLiteral("a refused sidecar has changed"));
        else if (troubles[i].isEmpty() && !isMine &&
                 after[std::size_t(i)].state != FileMetadata::State::OtherFormat)
            trials.Fault(QStringLiteral("what was written is not read: ") +
                         QString::fromUtf8(now.left(2000)));
    }
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    Trials trials(argc, argv, maxSeconds);
    const QTemporaryDir folder;
    const QList<QByteArray> files = MadePictures(folder.path()) + FilesOf(trials.GetFiles());
    int read = 0;
    int unreadable = 0;
    const int status = trials.Run([&] {
        QStringList paths;
        QStringList withSidecars;
        for (int i = 0; i < filesPerBatch; ++i) {
            QByteArray bytes = trials.AnyOf(files);
            if (!trials.OneIn(20))
                Damage(bytes, trials);
            paths += folder.filePath(QStringLiteral("%1.jpg").arg(i));
            WriteFile(paths.back(), bytes);
            QFile::remove(paths.back() + QStringLiteral(".xmp"));
            if (i % 10 != 0)
                continue;
            WriteFile(paths.back(), files.front());
            WriteFile(paths.back() + QStringLiteral(".xmp"), SidecarBytes(trials));
            withSidecars += paths.back();
        }
        for (const FileMetadata& metadata : ReadAll(paths, trials)) {
            ++read;
            const bool isRead = metadata.state == FileMetadata::State::Read;
            unreadable += isRead ? 0 : 1;
            if (isRead)
                trials.CountAccepted();
        }
        WriteSidecars(withSidecars, trials);
    });
    std::printf("%d files, %d of them not readable to the end\n", read, unreadable);
    return status;
}
