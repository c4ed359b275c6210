// SPDX-License-Identifier: MIT
// The window that publishes: what is chosen there is what comes out, and nothing of others is lost.
#include "publish/frmPublish.h"
#include "support/AlbumTest.h"
#include "support/ModalDriver.h"

class TestPublishWindow : public AlbumTest
{
    Q_OBJECT

private:
    frmPublish* Open()
    {
        auto* window = Make<frmPublish>();
        window->show();
        return window;
    }

    static void SetPlace(QWidget& window, const QString& place)
    {
        ::Find<QLineEdit>(window, "txtPlace").setText(place);
    }

    static QString Step(QWidget& window) { return ::Find<QLabel>(window, "lblStep").text(); }

private slots:
    void PublishesWhatIsTicked()
    {
        album_->AddThreeChapters({60, 40});
        frmPublish* window = Open();
        ::Find<QTreeWidget>(*window, "treChapters")
            .topLevelItem(2)
            ->setCheckState(0, Qt::Unchecked);
        ::Find<QLineEdit>(*window, "txtTitle").setText("My Days");
        const QString place = album_->PathOf("pages");
        SetPlace(*window, place);
        QVERIFY(!::Find<QPushButton>(*window, "cmdShow").isEnabled());
        ::Click(*window, "cmdPublish");
        QCOMPARE(Step(*window), "Published.");
        QVERIFY(
            ::Find<QPlainTextEdit>(*window, "txtReport").toPlainText().startsWith("2 pictures"));
        QCOMPARE(QDir(place).entryList({"*.html"}),
                 QStringList({"chapter-1.html", "chapter-2.html", "index.html"}));
        QVERIFY(ReadFile(place + "/index.html").contains("<title>My Days</title>"));
        QString shown;
        frmPublish::Show = [&shown](const QString& path) { shown = path; };
        ::Click(*window, "cmdShow");
        QCOMPARE(shown, place + "/index.html");
        ::Find<QRadioButton>(*Open(), "optBook").click(); // not published
        frmPublish* next = Open();
        QVERIFY(::Find<QRadioButton>(*next, "optPages").isChecked());
        QCOMPARE(::Find<QLineEdit>(*next, "txtPlace").text(), place);
    }

    void AsksBeforeItReplacesAFileOfOthers()
    {
        album_->AddThreeChapters({60, 40});
        const QString place = album_->PathOf("page.html");
        WriteFile(place, "mine");
        frmPublish* window = Open();
        ::Find<QRadioButton>(*window, "optSinglePage").click();
        SetPlace(*window, album_->PathOf("page")); // without its ending
        const QString question = QDir::toNativeSeparators(place) + " exists already. Replace it?";
        dialogs_->ExpectBox(question, Icon::Question, Buttons::YesNo, Answer::No);
        ::Click(*window, "cmdPublish");
        QCOMPARE(ReadFile(place), "mine");
        dialogs_->ExpectSaveFile("Publish Story", place, "page.html");
        ::Click(*window, "cmdChoose"); // has asked already
        ::Click(*window, "cmdPublish");
        QVERIFY(ReadFile(place).contains("</html>"));
        WriteFile(place, "to be replaced");
        frmPublish* next = Open(); // what was published here is its own
        ::Click(*next, "cmdPublish");
        QVERIFY(ReadFile(place).contains("</html>"));
        QVERIFY(dialogs_->IsDone());
    }

    void TellsWhatCannotBeDone()
    {
        album_->AddThreeChapters({60, 40});
        frmPublish* window = Open();
        {
            SetPlace(*window, album_->PathOf("pages"));
            const FailingEngine failing(5); // as when another program has the album locked
            dialogs_->ExpectBoxBeginning("", Icon::Critical);
            ::Click(*window, "cmdPublish");
            QCOMPARE(Step(*window), "Nothing was published.");
            QVERIFY(!QFileInfo::exists(album_->PathOf("pages")));
        }
        const QString place = album_->PathOf("foreign");
        WriteFile(place + "/letter.txt", "mine");
        SetPlace(*window, place);
        dialogs_->ExpectBoxBeginning("", Icon::Warning);
        ::Click(*window, "cmdPublish");
        QCOMPARE(Step(*window), "Nothing was published.");
        QCOMPARE(QDir(place).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                 QStringList("letter.txt"));
        SetPlace(*window, " ");
        dialogs_->ExpectBox("Please say where to publish it.");
        ::Click(*window, "cmdPublish");
        SetPlace(*window, album_->PathOf("pages"));
        for (int row = 0; row < 3; ++row)
            ::Find<QTreeWidget>(*window, "treChapters")
                .topLevelItem(row)
                ->setCheckState(0, Qt::Unchecked);
        dialogs_->ExpectBox("Please tick at least one chapter.");
        ::Click(*window, "cmdPublish");
        QVERIFY(dialogs_->IsDone());
    }

    void StopsWithoutATrace()
    {
        for (int i = 0; i < 40; ++i)
            album_->AddPicture(QString::number(i) + ".png", {}, {1200, 900});
        album_->AddParagraph(album_->AddChapter("One"), "Text");
        frmPublish* window = Open();
        ::Find<QSpinBox>(*window, "spnMost").setValue(40);
        SetPlace(*window, album_->PathOf("pages"));
        QTimer stopping;
        connect(&stopping, &QTimer::timeout, this, [window] {
            auto& stop = ::Find<QPushButton>(*window, "cmdStop");
            if (stop.isVisible())
                stop.click();
        });
        stopping.start(0);
        ::Click(*window, "cmdPublish");
        QCOMPARE(Step(*window), "Stopped.");
        QVERIFY(!QFileInfo::exists(album_->PathOf("pages")));
        QVERIFY(!::Find<QPushButton>(*window, "cmdShow").isEnabled());
    }
};

QTEST_MAIN(TestPublishWindow)
#include "test_publish_window.moc"
