// SPDX-License-Identifier: MIT
#include "fuzz/monkey/MonkeyAlbums.h"

#include "core/Album.h"
#include "core/AlbumPassword.h"
#include "core/Parameters.h"
#include "support/AlbumFixture.h"

#include <QDir>
#include <QFile>

using namespace GeneralModule;

namespace {

// With pictures that lie beside the album, a damaged one, and one that is gone.
void AddPictures(AlbumFixture& album, const QString& folder)
{
    int number = 0;
    for (const QString name :
         {"a.jpg", "b.png", "c.gif", "it's [c] #1 é.jpg", "damaged.jpg", "gone.jpg"}) {
        const QString value = ++number % 2 == 0 ? QStringLiteral("Anna") : QStringLiteral("-");
        album.AddImageRow(folder + '/' + name,
                          {{"Car0", value}, {"Car3", "Bert"}, {"Legend", "Legend of " + name}});
    }
    for (int column = 0; column < 6; ++column)
        SetColumnLabel(column, QStringLiteral("Label %1").arg(column));
    for (const char* value : {"Anna", "Bert", "(both)"})
        album.Execute(QStringLiteral("INSERT INTO Car0 VALUES ('%1')").arg(value));
}

void WriteStory(AlbumFixture& album, const QString& folder)
{
    for (int chapter = 1; chapter <= 4; ++chapter) {
        const qint32 id = album.AddChapter(QStringLiteral("Chapter %1").arg(chapter));
        for (int i = 0; i < (chapter - 1) * 2; ++i) {
            const QString filter = i % 2 == 0 ? QStringLiteral("*") : QStringLiteral("Anna;!;-");
            const qint32 paragraph = album.AddParagraph(
                id, QStringLiteral("<[0]> and <[1]>, text %1\n").arg(i).repeated(9),
                {{"Car0", filter}});
            album.Link(paragraph, folder + "/b.png");
        }
    }
}

void WriteMuch(AlbumFixture& album)
{
    const qint32 chapter = album.AddChapter("Much");
    album.AddParagraph(chapter, QString(300000, u'm'));
    album.AddParagraph(chapter, QStringLiteral("many words ").repeated(20000));
    for (int i = 0; i < 40; ++i)
        album.AddChapter(QStringLiteral("C%1 ").arg(i) + QString(i * 40, u'n'));
    album.Execute("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<300) "
                  "INSERT INTO Car0 SELECT 'value '||i FROM n");
}

void NameStrangely(AlbumFixture& album)
{
    for (const char* name :
         {"O'Neil [*]", "7 \"x\" #?", "É\u0301\U0001F305\u202Eabc", "A\nB\tC", "<b>&amp;</b> %1"})
        album.AddParagraph(album.AddChapter(QString::fromUtf8(name)), QString::fromUtf8(name));
    SetColumnLabel(0, QStringLiteral("<<\u202E&%1[]'"));
    album.AddImageRow(QStringLiteral("C:\\Pictures\\it's\\a.jpg"), {{"Car0", "a\nb"}});
    album.AddImageRow(QString(3000, u'/'));
    album.AddImageRow({});
}

void Break(AlbumFixture& album)
{
    album.Execute("UPDATE Paragraph SET NextParagraph=1 WHERE Id=5; UPDATE Paragraph SET "
                  "Chapter=99 WHERE Id=3; UPDATE Chapter SET NextChapter=2 WHERE Id=3; UPDATE "
                  "Chapter SET FirstParagraph=77 WHERE Id=4; UPDATE Paragraph SET Text=NULL, "
                  "Car3=NULL WHERE Id=4; UPDATE Image SET Car0=NULL, Legend=NULL");
}

void PaintPictures(const QString& folder)
{
    PaintPicture(folder + "/a.jpg", {400, 300}, Qt::darkCyan);
    PaintPicture(folder + "/b.png", {30, 900}, Qt::darkRed);
    PaintPicture(folder + "/it's [c] #1 é.jpg", {1200, 900}, Qt::darkGreen);
    WriteFile(folder + "/c.gif", "GIF89a");
    QByteArray damaged = ReadFile(folder + "/a.jpg");
    damaged.truncate(damaged.size() / 2);
    WriteFile(folder + "/damaged.jpg", damaged);
    WriteFile(folder + "/empty.alb");
    WriteFile(folder + "/text.alb", "no album");
}

} // namespace

QStringList MakeAlbums(const QString& folder)
{
    QDir().mkpath(folder);
    PaintPictures(folder);
    const QStringList names{"empty story.alb",         "story.alb",  "much.alb",
                            "it's [strange] #1 é.alb", "broken.alb", "locked.alb"};
    for (const QString& name : names) {
        AlbumFixture album;
        AddPictures(album, folder);
        if (name != names[0] && name != names[3])
            WriteStory(album, folder);
        if (name == names[2])
            WriteMuch(album);
        if (name == names[3])
            NameStrangely(album);
        if (name == names[4])
            Break(album);
        if (name == names[5])
            SetAlbumPassword(albumPassword);
        ReleaseAlbum();
        if (!QFile::copy(album.GetAlbum(), folder + '/' + name))
            qFatal("an album cannot be made");
    }
    return names;
}
