// SPDX-License-Identifier: MIT
#include "support/AlbumFixture.h"

#include "core/Album.h"
#include "core/AlbumSets.h"
#include "core/RandomNumbers.h"
#include "platform/shell/ProgramFolder.h"
#include "viewer/ViewerFlags.h"

#include <sqlcipher/sqlite3.h>

#include <QSettings>
#include <QtTest>

#include <initializer_list>

using namespace GeneralModule;

World::World()
{
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, PathOf("settings"));
    qputenv("XDG_CACHE_HOME", PathOf("cache").toUtf8());
    qputenv("XDG_DATA_HOME", PathOf("data").toUtf8()); // holds the trash
    SeedRandom(1);
    AutoviewOn = false;
    PictureAtRandom = false;
}

World::~World()
{
    ReleaseAlbum();
}

AlbumFixture::AlbumFixture() : album_(PathOf("story.alb"))
{
    if (!CreateAlbumFile(album_) || !OpenAlbum(album_))
        qFatal("the test's album cannot be made");
}

QString AlbumFixture::AddPicture(const QString& name, const QMap<QString, QString>& values,
                                 QSize size, const QColor& color)
{
    const QString path = PathOf(name);
    PaintPicture(path, size, color);
    AddImageRow(path, values);
    return path;
}

void AlbumFixture::AddImageRow(const QString& path, const QMap<QString, QString>& values)
{
    ImageSet->AddNew();
    ImageSet->Set(u"File", path);
    ImageSet->Set(u"Legend", QString());
    for (int column = 0; column < 12; ++column)
        ImageSet->Set(QString("Car%1").arg(column), QString("-"));
    for (auto value = values.begin(); value != values.end(); ++value)
        ImageSet->Set(value.key(), value.value());
    ImageSet->Update();
}

qint32 AlbumFixture::AddChapter(const QString& name)
{
    const qint32 last = Rows("SELECT Id FROM Chapter WHERE NextChapter=0").value(0).toInt();
    ChapterSet->AddNew();
    const qint32 id = ChapterSet->Number(u"Id");
    ChapterSet->Set(u"Name", name);
    ChapterSet->Set(u"PreviousChapter", last);
    ChapterSet->Update();
    Execute(QString("UPDATE Chapter SET NextChapter=%1 WHERE Id=%2").arg(id).arg(last));
    return id;
}

qint32 AlbumFixture::AddParagraph(qint32 chapter, const QString& text,
                                  const QMap<QString, QString>& fields)
{
    const QString lastSql = "SELECT Id FROM Paragraph WHERE NextParagraph=0 AND Chapter=%1";
    const qint32 last = Rows(lastSql.arg(chapter)).value(0).toInt();
    ParagraphSet->AddNew();
    const qint32 id = ParagraphSet->Number(u"Id");
    ParagraphSet->Set(u"Chapter", chapter);
    ParagraphSet->Set(u"Text", text);
    ParagraphSet->Set(u"FileSelection", QString());
    ParagraphSet->Set(u"PreviousParagraph", last);
    for (int column = 0; column < 12; ++column)
        ParagraphSet->Set(QString("Car%1").arg(column), QString("*"));
    for (auto field = fields.begin(); field != fields.end(); ++field)
        ParagraphSet->Set(field.key(), field.value());
    ParagraphSet->Update();
    const QString link = last == 0 ? "UPDATE Chapter SET FirstParagraph=%1 WHERE Id=%2"
                                   : "UPDATE Paragraph SET NextParagraph=%1 WHERE Id=%2";
    Execute(link.arg(id).arg(last == 0 ? chapter : last));
    return id;
}

qint32 AlbumFixture::AddThreeChapters(QSize pictureSize)
{
    for (const char* name : {"a", "b", "c"})
        AddPicture(QString(name) + ".png", {{"Car0", name}, {"Legend", QString("the ") + name}},
                   pictureSize);
    const qint32 one = AddChapter("One");
    AddChapter("Empty");
    const qint32 three = AddChapter("Three");
    AddParagraph(one, "First: <[Picture Legend]>", {{"Car0", "a"}});
    AddParagraph(one, "Second: <[0]>", {{"Car0", "b"}});
    AddParagraph(three, "Third", {{"Car0", "c"}});
    return one;
}

void AlbumFixture::Link(qint32 paragraph, const QString& file)
{
    LinkedImagesSet->AddNew();
    LinkedImagesSet->Set(u"ParagraphId", paragraph);
    LinkedImagesSet->Set(u"File", file);
    LinkedImagesSet->Update();
}

QStringList AlbumFixture::Rows(const QString& sql) const
{
    sqlite3* engine = nullptr;
    QStringList rows;
    const auto addRow = [](void* target, int count, char** values, char**) {
        QStringList row;
        for (int i = 0; i < count; ++i)
            row += values[i] ? QString::fromUtf8(values[i]) : QString("NULL");
        static_cast<QStringList*>(target)->append(row.join(u'|'));
        return 0;
    };
    char* message = nullptr;
    sqlite3_open_v2(QFile::encodeName(album_), &engine, SQLITE_OPEN_READWRITE, nullptr);
    sqlite3_busy_timeout(engine, 2000);
    if (sqlite3_exec(engine, sql.toUtf8(), addRow, &rows, &message) != SQLITE_OK)
        QTest::qFail(message, __FILE__, __LINE__);
    sqlite3_free(message);
    sqlite3_close(engine);
    return rows;
}

void AlbumFixture::Execute(const QString& sql) const
{
    Rows(sql);
}

QString AlbumFixture::Story() const
{
    QMap<QString, QStringList> chapters;
    QMap<QString, QStringList> paragraphs;
    QStringList story;
    QString next = "0";
    for (const QString& row : Rows("SELECT Id,PreviousChapter,NextChapter,FirstParagraph,"
                                   "Name FROM Chapter")) {
        const QStringList chapter = row.split(u'|');
        chapters[chapter[0]] = chapter;
        if (chapter[1] == "0")
            next = chapter[0];
    }
    for (const QString& row : Rows("SELECT Id,PreviousParagraph,NextParagraph,Chapter,Text "
                                   "FROM Paragraph"))
        paragraphs[row.section(u'|', 0, 0)] = row.split(u'|');
    for (QString last = "0"; next != "0";) {
        const QStringList chapter = chapters.take(next);
        if (chapter.isEmpty() || chapter[1] != last)
            return "broken";
        last = std::exchange(next, chapter[2]);
        QString text = chapter[4] + ':';
        QString previous = "0";
        for (QString id = chapter[3]; id != "0";) {
            const QStringList paragraph = paragraphs.take(id);
            if (paragraph.isEmpty() || paragraph[1] != previous || paragraph[3] != last)
                return "broken";
            previous = std::exchange(id, paragraph[2]);
            text += paragraph[4];
        }
        story += text;
    }
    return chapters.isEmpty() && paragraphs.isEmpty() ? story.join(u' ') : "broken";
}

FailingEngine::FailingEngine(int steps, bool isOnce) : steps_(steps), isOnce_(isOnce)
{
    const auto count = [](void* self) {
        auto* failing = static_cast<FailingEngine*>(self);
        --failing->steps_;
        return int(failing->isOnce_ ? failing->steps_ == -1 : failing->steps_ < 0);
    };
    sqlite3_progress_handler(AlbumDatabase->GetEngine(), 1, count, this);
}

FailingEngine::~FailingEngine()
{
    sqlite3_progress_handler(AlbumDatabase->GetEngine(), 0, nullptr, nullptr);
}

void FailAtEachStep(int every, const std::function<void()>& prepare,
                    const std::function<void()>& act, const std::function<void()>& check)
{
    int trials = 0;
    for (bool hasFailed = true; hasFailed && !QTest::currentTestFailed(); ++trials) {
        prepare();
        {
            const FailingEngine failing(trials * every);
            act();
            hasFailed = failing.HasFailed();
        }
        check();
    }
    QVERIFY(trials > 2);
}

int ErrorOf(const std::function<void()>& action, QString* description)
{
    try {
        action();
    } catch (const DatabaseError& error) {
        if (description)
            *description = error.GetDescription();
        return error.GetNumber();
    }
    return 0;
}
