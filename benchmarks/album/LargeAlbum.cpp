// SPDX-License-Identifier: MIT
#include "LargeAlbum.h"

#include "../pictures/PaintedPictures.h"

#include "core/Album.h"
#include "core/AlbumSets.h"
#include "platform/data/CipherFile.h"

#include <QFile>

#include <cstdlib>

using namespace GeneralModule;

namespace {

constexpr int perFolder = 500;
constexpr int paintedFiles = 21; // as many as a screen holds
constexpr QSize paintedSize(1200, 800);

const QString writtenText =
    QStringLiteral("The path went down through the woods until the water lay before us. ")
        .repeated(12);

void CopyOver(const QString& source, const QString& target)
{
    QFile::remove(target);
    if (!QFile::copy(source, target))
        qFatal("%s cannot be written", qPrintable(target));
    QFile::setPermissions(target, QFile::ReadOwner | QFile::WriteOwner);
}

} // namespace

LargeAlbum::LargeAlbum(int pictures) : pictures_(pictures)
{
    CopyOver(QStringLiteral(TEMPLATE_FILE), MadePath(Lock::None));
    if (!OpenAlbum(MadePath(Lock::None)))
        std::abort();
    Make();
    ReleaseAlbum();
    QFile locked(MadePath(Lock::Password));
    if (!locked.open(QIODevice::WriteOnly))
        std::abort();
    locked.close();
    CopyEncrypted(MadePath(Lock::None), MadePath(Lock::Password), password);
}

LargeAlbum::~LargeAlbum()
{
    Front.reset();
    ReleaseAlbum();
}

QString LargeAlbum::MadePath(Lock lock) const
{
    return folder_.filePath(lock == Lock::None ? QStringLiteral("made")
                                               : QStringLiteral("made locked"));
}

QString LargeAlbum::GetPath(Lock lock) const
{
    return folder_.filePath(lock == Lock::None ? QStringLiteral("story.alb")
                                               : QStringLiteral("locked story.alb"));
}

QString LargeAlbum::FreePath()
{
    return folder_.filePath(QStringLiteral("free %1").arg(++freePaths_));
}

void LargeAlbum::Close(Lock lock)
{
    Front.reset();
    ReleaseAlbum();
    isUnchanged_ = false;
    CopyOver(MadePath(lock), GetPath(lock));
}

void LargeAlbum::OpenToChange(Lock lock)
{
    Close(lock);
    if (!OpenAlbum(GetPath(lock), lock == Lock::None ? QString() : password))
        std::abort();
}

void LargeAlbum::OpenToRead()
{
    Front.reset();
    if (isUnchanged_ && IsAlbumOpen())
        return;
    OpenToChange();
    isUnchanged_ = true;
}

QString LargeAlbum::FolderOf(int picture)
{
    return QStringLiteral("/home/anna/pictures/%1/").arg(picture / perFolder);
}

QString LargeAlbum::NameOf(int picture)
{
    return QStringLiteral("holiday at the sea %1.jpg").arg(picture);
}

void LargeAlbum::Make()
{
    const QStringList files = PaintPictures(QDir(folder_.path()), paintedSize, paintedFiles);
    if (files.isEmpty())
        std::abort();
    sqlite3* engine = AlbumDatabase->GetEngine();
    AlbumDatabase->Execute("BEGIN");
    FillPictures(engine, files);
    FillChapters(engine);
    FillParagraphs(engine);
    FillValues(engine);
    AlbumDatabase->Execute("COMMIT");
}

// One picture in twenty shows a lake, one in two hundred a bridge; one in ten has no values yet.
void LargeAlbum::FillPictures(sqlite3* engine, const QStringList& files) const
{
    Statement image(engine, "INSERT INTO Image (File,SourceFile,Car0,Car1,Car2,Car3,Car4,Car5,Car6,"
                            "Car7,Car8,Car9,Car10,Car11,Legend) VALUES (?1,?2,?3,?4,?5,'-','-','-',"
                            "'-','-','-','-','-','-','A boat on the water')");
    const QString none = QStringLiteral("-");
    for (int i = 0; i < pictures_; ++i) {
        const bool isIndexed = i % 10 != 9;
        image.Bind(1, FolderOf(i) + NameOf(i));
        image.Bind(2, files[i % files.size()]);
        image.Bind(3, isIndexed ? QStringLiteral("Value %1").arg(i % 4) : none);
        image.Bind(4, i % 20 == 0 ? QStringLiteral("Lake") : none);
        image.Bind(5, i % 200 == 0 ? QStringLiteral("Bridge") : none);
        image.Run();
    }
}

void LargeAlbum::FillChapters(sqlite3* engine) const
{
    Statement chapter(engine, "INSERT INTO Chapter (Name,FirstParagraph,PreviousChapter,"
                              "NextChapter) VALUES (?1,?2,?3,?4)");
    for (int c = 1; c <= LastChapter(); ++c) {
        const int before =
            c <= longChapter ? (c - 1) * perChapter : CountLong() + (c - 2) * perChapter;
        chapter.Bind(1, NameOfChapter(c));
        chapter.Bind(2, qint64(c == LastChapter() ? 0 : before + 1));
        chapter.Bind(3, qint64(c - 1));
        chapter.Bind(4, qint64(c < LastChapter() ? c + 1 : 0));
        chapter.Run();
    }
}

// Every other paragraph chooses the bridges, one in twenty the lakes; each has a picture linked.
void LargeAlbum::FillParagraphs(sqlite3* engine) const
{
    Statement paragraph(engine,
                        "INSERT INTO Paragraph (Chapter,PreviousParagraph,NextParagraph,"
                        "FileSelection,Car0,Car1,Car2,Car3,Car4,Car5,Car6,Car7,Car8,Car9,Car10,"
                        "Car11,Text) VALUES (?1,?2,?3,'','*',?4,?5,'*','*','*','*','*','*',"
                        "'*','*','*',?6)");
    Statement link(engine, "INSERT INTO LinkedImages (ParagraphId,File) VALUES (?1,?2)");
    paragraph.Bind(6, writtenText);
    for (int p = 1; p <= CountParagraphs(); ++p) {
        const bool isLong = p >= FirstOfLong() && p <= LastOfLong();
        const int place = p <= perChapter ? p - 1
                          : isLong        ? p - FirstOfLong()
                                          : p - LastOfLong() - 1;
        const int size = isLong ? CountLong() : perChapter;
        const int shorter = p <= perChapter ? 1 : 3 + place / perChapter;
        paragraph.Bind(1, qint64(isLong ? longChapter : shorter));
        paragraph.Bind(2, qint64(place % size == 0 ? 0 : p - 1));
        paragraph.Bind(3, qint64(place % size == size - 1 || p == CountParagraphs() ? 0 : p + 1));
        paragraph.Bind(4, p % 20 == 0 ? QStringLiteral("Lake;Pond") : QStringLiteral("*"));
        paragraph.Bind(5, p % 2 == 0 ? QStringLiteral("Bridge") : QStringLiteral("*"));
        paragraph.Run();
        link.Bind(1, qint64(p));
        link.Bind(2, FolderOf(p) + NameOf(p));
        link.Run();
    }
}

void LargeAlbum::FillValues(sqlite3* engine) const
{
    for (const char* table :
         {"Car0", "Car1", "Car2", "Car3", "Car4", "Car5", "Car9", "Car10", "Car11"}) {
        Statement insert(engine, QByteArray("INSERT INTO ") + table + " VALUES (?1)");
        for (int i = 0; i < CountValues(); ++i) {
            insert.Bind(1, QStringLiteral("Value %1").arg(i));
            insert.Run();
        }
        insert.Bind(1, QStringLiteral("Lake"));
        insert.Run();
    }
}
