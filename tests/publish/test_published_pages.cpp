// SPDX-License-Identifier: MIT
// Web pages of a story: what they show, that they work from the disk, and what they give away.
#include "publish/pages/PublishedPages.h"
#include "publish/pages/WebPictures.h"
#include "support/AlbumTest.h"

#include <QDirIterator>
#include <QImage>
#include <QRegularExpression>

namespace {

bool GoesOn(int, int)
{
    return true;
}

// What is between before and after, each time.
QStringList AllBetween(const QString& text, const QString& before, const QString& after)
{
    const QRegularExpression each(QRegularExpression::escape(before) + "(.*?)" +
                                      QRegularExpression::escape(after),
                                  QRegularExpression::DotMatchesEverythingOption);
    QStringList found;
    for (auto match = each.globalMatch(text); match.hasNext();)
        found += match.next().captured(1);
    return found;
}

} // namespace

class TestPublishedPages : public AlbumTest
{
    Q_OBJECT

private:
    QString Target() const { return album_->PathOf("pages"); }
    QString Read(const QString& name) const { return ReadFile(Target() + '/' + name); }

    PublishReport PublishAll(int size = 800)
    {
        return PublishPages(ReadPublishedStory({}, GoesOn).value(), {size}, Target(), GoesOn);
    }

    QString PublishAlone()
    {
        const QString file = album_->PathOf("page.html");
        report_ = PublishSinglePage(ReadPublishedStory({}, GoesOn).value(), file, GoesOn);
        return ReadFile(file);
    }

    // Every address on the pages is a file in the folder, or a place on the page.
    void ExpectWholeLinks() const
    {
        for (QDirIterator pages(Target(), {"*.html"}, QDir::Files); pages.hasNext();) {
            const QString page = ReadFile(pages.next());
            QStringList addresses =
                AllBetween(page, "href=\"", "\"") + AllBetween(page, "src=\"", "\"");
            for (const QString& set : AllBetween(page, "srcset=\"", "\"")) {
                for (const QString& entry : set.split(", ")) {
                    const QSize size = QImage(Target() + '/' + entry.section(' ', 0, 0)).size();
                    QCOMPARE(QString::number(size.width()) + 'w', entry.section(' ', 1));
                    addresses += entry.section(' ', 0, 0);
                }
            }
            QVERIFY(!addresses.isEmpty());
            addresses.removeAll("data:,"); // no icon, and no request for one
            for (const QString& address : addresses)
                QVERIFY2(QFileInfo(Target() + '/' + address).isFile(), qPrintable(address));
        }
    }

    PublishReport report_;

private slots:
    void PagesHoldTheStory()
    {
        const qint32 first = album_->AddChapter("One");
        const qint32 second = album_->AddChapter("Two");
        album_->AddChapter("Empty");
        const QString a =
            album_->AddPicture("a.png", {{"Legend", "A \"quay\""}, {"Car0", "Sea"}}, {900, 600});
        album_->AddPicture("b.png", {{"Car0", "Sea"}}, {60, 90});
        album_->AddParagraph(first, "At the <[0]>:\n<[Picture Legend]>\n\nGone.",
                             {{"Car0", "Sea"}});
        album_->AddParagraph(second, "No picture", {{"Car0", "-"}});
        QCOMPARE(PublishAll().pictures, 2);
        ExpectWholeLinks();
        const QString front = Read("index.html");
        QCOMPARE(AllBetween(front, "<bdi>", "</bdi>"), QStringList({"One", "Two", "Empty"}));
        QCOMPARE(AllBetween(front, "class=\"count\">", "<"), QStringList("2 pictures"));
        const QString page = Read("chapter-1.html");
        QCOMPARE(AllBetween(page, "<h1 dir=\"auto\">", "<"), QStringList("One"));
        QCOMPARE(AllBetween(page, "alt=\"", "\""),
                 QStringList({"A &quot;quay&quot;", "Picture 2 of 2"}));
        QCOMPARE(AllBetween(page, "<p dir=\"auto\">", "</p>"),
                 QStringList({"At the Sea:", "Gone."}));
        QCOMPARE(AllBetween(page, "data-text=\"", "\""),
                 QStringList("At the Sea:\nA &quot;quay&quot;\n\nGone."));
        // Three sizes of a large picture, one of a small one.
        QCOMPARE(AllBetween(page, "srcset=\"", "\"").first().count("w,"), 2);
        QCOMPARE(AllBetween(page, "srcset=\"", "\"").size(), 1);
        QCOMPARE(AllBetween(page, "width=\"", "\""), QStringList({"800", "60"}));
        QCOMPARE(AllBetween(Read("chapter-2.html"), "rel=\"prev\" href=\"", "\""),
                 QStringList("chapter-1.html"));
        QVERIFY(Read("chapter-3.html").contains("Nothing has been written here yet."));
        QVERIFY(Read("story.css").size() + Read("story.js").size() < 10'000);

        const QString alone = PublishAlone();
        QCOMPARE(AllBetween(alone, "<h2 dir=\"auto\">", "<"), QStringList({"One", "Two", "Empty"}));
        const QStringList inside = AllBetween(alone, "src=\"data:image/jpeg;base64,", "\"");
        QCOMPARE(inside.size(), 2);
        QCOMPARE(QImage::fromData(QByteArray::fromBase64(inside[0].toLatin1())).size(),
                 QSize(900, 600));
        for (const QString& address : AllBetween(alone, "href=\"", "\""))
            QVERIFY(address.startsWith('#') || address == "data:,");
    }

    // Whatever the album's texts hold, the pages have only their own markup.
    void TextsAreOnlyTexts()
    {
        const QString hostile =
            "</p><script>alert(1)</script>\"'<img src=x onerror=y>&amp;\u0007{{title}}{{{script}}}";
        album_->AddPicture("javascript:alert(1)\"><b>.png", {{"Legend", hostile}});
        const qint32 chapter = album_->AddChapter("Q" + hostile);
        album_->AddParagraph(chapter, hostile + "<[Picture Legend]>");
        album_->AddParagraph(chapter, hostile, {{"Car0", "-"}});
        StoryChoice choice;
        choice.title = hostile;
        const PublishedStory story = ReadPublishedStory(choice, GoesOn).value();
        PublishPages(story, {}, Target(), GoesOn);
        PublishSinglePage(story, album_->PathOf("page.html"), GoesOn);
        ExpectWholeLinks();
        for (const QString& page : {Read("index.html"), Read("chapter-1.html"),
                                    QString(ReadFile(album_->PathOf("page.html")))}) {
            QCOMPARE(page.count("<script"),
                     page.count("</body>") - int(page.contains("class=\"front\"")));
            QVERIFY(!page.contains("<img src=x") && !page.contains("javascript:") &&
                    !page.contains('\u0007'));
            QVERIFY(
                page.contains("&lt;/p&gt;&lt;script&gt;alert(1)&lt;/script&gt;&quot;&apos;&lt;img "
                              "src=x onerror=y&gt;&amp;amp;{{title}}{{{script}}}"));
        }
    }

    // Pixels only: texts in the file, a profile, or transparency do not travel.
    void PicturesGiveNothingElseAway()
    {
        QImage image(300, 200, QImage::Format_ARGB32);
        image.fill(Qt::transparent);
        image.setText("Comment", "taken at home");
        QVERIFY(image.save(album_->PathOf("a.png")));
        album_->AddImageRow(album_->PathOf("a.png"));
        album_->AddParagraph(album_->AddChapter("One"), "Text");
        PublishAll();
        QDirIterator files(Target() + "/pictures", QDir::Files);
        while (files.hasNext()) {
            const QByteArray bytes = ReadFile(files.next());
            QVERIFY(!bytes.contains("taken at home") && !bytes.contains("Exif") &&
                    !bytes.contains("ICC_PROFILE"));
            const QImage written = QImage::fromData(bytes);
            QVERIFY(qGray(written.pixel(1, 1)) > 250);
        }
    }

    void ASecondRunMakesOnlyWhatHasChanged()
    {
        const qint32 chapter = album_->AddChapter("One");
        const QString a = album_->AddPicture("a.png", {{"Car0", "Sea"}});
        album_->AddPicture("b.png");
        album_->AddParagraph(chapter, "Text");
        QCOMPARE(PublishAll().made, 2);
        QCOMPARE(PublishAll().made, 0);
        PaintPicture(a, {80, 80}, Qt::red);
        const PublishReport report = PublishAll();
        QCOMPARE(report.made, 1);
        QCOMPARE(report.pictures, 2);
        ExpectWholeLinks();
        QCOMPARE(PublishAll(40).made, 2);
        album_->Execute("DELETE FROM Image WHERE Car0='Sea'");
        PublishAll(40);
        for (const QString& file : QDir(Target() + "/pictures").entryList(QDir::Files))
            QVERIFY2(file.startsWith("b-"), qPrintable(file));
        ExpectWholeLinks();
    }

    void NamesWhatIsMissingAndLeavesAPlaceholder()
    {
        album_->AddThreeChapters({60, 40});
        album_->AddImageRow("/nowhere/gone.jpg", {{"Legend", "Lost"}});
        WriteFile(album_->PathOf("bad.jpg"), "no picture");
        QByteArray spoiled = ReadFile(album_->PathOf("a.png")); // its header can be read
        const qsizetype pixels = spoiled.indexOf("IDAT") + 4;
        spoiled.replace(pixels, spoiled.size() - pixels, QByteArray(spoiled.size() - pixels, 'x'));
        WriteFile(album_->PathOf("cut.png"), spoiled);
        album_->AddImageRow(album_->PathOf("bad.jpg"));
        album_->AddImageRow(album_->PathOf("cut.png"));
        album_->AddParagraph(album_->AddChapter("All"), "All");
        const PublishReport report = PublishAll();
        QCOMPARE(report.missing, QStringList("/nowhere/gone.jpg"));
        QCOMPARE(report.damaged.size(), 2);
        QCOMPARE(report.pictures, 3);
        ExpectWholeLinks();
        const QString page = Read("chapter-4.html");
        QCOMPARE(page.count("This picture is missing."), 3);
        QVERIFY(page.contains("<figcaption dir=\"auto\">Lost</figcaption>"));
        QVERIFY(!page.contains("nowhere"));
        QCOMPARE(PublishAlone().count("This picture is missing."), 3);
        QCOMPARE(report_.damaged, report.damaged);
    }

    void WhatWasThereStaysUntilAllIsMade()
    {
        QVERIFY_THROWS_EXCEPTION(PublishError, PublishAll());
        QVERIFY(!QFileInfo::exists(Target()));
        album_->AddThreeChapters({60, 40});
        const PublishedStory story = ReadPublishedStory({}, GoesOn).value();
        const auto stop = [](int, int) { return false; };
        QVERIFY(PublishPages(story, {}, Target(), stop).isStopped);
        QVERIFY(!QFileInfo::exists(Target()));
        const QString file = album_->PathOf("page.html");
        WriteFile(file, "old");
        QVERIFY(PublishSinglePage(story, file, stop).isStopped);
        QCOMPARE(ReadFile(file), "old");
        QVERIFY_THROWS_EXCEPTION(PublishError,
                                 PublishSinglePage(story, "/nowhere/page.html", GoesOn));
        WriteFile(Target() + "/foreign.txt");
        QVERIFY_THROWS_EXCEPTION(PublishError, PublishAll());
    }

    void SizesOfPictures()
    {
        const std::vector<int> wanted{480, 960, 1920};
        QCOMPARE(WebEdges(6000, wanted), wanted);
        QCOMPARE(WebEdges(1000, wanted), std::vector<int>({480, 1000}));
        QCOMPARE(WebEdges(300, wanted), std::vector<int>({300}));
    }
};

QTEST_MAIN(TestPublishedPages)
#include "test_published_pages.moc"
