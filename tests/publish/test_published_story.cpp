// SPDX-License-Identifier: MIT
// What of an album is given away, and in which order.
#include "publish/PublishReport.h"
#include "publish/PublishedStory.h"
#include "support/AlbumTest.h"

class TestPublishedStory : public AlbumTest
{
    Q_OBJECT

private:
    static PublishedStory Read(const StoryChoice& choice = {})
    {
        return ReadPublishedStory(choice, [](int, int) { return true; }).value();
    }

private slots:
    void ReadsWhatTheViewerShows()
    {
        const qint32 chapter = album_->AddChapter("The \u0007Lake");
        album_->AddChapter("Empty");
        const QString a =
            album_->AddPicture("a.png", {{"Legend", "Boat\r\non \u0001water"}, {"Car0", "Spring"}});
        const QString b = album_->AddPicture("b.png", {{"Car0", "Spring"}});
        const QString c = album_->AddPicture("c.png", {{"Car0", "Winter"}, {"Legend", "Snow"}});
        const qint32 first =
            album_->AddParagraph(chapter, "<[Picture Legend]> in <[0]>.", {{"Car0", "Spring"}});
        album_->AddParagraph(chapter, "No <[0]>", {{"Car0", "Summer"}});
        album_->Link(first, c);
        const PublishedStory story = Read();
        QCOMPARE(story.title, "story");
        QCOMPARE(story.chapters.size(), 2);
        QCOMPARE(story.chapters[0].title, "The Lake");
        QVERIFY(story.chapters[1].paragraphs.empty());
        const PublishedParagraph& paragraph = story.chapters[0].paragraphs.at(0);
        QStringList files;
        QStringList texts;
        for (const PublishedPicture& picture : paragraph.pictures) {
            files += picture.file;
            texts += picture.text;
            QCOMPARE(picture.path, picture.file);
        }
        QCOMPARE(files, QStringList({c, a, b}));
        QCOMPARE(texts,
                 QStringList({"Snow in Winter.", "Boat\non water in Spring.", " in Spring."}));
        QCOMPARE(paragraph.pictures[1].legend, "Boat\non water");
        QCOMPARE(paragraph.text, texts.last());
        QCOMPARE(story.chapters[0].paragraphs[1].text, "No ");
        QCOMPARE(story.CountPictures(), 3);
        QCOMPARE(CleanPublishedText(QStringLiteral("a") + QChar(0xd83d) + "b" + QChar(0xdc00) +
                                    QChar(0xffff) + "\u0085\U0001f600"),
                 "ab\U0001f600");
    }

    void KeepsToTheChoice()
    {
        album_->AddThreeChapters({60, 40});
        album_->AddParagraph(album_->AddChapter("All"), "Everything");
        const PublishedStory story =
            Read({.title = "My Days", .chapters = {"All", "One"}, .mostPictures = 2});
        QCOMPARE(story.title, "My Days");
        QCOMPARE(story.chapters[0].title, "One");
        const PublishedParagraph& all = story.chapters.at(1).paragraphs.front();
        QCOMPARE(all.pictures.size(), 2);
        QCOMPARE(all.found, 3);
        QVERIFY(!ReadPublishedStory({}, [](int done, int) { return done < 2; }));
        QVERIFY_THROWS_EXCEPTION(PublishError, Read({.title = {}, .chapters = {"Two"}}));
    }

    // One paragraph's filter costs the others nothing.
    void TellsOfAFilterThatCannotBeRead()
    {
        const qint32 chapter = album_->AddChapter("One");
        album_->AddParagraph(chapter, "Bad", {{"Car0", "it's"}});
        album_->AddParagraph(chapter, "Good");
        album_->AddPicture("a.png");
        const PublishedStory story = Read();
        QCOMPARE(story.troubles.size(), 1);
        QVERIFY(story.troubles.first().startsWith("Chapter \"One\", paragraph 1: "));
        QCOMPARE(story.CountPictures(), 1);
    }
};

QTEST_MAIN(TestPublishedStory)
#include "test_published_story.moc"
