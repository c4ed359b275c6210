// SPDX-License-Identifier: MIT
#include "core/AlbumPassword.h"
#include "gallery/ContactSheet.h"
#include "gallery/SheetPicture.h"
#include "platform/widgets/PictureBox.h"
#include "support/AlbumTest.h"
#include "support/ModalDriver.h"

using namespace GeneralModule;

class TestContactSheet : public AlbumTest
{
    Q_OBJECT

private slots:
    void OnlyWhatIsSeenIsReadAndLookedUp()
    {
        AddRows(20'000);
        ContactSheet& sheet = Open();
        QSet<QString> looked;
        sheet.SetLinked([&looked](const QString& file) {
            looked.insert(file);
            return false;
        });
        ShowAll();
        QTRY_VERIFY(!sheet.IsWorking() && !looked.isEmpty());
        QVERIFY2(looked.size() < 100, qPrintable(QString::number(looked.size())));
        QVERIFY(Words(0).contains("missing") && !Words(200).contains("missing"));
        looked.clear();
        sheet.scrollToBottom();
        sheet.repaint();
        QVERIFY(looked.contains("/none/20000.jpg") && looked.size() < 100);
    }

    void SelectionAndPlaceStayWhereTheyCan()
    {
        AddRows(500);
        ContactSheet& sheet = Open();
        ShowAll();
        const std::vector<qint32> all = AllPictureIds();
        QVERIFY(sheet.GoTo(all[300]));
        QTest::keyClick(&sheet, Qt::Key_Right, Qt::ShiftModifier);
        QTest::keyClick(&sheet, Qt::Key_Right, Qt::ShiftModifier);
        sheet.verticalScrollBar()->setValue(sheet.verticalScrollBar()->value() - 37);
        const int top = sheet.visualRect(sheet.currentIndex()).top();
        QCOMPARE(sheet.GetSelected(), Part(all, 300, 3));
        QSignalSpy selections(&sheet, &ContactSheet::SelectionChanged);
        QSignalSpy currents(&sheet, &ContactSheet::CurrentChanged);

        std::vector<qint32> fewer = Part(all, 100, 400);
        sheet.ShowPictures(fewer);
        QCOMPARE(sheet.GetSelected(), Part(all, 300, 3));
        QCOMPARE(sheet.GetCurrent(), all[302]);
        QCOMPARE(sheet.visualRect(sheet.currentIndex()).top(), top);
        QCOMPARE(selections.count() + currents.count(), 0);

        std::erase(fewer, all[302]); // what took its place is current
        sheet.ShowPictures(fewer);
        QCOMPARE(sheet.GetSelected(), Part(all, 300, 2));
        QCOMPARE(sheet.GetCurrent(), all[303]);
        QCOMPARE(selections.count(), 1);
        QCOMPARE(currents.count(), 1);
        sheet.ShowPictures({});
        QCOMPARE(sheet.GetCurrent(), 0);
        QVERIFY(sheet.GetSelected().empty() && !sheet.GoTo(all[0]));
    }

    void EveryPictureIsReachedByKeys()
    {
        AddRows(53);
        ContactSheet& sheet = Open();
        ShowAll();
        const std::vector<qint32> all = AllPictureIds();
        int columns = 1;
        while (Place(columns).top() == Place(0).top())
            ++columns;
        QVERIFY(columns > 2 && 53 % columns != 0);
        sheet.GoTo(all[0]);
        Press(Qt::Key_Down);
        QCOMPARE(sheet.GetCurrent(), all[std::size_t(columns)]);
        QCOMPARE(Place(columns).left(), Place(0).left());
        Press(Qt::Key_Left); // to the end of the line above
        QCOMPARE(sheet.GetCurrent(), all[std::size_t(columns - 1)]);
        Press(Qt::Key_Up);
        QCOMPARE(sheet.GetCurrent(), all[std::size_t(columns - 1)]);
        for (int i = 0; i < 20; ++i)
            Press(Qt::Key_Down);
        QCOMPARE(sheet.GetCurrent(), all.back()); // its column has no picture in the last line
        Press(Qt::Key_Home);
        QCOMPARE(sheet.GetSelected(), Part(all, 0, 1));
        QTest::keyClick(&sheet, Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(sheet.GetSelected(), all);
        const int side = sheet.GetSide();
        QTest::keyClick(&sheet, Qt::Key_Plus, Qt::ControlModifier);
        QVERIFY(sheet.GetSide() > side);
        for (int i = 0; i < 20; ++i)
            QTest::keyClick(&sheet, Qt::Key_Minus, Qt::ControlModifier);
        QVERIFY(sheet.GetSide() < side && sheet.GetSide() > 50);
        QCOMPARE(Place(1).top(), Place(0).top());
    }

    void TypingFindsLegendsAndNames()
    {
        album_->AddImageRow("/walk/first.jpg", {{"Legend", "Harbour"}});
        album_->AddImageRow("/walk/boat in the harbour.jpg", {{"Legend", "Évening"}});
        album_->AddImageRow("/walk/second.jpg", {{"Legend", "The harbour [old]"}});
        album_->AddImageRow("/walk/harbour.jpg");
        ContactSheet& sheet = Open();
        std::vector<qint32> ids = AllPictureIds();
        std::ranges::reverse(ids); // the sheet's order counts
        sheet.ShowPictures(ids);
        sheet.GoTo(ids[0]); // harbour.jpg
        const auto type = [&](const QString& text) {
            QTest::qWait(QApplication::keyboardInputInterval() + 20);
            for (const QChar letter : text) {
                QKeyEvent press(QEvent::KeyPress, letter == ' ' ? Qt::Key_Space : 0, {}, letter);
                QCoreApplication::sendEvent(&sheet, &press);
            }
            return 4 - int(std::ranges::find(ids, sheet.GetCurrent()) - ids.begin());
        };
        QCOMPARE(type("h"), 1);      // begins with it, the next one
        QCOMPARE(type("harb"), 4);   // from the next one on, round the end
        QCOMPARE(type("the h"), 3);  // a blank is a letter
        QCOMPARE(type("in the"), 2); // holds it
        QCOMPARE(type("[o"), 3);     // nothing is a wildcard
        QCOMPARE(type("walk"), 3);   // folders do not count
        QCOMPARE(type("éve"), 2);    // nor does letter case
        QCOMPARE(type(" "), 2);
        QTest::qWait(QApplication::keyboardInputInterval() + 20);
        QTest::keyClick(&sheet, 'H', Qt::ShiftModifier); // a capital letter selects no range
        QCOMPARE(sheet.GetSelected().size(), 1U);
        // Shift goes on from there, wherever the last key or click was.
        QTest::mouseClick(sheet.viewport(), Qt::LeftButton, {}, Place(0).center());
        sheet.GoTo(ids[2]);
        QTest::keyClick(&sheet, Qt::Key_Right, Qt::ShiftModifier);
        QCOMPARE(sheet.GetSelected(), Part(ids, 2, 2));
        QTest::keyClick(&sheet, Qt::Key_Home, Qt::ShiftModifier);
        QCOMPARE(sheet.GetSelected(), Part(ids, 0, 3));
        sheet.GoTo(ids[1]);
        QTest::mouseClick(sheet.viewport(), Qt::LeftButton, Qt::ShiftModifier, Place(3).center());
        QCOMPARE(sheet.GetSelected(), Part(ids, 1, 3));
    }

    void ThePictureIsShownLarge()
    {
        std::vector<QString> files;
        for (const char* name : {"a.jpg", "b.jpg", "c.jpg"})
            files.push_back(album_->AddPicture(name, {{"Legend", name}}));
        ContactSheet& sheet = Open();
        ShowAll();
        sheet.GoTo(AllPictureIds()[0]);
        Press(Qt::Key_Return);
        QPointer<SheetPicture> large = sheet.window()->findChild<SheetPicture*>();
        QVERIFY(large && large->size() == sheet.window()->size());
        QCOMPARE(Find<PictureBox>(*large, "imgImage").GetTag(), files[0]);
        QTest::keyClick(large, Qt::Key_Left); // there is none before
        QTest::keyClick(large, Qt::Key_Right);
        QCOMPARE(Find<PictureBox>(*large, "imgImage").GetTag(), files[1]);
        QCOMPARE(Find<QLabel>(*large, "lblCaption").text(), "b.jpg");
        QCOMPARE(sheet.GetSelected(), Part(AllPictureIds(), 1, 1));
        sheet.window()->resize(500, 300);
        QTRY_COMPARE(large->size(), QSize(500, 300));
        QTest::keyClick(large, Qt::Key_Escape);
        QTRY_VERIFY(!large);
        QVERIFY(sheet.hasFocus() && sheet.window()->isVisible());
        Press(Qt::Key_A, Qt::ControlModifier);
        Press(Qt::Key_Return);
        QTest::keyClick(sheet.window()->findChild<SheetPicture*>(), Qt::Key_Right);
        QCOMPARE(sheet.GetSelected().size(), std::size_t(3)); // which looking does not change
    }

    void MarksAreToldInWords()
    {
        const QString file = album_->AddPicture("a.jpg", {{"Legend", "A <b>boat</b>"}});
        album_->AddImageRow("/none/b.jpg", {{"Car3", "Anna"}});
        ContactSheet& sheet = Open();
        sheet.SetLinked([&file](const QString& each) { return each == file; });
        ShowAll();
        QTRY_VERIFY(!sheet.IsWorking());
        QCOMPARE(Words(0), "A <b>boat</b>, a.jpg, linked, not indexed");
        QCOMPARE(Words(1), "b.jpg, file is missing");
        album_->Execute("UPDATE Image SET Car3='Paul', Legend='A ship' WHERE Legend<>''");
        QFile::remove(file);
        sheet.SetCaptions(ContactSheet::Captions::Name);
        sheet.MarksChanged();
        QTRY_COMPARE(Words(0), "A ship, a.jpg, linked, file is missing");
        QCOMPARE(sheet.model()->index(0, 0).data().toString(), "a.jpg");
    }

    void AProtectedAlbumLeavesNoThumbnails()
    {
        album_->AddPicture("a.jpg", {}, {600, 400});
        QVERIFY(SetAlbumPassword("secret"));
        ContactSheet& sheet = Open();
        ShowAll();
        sheet.grab();
        QTRY_VERIFY(!sheet.IsWorking());
        QVERIFY(!QFile::exists(album_->PathOf("cache/thumbnails")));
        QVERIFY(SetAlbumPassword({}));
        album_->AddPicture("b.jpg", {}, {600, 400});
        ShowAll();
        QTRY_VERIFY(QFile::exists(album_->PathOf("cache/thumbnails")));
    }

    // The pictures come when the album can be read again.
    void AnAlbumThatCannotBeReadIsWaitedFor()
    {
        AddRows(50);
        ContactSheet& sheet = Open();
        {
            const FailingEngine failure(0);
            sheet.ShowPictures({1, 2, 3});
            sheet.grab();
            QCOMPARE(Words(1), QString());
        }
        sheet.MarksChanged();
        QTRY_COMPARE(Words(1), "2.jpg, file is missing");
        sheet.ShowPictures({3, 999, 4});
        QCOMPARE(Words(1), QString()); // no longer in the album
        ReleaseAlbum();
        sheet.MarksChanged();
        sheet.grab();
        QCOMPARE(Words(0), QString());
        QTRY_VERIFY(!sheet.IsWorking());
    }

private:
    ContactSheet& Open()
    {
        auto* window = Make<QMainWindow>();
        sheet_ = new ContactSheet;
        window->setCentralWidget(sheet_);
        window->resize(800, 500);
        window->show();
        window->activateWindow();
        sheet_->setFocus();
        if (!QTest::qWaitForWindowActive(window))
            qFatal("the window does not come");
        return *sheet_;
    }

    void ShowAll()
    {
        sheet_->ShowPictures(AllPictureIds());
        QCoreApplication::processEvents();
    }

    // Pictures without a file, named by their number, which are indexed.
    void AddRows(int count)
    {
        album_->Execute(QString("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n "
                                "WHERE i<%1) INSERT INTO Image (File,Car0) "
                                "SELECT '/none/'||i||'.jpg','Sea' FROM n")
                            .arg(count));
    }

    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(sheet_, key, modifiers);
    }
    QRect Place(int row) const { return sheet_->visualRect(sheet_->model()->index(row, 0)); }
    QString Words(int row) const
    {
        return sheet_->model()->index(row, 0).data(Qt::AccessibleTextRole).toString();
    }
    static std::vector<qint32> Part(const std::vector<qint32>& ids, int first, int count)
    {
        return {ids.begin() + first, ids.begin() + first + count};
    }

    ContactSheet* sheet_ = nullptr; // goes with its window
};

QTEST_MAIN(TestContactSheet)
#include "test_contact_sheet.moc"
