// SPDX-License-Identifier: MIT
#include "core/Album.h"
#include "core/ViewerFlags.h"
#include "platform/widgets/PictureBox.h"
#include "support/AlbumFixture.h"
#include "support/ScriptedDialogs.h"
#include "viewer/StoryPage.h"
#include "viewer/frmReelvane.h"

#include <QLabel>
#include <QPushButton>
#include <QtTest>

#include <memory>

// The viewer's real window, worked by keys and mouse.
class TestViewer : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void ReadsAStoryByKeys();
    void KeysWorkWhateverHasTheFocus();
    void LaysPicturesOnLines();
    void ZoomsWithinItsLimits();
    void PagesThroughAParagraph();
    void LinkedPicturesComeFirst();
    void ClickShowsOnePictureLarge();
    void EmptyChapterShowsEveryPicture();
    void BrowsesOutsideTheStory();
    void ResizeGoesBackToTheChaptersBeginning();
    void MissingAndBrokenPictures();
    void BadFilterCostsOnlyThePictures();

private:
    void Open(qint32 chapter);
    void Press(int key) { QTest::keyClick(viewer_.get(), Qt::Key(key)); }
    QString Legend() const { return viewer_->findChild<QLabel*>("lblLegend")->text(); }
    QList<PictureBox*> Boxes() const;
    QStringList Shown() const;

    std::unique_ptr<AlbumFixture> album_;
    std::unique_ptr<ScriptedDialogs> dialogs_;
    std::unique_ptr<frmReelvane> viewer_;
};

void TestViewer::init()
{
    album_ = std::make_unique<AlbumFixture>();
    dialogs_ = std::make_unique<ScriptedDialogs>();
    viewer_ = std::make_unique<frmReelvane>();
}

void TestViewer::cleanup()
{
    viewer_.reset();
    dialogs_.reset();
    album_.reset();
}

void TestViewer::Open(qint32 chapter)
{
    viewer_->CurrentChapter = chapter;
    viewer_->resize(1000, 700);
    viewer_->show();
    QVERIFY(QTest::qWaitForWindowExposed(viewer_.get()));
    QTRY_VERIFY(!Legend().isEmpty());
}

QList<PictureBox*> TestViewer::Boxes() const
{
    QList<PictureBox*> boxes;
    for (int i = 0; i < mostPictures; ++i) {
        auto* box = viewer_->findChild<PictureBox*>(QStringLiteral("imgImage_%1").arg(i));
        if (box->isVisible() != !box->GetTag().isEmpty())
            QTest::qFail("a box is visible without a picture, or hidden with one", __FILE__,
                         __LINE__);
        if (box->isVisible())
            boxes += box;
    }
    return boxes;
}

QStringList TestViewer::Shown() const
{
    QStringList files;
    for (const PictureBox* box : Boxes())
        files += QFileInfo(box->GetTag()).completeBaseName();
    return files;
}

void TestViewer::ReadsAStoryByKeys()
{
    for (const char* name : {"a", "b", "c"})
        album_->AddPicture(QString(name) + ".png",
                           {{"Car0", name}, {"Legend", QString("the ") + name}});
    const qint32 one = album_->AddChapter("One");
    album_->AddChapter("Empty");
    const qint32 three = album_->AddChapter("Three");
    album_->AddParagraph(one, "First: <[Picture Legend]>", {{"Car0", "a"}});
    album_->AddParagraph(one, "Second: <[0]>", {{"Car0", "b"}});
    album_->AddParagraph(three, "Third", {{"Car0", "c"}});
    Open(one);

    QCOMPARE(viewer_->windowTitle(), "One");
    QCOMPARE(Legend(), "First: the a");
    QCOMPARE(Shown(), QStringList("a"));
    Press(Qt::Key_Right);
    QCOMPARE(Legend(), "Second: b");
    QCOMPARE(Shown(), QStringList("b"));
    Press(Qt::Key_N);
    QCOMPARE(Legend(), "Third");
    QCOMPARE(viewer_->windowTitle(), "Three");
    Press(Qt::Key_Space); // all its pictures were seen
    QCOMPARE(Legend(), "First: the a");
    Press(Qt::Key_Left);
    QCOMPARE(Legend(), "First: the a");
    Press(Qt::Key_PageDown);
    QCOMPARE(Legend(), "Click HERE to create first paragraph of the new chapter 'Empty'");
    QCOMPARE(viewer_->windowTitle(), "Empty");
    Press(Qt::Key_PageDown);
    QCOMPARE(Legend(), "Third");
    Press(Qt::Key_P);
    QCOMPARE(viewer_->windowTitle(), "Empty");
    Press(Qt::Key_PageUp);
    Press(Qt::Key_Right);
    QCOMPARE(Legend(), "Second: b");
    Press(Qt::Key_PageUp);
    QCOMPARE(Legend(), "First: the a");
    Press(Qt::Key_F1);
    Press(Qt::Key_X);
    QCOMPARE(Legend(), "First: the a");
    Press(Qt::Key_Q);
    QVERIFY(!viewer_->isVisible());
}

void TestViewer::KeysWorkWhateverHasTheFocus()
{
    const qint32 chapter = album_->AddChapter("One");
    album_->AddParagraph(chapter, "First");
    album_->AddParagraph(chapter, "Second");
    Open(chapter);
    auto* button = viewer_->findChild<QPushButton*>("cmdPreviousParagraph");
    button->setFocus();
    QTest::keyClick(button, Qt::Key_Right);
    QCOMPARE(Legend(), "Second");
    QTest::keyClick(button, Qt::Key_Space); // would press the button
    QCOMPARE(Legend(), "First");
    QTest::mouseClick(viewer_->findChild<QPushButton*>("cmdNextParagraph"), Qt::LeftButton);
    QCOMPARE(Legend(), "Second");
}

void TestViewer::LaysPicturesOnLines()
{
    const qint32 chapter = album_->AddChapter("One");
    for (int i = 0; i < 6; ++i)
        album_->AddPicture(QStringLiteral("p%1.png").arg(i), {}, {300 + 20 * i, 200 + 30 * i});
    album_->AddParagraph(chapter, "text");
    Open(chapter);
    const auto* page = viewer_->findChild<StoryPage*>();
    const ScreenShape shape = page->GetShape(1);
    const int band = int(std::lround(shape.maxTotalHeight * page->height() / 100));
    for (int lines = 1; lines <= 4; ++lines) {
        const QList<PictureBox*> boxes = Boxes();
        QVERIFY(!boxes.isEmpty());
        QMap<int, QList<QRect>> byBottom;
        for (const PictureBox* box : boxes)
            byBottom[box->y() + box->height()] += box->geometry();
        QVERIFY(byBottom.size() <= lines);
        QVERIFY(byBottom.lastKey() <= band);
        for (QList<QRect>& line : byBottom) {
            std::sort(line.begin(), line.end(),
                      [](const QRect& a, const QRect& b) { return a.x() < b.x(); });
            for (int i = 1; i < line.size(); ++i)
                QCOMPARE(line[i].x(), line[i - 1].x() + line[i - 1].width());
            const int left = line.first().x();
            const int right = page->width() - line.last().x() - line.last().width();
            QVERIFY2(std::abs(left - right) <= 1, "line out of the middle");
        }
        Press(Qt::Key_Plus);
    }
}

void TestViewer::ZoomsWithinItsLimits()
{
    const qint32 chapter = album_->AddChapter("One");
    for (int i = 0; i < 30; ++i)
        album_->AddPicture(QStringLiteral("p%1.png").arg(i));
    album_->AddParagraph(chapter, "text");
    Open(chapter);
    const QStringList first = Shown();
    for (int lines = 2; lines <= 5; ++lines)
        QTest::keyClick(viewer_.get(), Qt::Key_Plus, Qt::KeypadModifier);
    QCOMPARE(viewer_->Nblines, 4);
    QCOMPARE(Boxes().size(), 21);
    QCOMPARE(Shown().first(first.size()), first); // the same pictures, and more
    QCOMPARE(viewer_->findChild<QLabel*>("lblLegend")->alignment() & Qt::AlignHorizontal_Mask,
             Qt::AlignHCenter); // stays until the next paragraph
    Press(Qt::Key_Right);
    QCOMPARE(viewer_->findChild<QLabel*>("lblLegend")->alignment() & Qt::AlignHorizontal_Mask,
             Qt::AlignLeft);
    const QStringList many = Shown();
    for (int i = 0; i < 6; ++i)
        Press(Qt::Key_Minus);
    QCOMPARE(viewer_->Nblines, 0);
    QCOMPARE(Shown(), many.first(1));
    const QRect alone = Boxes().first()->geometry();
    const auto* page = viewer_->findChild<StoryPage*>();
    QVERIFY(std::abs(alone.center().x() - page->width() / 2) <= 1);
    // What was on the screen before comes again, one by one.
    Press(Qt::Key_Down);
    QCOMPARE(Shown(), many.sliced(1, 1));
}

void TestViewer::PagesThroughAParagraph()
{
    const qint32 chapter = album_->AddChapter("One");
    QStringList all;
    for (int i = 0; i < 50; ++i)
        all +=
            QFileInfo(album_->AddPicture(QStringLiteral("p%1.png").arg(i, 2, 10, QChar(u'0')), {}))
                .completeBaseName();
    album_->AddParagraph(chapter, "First");
    album_->AddParagraph(chapter, "Second", {{"Car0", "none"}});
    Open(chapter);
    QStringList seen;
    while (Legend() == "First") {
        seen += Shown();
        QVERIFY(seen.size() <= 50);
        Press(Qt::Key_Down);
    }
    QCOMPARE(Legend(), "Second");
    QCOMPARE(Shown(), QStringList());
    QVERIFY(seen != all); // in random order
    seen.sort();
    QCOMPARE(seen, all);
}

void TestViewer::LinkedPicturesComeFirst()
{
    const qint32 chapter = album_->AddChapter("One");
    QStringList files;
    for (int i = 0; i < 40; ++i)
        files += album_->AddPicture(QStringLiteral("p%1.png").arg(i), {}, {400, 300});
    const qint32 paragraph = album_->AddParagraph(chapter, "text");
    album_->Link(paragraph, files[33]);
    album_->Link(paragraph, files[17]);
    Open(chapter);
    QStringList first = Shown().first(2);
    first.sort();
    QCOMPARE(first, QStringList({"p17", "p33"}));
}

void TestViewer::ClickShowsOnePictureLarge()
{
    const qint32 chapter = album_->AddChapter("One");
    album_->AddPicture("a.png", {{"Legend", "A"}}, {2000, 1000});
    album_->AddPicture("b.png", {{"Legend", "B"}}, {2000, 1000});
    album_->AddParagraph(chapter, "<[Picture Legend]>");
    Open(chapter);
    Press(Qt::Key_Plus);
    QCOMPARE(Boxes().size(), 2);
    const QString before = Legend();
    PictureBox* box = Boxes().first();
    const int small = box->width();
    const QString file = box->GetTag();
    QTest::mouseClick(box, Qt::LeftButton);
    auto* large = viewer_->findChild<PictureBox*>("imgFullSize");
    QVERIFY(large->isVisible() && !box->isVisible());
    QVERIFY(large->width() > small);
    QCOMPARE(Legend(), file.endsWith("a.png") ? "A" : "B");
    QTest::mouseClick(large, Qt::LeftButton);
    QVERIFY(!large->isVisible());
    QCOMPARE(Boxes().size(), 2);
    QCOMPARE(Legend(), before);
}

void TestViewer::EmptyChapterShowsEveryPicture()
{
    album_->AddPicture("a.png", {{"Car0", "x"}});
    album_->AddPicture("b.png");
    Open(album_->AddChapter("It's new"));
    QCOMPARE(Legend(), "Click HERE to create first paragraph of the new chapter 'It's new'");
    QCOMPARE(Boxes().size(), 2);
    Press(Qt::Key_Right);
    Press(Qt::Key_Minus);
    QCOMPARE(Legend(), "Click HERE to create first paragraph of the new chapter 'It's new'");
    Press(Qt::Key_Plus); // tells by the paragraph, as opposed to minus
    QCOMPARE(Legend(), "0 images left");
    QCOMPARE(album_->Rows("SELECT count(*) FROM Paragraph"), QStringList("0"));
}

void TestViewer::BrowsesOutsideTheStory()
{
    for (int i = 0; i < 30; ++i)
        album_->AddPicture(QStringLiteral("p%1.png").arg(i), {{"Car0", i < 25 ? "-" : "known"}},
                           {800, 600});
    viewer_->ImageSelection = "-";
    Open(0);
    QCOMPARE(Legend(), "25 images found");
    QCOMPARE(Boxes().first()->toolTip(), "Click to index picture");
    const int first = int(Boxes().size());
    Press(Qt::Key_Space);
    QCOMPARE(Legend(), QStringLiteral("%1 images left").arg(25 - first - Boxes().size()));
    album_->Execute("UPDATE Image SET Car0='known' WHERE File LIKE '%p1%'");
    QTest::mouseClick(viewer_->findChild<QPushButton*>("cmdRefresh"), Qt::LeftButton);
    QCOMPARE(Legend(), "14 images found");
}

void TestViewer::ResizeGoesBackToTheChaptersBeginning()
{
    const qint32 chapter = album_->AddChapter("One");
    album_->AddParagraph(chapter, "First");
    album_->AddParagraph(chapter, "Second");
    Open(chapter);
    Press(Qt::Key_Plus);
    Press(Qt::Key_Right);
    QCOMPARE(Legend(), "Second");
    viewer_->resize(800, 600);
    QTRY_COMPARE(Legend(), "First");
    QCOMPARE(viewer_->Nblines, 1);
}

void TestViewer::MissingAndBrokenPictures()
{
    const qint32 chapter = album_->AddChapter("One");
    const QString gone = album_->AddPicture("gone.png");
    const QString broken = album_->AddPicture("broken.png");
    album_->AddPicture("sound.png");
    QFile::remove(gone);
    QFile file(broken);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("no picture") > 0);
    file.close();
    album_->AddParagraph(chapter, "text");
    Open(chapter);
    QStringList shown = Shown();
    shown.sort();
    QCOMPARE(shown, QStringList({"broken", "sound"}));
    for (const PictureBox* box : Boxes())
        QCOMPARE(box->GetPicture().isNull(), box->GetTag() == broken);
    QVERIFY(!viewer_->grab().isNull());
}

void TestViewer::BadFilterCostsOnlyThePictures()
{
    const qint32 chapter = album_->AddChapter("One");
    album_->AddPicture("a.png");
    album_->AddParagraph(chapter, "First", {{"Car0", "O'Neil"}});
    album_->AddParagraph(chapter, "Second");
    dialogs_->ExpectBoxBeginning("3075 ", Dialogs::Icon::Critical);
    Open(chapter);
    QTRY_COMPARE(Legend(), "First");
    QCOMPARE(Boxes().size(), 0);
    Press(Qt::Key_Right);
    QCOMPARE(Legend(), "Second");
    QCOMPARE(Boxes().size(), 1);
}

QTEST_MAIN(TestViewer)
#include "test_viewer.moc"
