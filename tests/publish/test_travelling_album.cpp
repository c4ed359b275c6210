// SPDX-License-Identifier: MIT
// An album that goes along shows on another computer what it shows here.
#include "catalogue/Picture.h"
#include "core/AlbumPassword.h"
#include "core/AlbumSets.h"
#include "core/LocalCopy.h"
#include "core/Parameters.h"
#include "platform/picture/PictureBytes.h"
#include "platform/picture/PictureReader.h"
#include "publish/PublishList.h"
#include "publish/WorkAside.h"
#include "publish/album/PictureCopying.h"
#include "publish/album/TravellingAlbum.h"
#include "story/Paragraph.h"
#include "story/PictureFilter.h"
#include "support/AlbumTest.h"
#include "support/Rows.h"

#include <QColorSpace>
#include <QDirIterator>
#include <QImage>
#include <QThread>

#include <csignal>

#include <sys/resource.h>

using namespace GeneralModule;

class TestTravellingAlbum : public AlbumTest
{
    Q_OBJECT

private:
    PublishReport Take(const TravelOptions& options = {}) const
    {
        return TakeAlbumAlong(options, PathOf("stick/album"), [](int, int) { return true; });
    }
    QString PathOf(const QString& name) const { return world_->PathOf(name); }

    QString Refusal(const TravelOptions& options = {}) const
    {
        try {
            Take(options);
        } catch (const PublishError& error) {
            return error.GetText();
        }
        return "not refused";
    }

    // A picture that its legend tells apart, in a folder beside the album.
    QString Add(const QString& name, const QString& car = "-") const
    {
        WriteFile(PathOf(name)); // makes the folder
        return album_->AddPicture(name, {{"Legend", name}, {"Car0", car}});
    }

    qint32 Choose(const QString& pattern, const QMap<QString, QString>& fields = {})
    {
        QMap<QString, QString> all = fields;
        all.insert("FileSelection", pattern);
        return album_->AddParagraph(chapter_, "text", all);
    }

    // Of the open album, for each paragraph the legends of the pictures that it shows. What has no
    // row goes by its height.
    static QStringList Shown()
    {
        QStringList shown;
        for (ParagraphSet->MoveFirst(); !ParagraphSet->AtEnd(); ParagraphSet->MoveNext()) {
            const auto paragraph = ReadParagraph(ParagraphSet->Number(u"Id"));
            PictureList list;
            QStringList legends;
            try {
                BuildPictureList(paragraph->GetQuery(), list, maxListed, [](int) {});
            } catch (const DatabaseError&) {
                legends += "unreadable";
            }
            for (const QString& file : list.GetFiles()) {
                const auto picture = ReadPicture(file);
                const int height = ReadPictureInfo(FindPictureFile(file)).size.height();
                legends += picture ? picture->legend : QString::number(height);
            }
            shown += QString::number(paragraph->id) + ": " + legends.join(", ");
        }
        return shown;
    }

    // Moves the result, removes all else and opens it there.
    void Arrive(const QString& password = {})
    {
        ReleaseAlbum();
        QVERIFY(QDir().rename(PathOf("stick/album"), PathOf("there")));
        for (const char* folder : {"photos", "other", "stick"})
            QDir(PathOf(folder)).removeRecursively();
        QVERIFY(OpenAlbum(PathOf("there/story.alb"), password));
    }

    // What an action fails with when no file can be longer than that many bytes.
    static QString FailureOnFullDisk(rlim_t bytes, const std::function<void()>& act)
    {
        const auto former = std::signal(SIGXFSZ, SIG_IGN);
        const rlimit small{bytes, RLIM_INFINITY};
        const rlimit unlimited{RLIM_INFINITY, RLIM_INFINITY};
        setrlimit(RLIMIT_FSIZE, &small);
        QString failure;
        try {
            act();
        } catch (const std::exception& error) {
            failure = QString::fromUtf8(error.what());
        }
        setrlimit(RLIMIT_FSIZE, &unlimited);
        std::signal(SIGXFSZ, former);
        return failure;
    }

    QMap<QString, QByteArray> Contents() const
    {
        QMap<QString, QByteArray> files;
        const QString folder = PathOf("stick/album");
        QDirIterator each(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (each.hasNext()) {
            const QString path = each.next();
            files.insert(QDir(folder).relativeFilePath(path), ReadFile(path));
        }
        return files;
    }

    QStringList Names() const
    {
        QStringList names = Contents().keys();
        names.removeAll(QString(publishListName));
        names.removeAll("story.alb");
        return names;
    }

    std::unique_ptr<World> MakeWorld() override
    {
        auto world = AlbumTest::MakeWorld();
        chapter_ = album_->AddChapter("One");
        return world;
    }

    qint32 chapter_ = 0;

private slots:
    // Patterns of all kinds, links, and filters, compared paragraph by paragraph where it arrives.
    void ShowsTheSamePictures()
    {
        const QString a = Add("photos/2019/sea/a.png", "Spring");
        Add("photos/2019/sea/B.PNG");
        Add("photos/2019/c.png", "Spring");
        Add("photos/2020/sea/a.png");
        Add("photos/2020/[x] #1/d.png", "Spring");
        Add("photos/2020/cap/pic?.png");
        const QString only = PathOf("other/linked.png");
        WriteFile(only);
        PaintPicture(only, {20, 33}, Qt::red);
        album_->AddImageRow(PathOf("photos/2019/gone.png"), {{"Legend", "gone"}});
        album_->AddImageRow("C:\\Bilder\\1.jpg", {{"Legend", "foreign"}});
        const qint32 linked = Choose({}, {{"Car0", "Spring"}});
        for (const QString& file : {only, a, PathOf("photos/2019/gone.png")})
            album_->Link(linked, file);
        Choose({});
        const auto in = [this](const QString& folder, const QString& pattern) {
            return PatternOfSelection(PathOf(folder) + '/' + pattern);
        };
        Choose(in("photos/2019", "*.png"));
        Choose(in("photos/2019/sea", "*.png;*.gif"));
        Choose(in("photos/2020/[x] #1", "*"));
        Choose(in("photos", "*") + "/sea/*");
        Choose(in("photos/2019", "c.png"), {{"Car0", "Spring"}});
        Choose(in("photos/2031", "*"));
        Choose(PatternOfSelection(PathOf("") + "*.png"));
        Choose("*sea*");
        Choose("*/20[12]9/*");
        Choose("C:\\Bilder\\*.[jJ][pP][gG]");
        Choose("*" + QFileInfo(PathOf("")).fileName() + "*"); // found above all that is kept
        Choose("*pictures*");
        Choose("[z-a]*");
        Choose({}, {{"Car0", "it's"}});
        const QStringList before = Shown();
        const PublishReport report = Take();
        QCOMPARE(report.troubles, QStringList());
        QCOMPARE(report.missing,
                 QStringList({PathOf("photos/2019/gone.png"), "C:\\Bilder\\1.jpg"}));
        QCOMPARE(report.pictures, 7);
        QCOMPARE(report.made, 7);
        QCOMPARE(Shown(), before);
        const QStringList names = Names();
        Arrive();
        QCOMPARE(Shown(), before);
        // And on from there.
        QCOMPARE(Take().troubles, QStringList());
        QCOMPARE(Names(), names);
        QVERIFY(OpenAlbum(PathOf("stick/album/story.alb")));
        QCOMPARE(Shown(), before);
    }

    // A pattern that finds a file by what its new name cannot have.
    void LinksWhatAPatternLoses()
    {
        Add("photos/a:b.png");
        Add("photos/c.png");
        Choose("*a:b*");
        Choose("*[!b].png");
        const QStringList before = Shown();
        const PublishReport report = Take();
        QCOMPARE(report.troubles.size(), 1);
        QVERIFY(
            report.troubles.first().startsWith("Chapter \"One\", paragraph 1: the file pattern"));
        QCOMPARE(Names(), QStringList({"pictures/a_b.png", "pictures/c.png"}));
        Arrive();
        QCOMPARE(Shown(), before);
    }

    void KeepsThePassword()
    {
        Add("photos/Secret Legend.png");
        album_->AddParagraph(chapter_, "Secret Text");
        QVERIFY(SetAlbumPassword("tulip"));
        // At no time is anything plain, nor afterwards.
        QByteArray seen;
        TakeAlbumAlong({}, PathOf("stick/album"), [&](int, int) {
            for (const QByteArray& file : Contents())
                seen += file;
            return true;
        });
        for (const QByteArray& file : Contents())
            seen += file;
        QVERIFY(!seen.contains("Secret Text"));
        QVERIFY(seen.contains("PNG"));
        const QStringList before = Shown();
        Arrive("tulip");
        QCOMPARE(Shown(), before);
        QVERIFY(AlbumHasPassword());
    }

    void TakesOnlyWhatTheStoryShows()
    {
        QVERIFY(Refusal({.onlyStory = true}).contains("no story yet"));
        const QString a = Add("photos/a.png", "Spring");
        album_->AddPicture("photos/private.png", {{"Legend", "Private Legend"}});
        album_->AddImageRow(PathOf("photos/gone.png"), {{"Car0", "Spring"}, {"Legend", "gone"}});
        WriteFile(PathOf("photos/broken.png"), "no picture");
        album_->AddImageRow(PathOf("photos/broken.png"), {{"Car0", "Spring"}});
        // The local copy is what the viewer shows.
        PaintPicture(PathOf("copy.png"), {70, 50}, Qt::red);
        album_->Execute("UPDATE Image SET SourceFile='" + PathOf("copy.png") + "' WHERE File='" +
                        a + "'");
        Choose(PathOf("photos/*"), {{"Car0", "Spring"}});
        SetLastFileSelection(PathOf("photos/*.png"));
        const QStringList before = Shown();
        const PublishReport report = Take({.onlyStory = true});
        QCOMPARE(report.missing, QStringList(PathOf("photos/gone.png")));
        QCOMPARE(report.damaged, QStringList(PathOf("photos/broken.png")));
        QCOMPARE(report.pictures, 2);
        QCOMPARE(Names(), QStringList({"pictures/a.png", "pictures/broken.png"}));
        // Nothing of the rest is left in the file, and nothing of where this was.
        const QByteArray album = ReadFile(PathOf("stick/album/story.alb"));
        QVERIFY(album.contains("pictures/a.png"));
        QVERIFY(!album.contains("Private Legend"));
        QVERIFY(!album.contains(PathOf("").toUtf8()));
        Arrive();
        QCOMPARE(Shown(), before);
        QCOMPARE(ReadPictureInfo(FindPictureFile("pictures/a.png")).size, QSize(70, 50));
    }

    void ScalesLargePictures()
    {
        // Turned by its EXIF block, in a wide colour space.
        QImage wide(400, 200, QImage::Format_RGB32);
        wide.fill(qRgb(200, 100, 100));
        wide.setColorSpace(QColorSpace::DisplayP3);
        WriteFile(PathOf("large.jpg"), WithOrientation(Encoded(wide, "jpeg"), 6));
        album_->AddImageRow(PathOf("large.jpg"));
        album_->AddPicture("small.jpg", {}, {100, 50});
        album_->AddPicture("large.png", {}, {200, 400});
        QImage clear(300, 300, QImage::Format_ARGB32);
        clear.fill(Qt::transparent);
        clear.save(PathOf("clear.png"));
        album_->AddImageRow(PathOf("clear.png"));
        QCOMPARE(Take({.longestEdge = 100}).made, 4);
        const QStringList names{"pictures/clear.png", "pictures/large.jpg",
                                "pictures/large.png.jpg", "pictures/small.jpg"};
        QCOMPARE(Names(), names);
        const QSize sizes[] = {{100, 100}, {50, 100}, {50, 100}, {100, 50}};
        for (int i = 0; i < 4; ++i)
            QCOMPARE(ReadPictureInfo(PathOf("stick/album/" + names[i])).size, sizes[i]);
        const QImage turned(PathOf("stick/album/pictures/large.jpg")); // without what EXIF says
        QCOMPARE(turned.size(), QSize(50, 100));
        QVERIFY(turned.colorSpace() != QColorSpace(QColorSpace::DisplayP3));
        QVERIFY(turned.pixelColor(25, 50).red() > 206); // red reaches less far in sRGB
        QCOMPARE(Contents()["pictures/small.jpg"], ReadFile(PathOf("small.jpg")));
        QCOMPARE(Take({.longestEdge = 100}).made, 0);
        QCOMPARE(Take({.longestEdge = 150}).made, 3);
        Arrive();
        QCOMPARE(ImageSet->RecordCount(), 4);
        QVERIFY(QFileInfo::exists(FindPictureFile("pictures/large.png.jpg")));
    }

    void ASecondRunCopiesWhatChanged()
    {
        Add("photos/a.png");
        const QString b = Add("photos/b.png");
        const QString c = Add("photos/c.png");
        Choose(PathOf("photos/*"));
        QCOMPARE(Take().made, 3);
        WriteFile(PathOf("stick/album/pictures/mine.txt"), "mine");
        const PublishReport same = Take();
        QCOMPARE(same.made, 0);
        QCOMPARE(same.pictures, 3);
        PaintPicture(b, {90, 90}, Qt::red);
        album_->Execute("DELETE FROM Image WHERE File='" + c + "'");
        QCOMPARE(Take().made, 1);
        QCOMPARE(Names(), QStringList({"pictures/a.png", "pictures/b.png", "pictures/mine.txt"}));
        WriteFile(PathOf("stick/album/story.alb-journal"), "hot");
        QVERIFY(Refusal().contains("broke off"));
        QFile::remove(PathOf("stick/album/story.alb-journal"));
        // Somebody has worked on the copy, or works from it.
        WriteFile(PathOf("stick/album/story.alb"), "other");
        QVERIFY(Refusal().contains("has been changed"));
        album_->AddImageRow(PathOf("stick/album/pictures/a.png"));
        QFile::remove(PathOf("stick/album/story.alb"));
        QVERIFY(Refusal().contains("the album itself uses"));
        QVERIFY_THROWS_EXCEPTION(PublishError,
                                 TakeAlbumAlong({}, PathOf(""), [](int, int) { return true; }));
    }

    void AnEmptyAlbumGoesAlongButNotOntoItself()
    {
        QCOMPARE(Take().pictures, 0);
        QVERIFY(OpenAlbum(PathOf("stick/album/story.alb")));
        QCOMPARE(album_->Rows("SELECT Name FROM Chapter"), QStringList("One"));
        QVERIFY(Refusal().contains("the album itself uses"));
    }

    // Its threads see it at once: these wait for nothing else.
    void AStopReachesTheThreads()
    {
        const auto wait = [](const std::function<bool()>& isStopped) {
            while (!isStopped())
                QThread::yieldCurrentThread();
        };
        QVERIFY(!WorkAside(2, wait, [calls = 3]() mutable { return calls-- > 0; }));
    }

    void AStopOrAFailureLeavesWhatWasThere()
    {
        Add("photos/a.png");
        Choose(PathOf("photos/*"));
        Take();
        const auto before = Contents();
        album_->AddPicture("photos/large.bmp", {}, {400, 400});
        album_->AddChapter("Two");
        // At the last moment.
        QVERIFY(
            TakeAlbumAlong({.longestEdge = 300}, PathOf("stick/album"), [](int done, int total) {
                return total == 0 || done < total;
            }).isStopped);
        QCOMPARE(Contents(), before);
        bool isStopped = true;
        int calls = 0;
        for (; isStopped && calls < 200; ++calls) {
            isStopped = TakeAlbumAlong({.longestEdge = 300}, PathOf("stick/album"),
                                       [left = calls](int, int) mutable { return left-- > 0; })
                            .isStopped;
            if (isStopped)
                QCOMPARE(Contents(), before);
        }
        QVERIFY(calls > 5);
        const auto after = Contents();
        QVERIFY(after.contains("pictures/large.bmp.jpg"));
        for (const rlim_t limit : {300'000, 10'000, 200})
            QVERIFY(!FailureOnFullDisk(limit, [this] { Take(); }).isEmpty());
        QCOMPARE(Contents(), after);
        // Also of files that are smaller than a buffer.
        album_->AddPicture("tiny.png", {}, {300, 300});
        PublishFolder folder(PathOf("other"), "album");
        for (const int edge : {0, 100}) {
            const QString failure = FailureOnFullDisk(50, [&] {
                CopyPictures({{PathOf("tiny.png"), "tiny.png"}}, edge, folder,
                             [](int, int) { return true; });
            });
            QVERIFY(failure.contains("tiny.png"));
        }
    }
};

QTEST_MAIN(TestTravellingAlbum)
#include "test_travelling_album.moc"
