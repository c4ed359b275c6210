// SPDX-License-Identifier: MIT
#include "platform/dialogs/Guard.h"
#include "platform/widgets/QtDialogs.h"
#include "support/AlbumFixture.h"
#include "support/ModalDriver.h"

#include <QTemporaryDir>
#include <QThread>
#include <QtTest>

#include <stdexcept>

// The real boxes, answered from inside.
class TestDialogs : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Dialogs::Install(&dialogs_); }

    void AsksWithTheButtonsGiven()
    {
        WhenModal("QMessageBox", [](QWidget& window) {
            auto& box = dynamic_cast<QMessageBox&>(window);
            QCOMPARE(box.text(), "Delete <b>it</b> ?");
            QCOMPARE(box.textFormat(), Qt::PlainText);
            QCOMPARE(box.icon(), QMessageBox::Question);
            QCOMPARE(box.standardButton(box.defaultButton()), QMessageBox::Cancel);
            QCOMPARE(box.button(QMessageBox::Yes)->text(), "Remove");
            QVERIFY(!box.button(QMessageBox::No)->text().isEmpty());
            box.button(QMessageBox::No)->click();
        });
        const auto answer = dialogs_.Ask({.text = "Delete <b>it</b> ?",
                                          .icon = Dialogs::Icon::Question,
                                          .buttons = Dialogs::Buttons::YesNoCancel,
                                          .defaultAnswer = Dialogs::Answer::Cancel,
                                          .yes = "Remove"});
        QCOMPARE(answer, Dialogs::Answer::No);
        WhenModal("QMessageBox", [](QWidget& window) { QTest::keyClick(&window, Qt::Key_Escape); });
        QCOMPARE(dialogs_.Ask({"Sure ?", Dialogs::Icon::None, Dialogs::Buttons::OkCancel}),
                 Dialogs::Answer::Cancel);
        WhenModal("QInputDialog", [](QWidget& window) {
            auto& box = dynamic_cast<QInputDialog&>(window);
            QCOMPARE(box.labelText(), "Salt & <b>Pepper</b>");
            for (const QLabel* label : box.findChildren<QLabel*>())
                QVERIFY(label->textFormat() == Qt::PlainText && !label->buddy());
            QCOMPARE(Find<QLabel>(box, "lblNote").text(), "Wrong");
            QCOMPARE(box.textValue(), "Old");
            QCOMPARE(box.textEchoMode(), QLineEdit::Password);
            box.setTextValue("New");
            box.accept();
        });
        QCOMPARE(dialogs_.AskText({.prompt = "Salt & <b>Pepper</b>",
                                   .note = "Wrong",
                                   .proposal = "Old",
                                   .isPassword = true}),
                 "New");
        // Cancelled and emptied are two things.
        for (const bool isAccepted : {false, true}) {
            WhenModal("QInputDialog", [isAccepted](QWidget& window) {
                dynamic_cast<QInputDialog&>(window).done(isAccepted ? QDialog::Accepted
                                                                    : QDialog::Rejected);
            });
            QCOMPARE(dialogs_.AskText({.prompt = "Name"}).isNull(), !isAccepted);
        }
        // What an action throws.
        WhenModal("QMessageBox", [](QWidget& window) {
            auto& box = dynamic_cast<QMessageBox&>(window);
            QCOMPARE(box.text(), "42 went wrong");
            QCOMPARE(box.icon(), QMessageBox::Critical);
            box.button(QMessageBox::Ok)->click();
        });
        QVERIFY(!RunGuarded([] { throw std::runtime_error("42 went wrong"); }));
        QVERIFY(RunGuarded([] {}));
    }

    void ChoosesFiles()
    {
        const QTemporaryDir folder;
        const auto choose = [](QWidget& window, const char* name) {
            window.findChild<QLineEdit*>()->setText(name);
            dynamic_cast<QDialog&>(window).done(QDialog::Accepted);
        };
        WhenModal("QFileDialog", [&choose](QWidget& window) {
            const auto& dialog = dynamic_cast<QFileDialog&>(window);
            QCOMPARE(dialog.windowTitle(), "Create a new Album");
            QCOMPARE(dialog.nameFilters(), QStringList("Album (*.alb)"));
            QCOMPARE(dialog.acceptMode(), QFileDialog::AcceptSave);
            choose(window, "mine");
        });
        QCOMPARE(dialogs_.AskSaveFile({"Create a new Album", "Album|*.alb", folder.path()}),
                 folder.filePath("mine.alb"));
        // A dot in the name is no extension, and the name that comes of it may be taken.
        WriteFile(folder.filePath("Rome 12.5.alb"));
        WhenModal("QFileDialog", [&choose](QWidget& window) {
            WhenModal("QMessageBox", [&choose](QWidget& box) {
                WhenModal("QFileDialog", [&](QWidget& again) { choose(again, "Rome 12.6"); });
                box.close();
            });
            choose(window, "Rome 12.5");
        });
        QCOMPARE(dialogs_.AskSaveFile({"Create", "Album|*.alb", folder.path()}),
                 folder.filePath("Rome 12.6.alb"));
        WhenModal("QFileDialog", [](QWidget& window) { dynamic_cast<QDialog&>(window).reject(); });
        QCOMPARE(dialogs_.AskOpenFile({"Open Album", "Album|*.alb", folder.path()}), "");
    }

    void LongWorkKeepsTheWindowsAlive()
    {
        const QThread* const own = QThread::currentThread();
        int beats = 0;
        QTimer heart;
        connect(&heart, &QTimer::timeout, [&beats] { ++beats; });
        heart.start(1);
        WhenModal(
            "frmLongWork",
            [&](QWidget& window) {
                QCOMPARE(Find<QLabel>(window, "lblWork").text(), "Working...");
                QTest::keyClick(&window, Qt::Key_Escape);
                QVERIFY(window.isVisible()); // until the work has noticed
            },
            false);
        bool isElsewhere = false;
        dialogs_.RunLong("Working...", true, [&](const auto& isStopped) {
            isElsewhere = QThread::currentThread() != own;
            while (!isStopped())
                QThread::msleep(5);
        });
        QVERIFY(isElsewhere);
        QVERIFY(beats > 0);
        QVERIFY(!QApplication::activeModalWidget());

        const auto fail = [](const auto&) { throw std::runtime_error("in vain"); };
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, dialogs_.RunLong("Working...", false, fail));
        // What cannot be stopped is not stopped by closing its window either.
        QTimer::singleShot(0, [] {
            QTRY_VERIFY(QApplication::activeModalWidget());
            QApplication::activeModalWidget()->close();
        });
        bool isDone = false;
        dialogs_.RunLong("Working...", false, [&](const auto& isStopped) {
            QThread::msleep(600);
            isDone = !isStopped();
        });
        QVERIFY(isDone);
    }

private:
    QtDialogs dialogs_;
};

QTEST_MAIN(TestDialogs)
#include "test_dialogs.moc"
