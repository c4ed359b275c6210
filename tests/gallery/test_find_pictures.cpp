// SPDX-License-Identifier: MIT
#include "gallery/ContactSheet.h"
#include "gallery/frmFindPictures.h"
#include "gallery/frmLinkedPictures.h"
#include "platform/data/Database.h"
#include "story/ParagraphLinks.h"
#include "support/AlbumFixture.h"
#include "support/ModalDriver.h"

#include <QtTest>

namespace {

// Three pictures, two chapters; the window open with a paragraph to link to.
struct Finding
{
    AlbumFixture album;
    frmFindPictures window;
    QStringList read;

    Finding()
    {
        album.AddPicture("lake.png", {{"Legend", "Anna swims"}, {"Car3", "Anna"}});
        album.AddPicture("town.png", {{"Legend", "Bob"}, {"Car6", "Bob"}});
        album.AddPicture("none.png");
        album.AddImageRow("/gone/x.png", {{"Car3", "Anna"}});
        const qint32 chapter = album.AddChapter("One");
        album.AddChapter("Two");
        window.CurrentParagraph = album.AddParagraph(chapter, "first");
        album.AddParagraph(chapter, "second");
        window.ReadPictures = [this](QWidget*, const QStringList& files) { read = files; };
    }

    QLineEdit& Words() { return Find<QLineEdit>(window, "txtWords"); }
    ContactSheet& Sheet() { return Find<ContactSheet>(window, "sheet"); }
    std::vector<qint32> Shown() { return Sheet().GetPictures(); }
    QString Sentence() { return Find<QLabel>(window, "lblSentence").text(); }
};

} // namespace

class TestFindPictures : public QObject
{
    Q_OBJECT

private slots:
    void FindsAsOneTypes()
    {
        Finding finding;
        finding.window.Values[3] = "Anna";
        finding.window.show();
        QTRY_COMPARE(finding.Shown(), std::vector<qint32>({1, 4}));
        QTRY_VERIFY(finding.Sentence().endsWith(": 2 pictures"));
        QTest::keyClicks(&finding.Words(), "swim");
        QVERIFY(finding.Sentence().endsWith(", and the words are swim: ..."));
        QTRY_COMPARE(finding.Shown(), std::vector<qint32>({1}));
        Find<QCheckBox>(finding.window, "chkMissing").click();
        QTRY_VERIFY(finding.Shown().empty());
        QVERIFY(!Find<QWidget>(finding.window, "cmdReadPictures").isEnabled());
        finding.Words().clear();
        QTRY_COMPARE(finding.Shown(), std::vector<qint32>({4}));
        Find<QCheckBox>(finding.window, "chkMissing").click();
        Find<QLineEdit>(finding.window, "txtFolder").setText("/gone");
        QTRY_COMPARE(finding.Shown(), std::vector<qint32>({4}));
        {
            const auto other = Database::Open(finding.album.GetAlbum());
            other->Execute("BEGIN EXCLUSIVE");
            Find<QLineEdit>(finding.window, "txtFolder").clear();
            QTest::qWait(300); // it has tried
            QCOMPARE(finding.Shown().size(), 1U);
            QVERIFY(!Find<QWidget>(finding.window, "lblFailure").isVisible());
            other->Execute("ROLLBACK");
            QTRY_COMPARE(finding.Shown().size(), 2U);
        }
        finding.window.Values[3] = "O'Hara"; // which no filter can hold
        finding.window.hide();
        finding.window.show();
        QTRY_VERIFY(Find<QWidget>(finding.window, "lblFailure").isVisible());
        QVERIFY(finding.Shown().empty());
    }

    void LinksWhatIsChosen()
    {
        Finding finding;
        finding.window.show();
        QTRY_COMPARE(finding.Shown().size(), 4U);
        QTest::keyClick(&finding.Words(), Qt::Key_Down);
        QTest::keyClick(&finding.Sheet(), Qt::Key_A, Qt::ControlModifier);
        auto& link = Find<QPushButton>(finding.window, "cmdLink");
        QCOMPARE(link.text(), "Link to Paragraph");
        link.click();
        QCOMPARE(link.text(), "Unlink from Paragraph");
        QCOMPARE(finding.album.Joined("SELECT count(*) FROM LinkedImages WHERE ParagraphId=1"),
                 "4");
        QVERIFY(finding.Sheet().GoTo(2));
        link.click();
        QCOMPARE(finding.album.Joined("SELECT count(*) FROM LinkedImages"), "3");
        QVERIFY(finding.Sheet().GoTo(4));
        Click(finding.window, "cmdReadPictures");
        QCOMPARE(finding.read.size(), 4);
    }

    void PutsLinkedPicturesInOrder()
    {
        AlbumFixture album;
        album.AddChapter("One");
        QStringList files;
        for (const char* name : {"a.png", "b.png", "c.png", "d.png"})
            files += album.AddPicture(name);
        files.insert(1, "/gone/x.png"); // is in no album
        SetLinked(1, files, true);
        SetLinked(2, files, true);
        SetLinked(1, files[4], true); // once is enough
        frmLinkedPictures window;
        window.CurrentParagraph = 1;
        window.show();
        auto& sheet = Find<ContactSheet>(window, "sheet");
        const auto names = [&](qint32 paragraph) {
            QString order;
            for (const QString& file : LinksInOrder(paragraph))
                order += QFileInfo(file).baseName();
            return order;
        };
        QCOMPARE(sheet.GetPictures(), std::vector<qint32>({1, 2, 3, 4}));
        sheet.GoTo(4);
        QTest::keyClick(&sheet, Qt::Key_Up, Qt::ControlModifier);
        QCOMPARE(names(1), "axbdc");
        Click(window, "cmdEarlier");
        QCOMPARE(names(1), "axdbc");
        QCOMPARE(sheet.GetPictures(), std::vector<qint32>({1, 4, 2, 3}));
        QCOMPARE(sheet.GetSelected(), std::vector<qint32>({4}));
        QVERIFY(sheet.GoTo(1));
        QVERIFY(!Find<QWidget>(window, "cmdEarlier").isEnabled());
        QTest::keyClick(&sheet, Qt::Key_Right, Qt::ShiftModifier);
        QTest::keyClick(&sheet, Qt::Key_Down, Qt::ControlModifier);
        QCOMPARE(names(1), "xbadc");
        emit sheet.Dropped(4); // a and d
        QCOMPARE(names(1), "xbcad");
        QVERIFY(!Find<QWidget>(window, "cmdLater").isEnabled());
        emit sheet.Dropped(0);
        QCOMPARE(names(1), "xadbc");
        QTest::keyClick(&sheet, Qt::Key_Delete);
        QCOMPARE(names(1), "xbc");
        QVERIFY(Find<QWidget>(window, "lost").isVisible());
        Click(window, "cmdTakeOutLost");
        QCOMPARE(names(1), "bc");
        QVERIFY(!Find<QWidget>(window, "lost").isVisible());
        QCOMPARE(names(2), "axbcd");
    }

    void DescribesThoseAfterThisOne()
    {
        Finding finding;
        finding.window.show();
        QTRY_COMPARE(finding.Shown().size(), 4U);
        QVERIFY(finding.Sheet().GoTo(2));
        WhenModal("frmEditImage", [](QWidget& indexing) {
            Find<QLineEdit>(indexing, "txtLegend").setText("Robert");
            Click(indexing, "cmdNextImage");
            Find<QLineEdit>(indexing, "txtLegend").setText("Nobody");
            indexing.close();
        });
        Click(finding.window, "cmdDescribe");
        QCOMPARE(finding.album.Joined("SELECT Legend FROM Image"), "Anna swims; Robert; Nobody; ");
        QTest::keyClicks(&finding.Words(), "robert");
        QTRY_COMPARE(finding.Shown(), std::vector<qint32>({2}));
    }

    void MakesAParagraphAtAPlace()
    {
        const std::tuple<int, int, QString> rows[] = {{0, 0, "One:xfirstsecond Two:"},
                                                      {0, 1, "One:firstxsecond Two:"},
                                                      {0, 2, "One:firstsecondx Two:"},
                                                      {1, 0, "One:firstsecond Two:x"}};
        for (const auto& [chapter, row, story] : rows) {
            Finding finding;
            finding.window.Values[3] = "Anna;Bob";
            finding.window.show();
            WhenModal("frmPlaceParagraph", [chapter = chapter, row = row](QWidget& placing) {
                Find<QComboBox>(placing, "cboChapter").setCurrentIndex(chapter);
                Find<QListWidget>(placing, "lstParagraph").setCurrentRow(row);
                WhenModal("frmEditParagraph", [](QWidget& editor) {
                    Find<QPlainTextEdit>(editor, "txtParagraph").setPlainText("x");
                    editor.close();
                });
                Click(placing, "cmdMakeParagraph");
            });
            Click(finding.window, "cmdMakeParagraph");
            QCOMPARE(finding.album.Story(), story);
            QCOMPARE(finding.album.Joined("SELECT Car3 FROM Paragraph WHERE Text='x'"), "Anna;Bob");
        }
    }
};

QTEST_MAIN(TestFindPictures)
#include "test_find_pictures.moc"
