// SPDX-License-Identifier: MIT
#include "platform/widgets/PictureBox.h"
#include "support/AlbumFixture.h"
#include "support/ModalDriver.h"
#include "support/ScriptedDialogs.h"
#include "viewer/frmReelvane.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

// A right click on a picture of the viewer, and what the viewer shows afterwards.
class TestViewerIndexing : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void ShowsTheNewLegend();
    void DropsWhatWasTakenOut();
    void GoesOnThroughTheList();

private:
    void Open(qint32 chapter);
    PictureBox& Box(int index)
    {
        return Find<PictureBox>(*viewer_, QStringLiteral("imgImage_%1").arg(index));
    }
    QString Legend() { return Find<QLabel>(*viewer_, "lblLegend").text(); }
    QStringList Shown();
    void Index(int box, const std::function<void(QWidget&)>& action);

    std::unique_ptr<AlbumFixture> album_;
    std::unique_ptr<ScriptedDialogs> dialogs_;
    std::unique_ptr<frmReelvane> viewer_;
};

void TestViewerIndexing::init()
{
    album_ = std::make_unique<AlbumFixture>();
    dialogs_ = std::make_unique<ScriptedDialogs>();
    viewer_ = std::make_unique<frmReelvane>();
}

void TestViewerIndexing::cleanup()
{
    viewer_.reset();
    dialogs_.reset();
    album_.reset();
}

void TestViewerIndexing::Open(qint32 chapter)
{
    viewer_->CurrentChapter = chapter;
    viewer_->resize(1000, 700);
    viewer_->show();
    QVERIFY(QTest::qWaitForWindowExposed(viewer_.get()));
    QTRY_VERIFY(!Box(0).GetTag().isEmpty());
}

QStringList TestViewerIndexing::Shown()
{
    QStringList files;
    for (int i = 0; i < mostPictures; ++i) {
        if (!Box(i).GetTag().isEmpty())
            files += Box(i).GetTag();
    }
    files.sort();
    return files;
}

void TestViewerIndexing::Index(int box, const std::function<void(QWidget&)>& action)
{
    WhenModal("frmEditImage", action);
    QTest::mouseClick(&Box(box), Qt::RightButton);
}

void TestViewerIndexing::ShowsTheNewLegend()
{
    const qint32 chapter = album_->AddChapter("One");
    album_->AddPicture("a.png", {{"Legend", "before"}});
    album_->AddParagraph(chapter, "Here: <[Picture Legend]>");
    Open(chapter);
    QCOMPARE(Legend(), "Here: before");
    Index(0, [](QWidget& window) {
        Find<QLineEdit>(window, "txtLegend").setText("after");
        window.close();
    });
    QCOMPARE(Legend(), "Here: after");
}

void TestViewerIndexing::DropsWhatWasTakenOut()
{
    QStringList files;
    for (const char* name : {"a.png", "b.png", "c.png"})
        files += album_->AddPicture(name);
    const qint32 chapter = album_->AddChapter("One");
    album_->AddParagraph(chapter, "text");
    Open(chapter);
    QCOMPARE(Shown(), files);
    const QString gone = Box(1).GetTag();
    dialogs_->ExpectBox("Do you also want to delete the file " + gone + " ?",
                        Dialogs::Icon::Question, Dialogs::Buttons::YesNoCancel,
                        Dialogs::Answer::No);
    Index(1, [](QWidget& window) { Find<QPushButton>(window, "cmdDelete").click(); });
    files.removeOne(gone);
    QCOMPARE(Shown(), files);
    QVERIFY(QFile::exists(gone));
}

void TestViewerIndexing::GoesOnThroughTheList()
{
    // Each fills the line, so that one is on the screen and the others wait in the list.
    for (const char* name : {"a.png", "b.png", "c.png"})
        album_->AddPicture(name, {}, {3000, 1000});
    viewer_->ImageSelection = "-";
    Open(0);
    QCOMPARE(Shown().size(), 1);
    QStringList seen;
    Index(0, [&](QWidget& window) {
        auto& next = Find<QPushButton>(window, "cmdNextImage");
        seen += Find<QLabel>(window, "lblFileName").text();
        next.click();
        seen += Find<QLabel>(window, "lblFileName").text();
        window.close();
    });
    QCOMPARE(seen.size(), 2);
    QVERIFY(seen[0] != seen[1]);
    // The one that was indexed on the way does not come again.
    QCOMPARE(Legend(), "1 images left");
    QTest::keyClick(viewer_.get(), Qt::Key_Down);
    QVERIFY2(!seen.contains(Shown().value(0)), qPrintable(Shown().join(' ')));
}

QTEST_MAIN(TestViewerIndexing)
#include "test_viewer_indexing.moc"
