// SPDX-License-Identifier: MIT
#include "platform/dialogs/Guard.h"
#include "platform/widgets/LiteralText.h"
#include "platform/widgets/OutlinedTicks.h"
#include "platform/widgets/QtDialogs.h"
#include "platform/widgets/TickDelegate.h"
#include "platform/widgets/WindowSize.h"
#include "platform/widgets/WorkProgress.h"
#include "support/ModalDriver.h"
#include "support/Rows.h"
#include "support/TestFiles.h"

#include <QSettings>
#include <QTemporaryDir>
#include <QTextDocument>
#include <QThread>
#include <QtTest>

#include <stdexcept>

class TestWidgets : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Dialogs::Install(&dialogs_); }

    // test_any_album looks at every window's.
    void TextsAreShownAsTheyStand()
    {
        QTextDocument tip;
        tip.setHtml(AsToolTip("Salt &amp; <b>\nc > d"));
        QCOMPARE(tip.toPlainText(), "Salt &amp; <b>\nc > d");
        QCOMPARE(AsWindowTitle("a[*]b" + QString(QChar(0)) + "\nc"), "a[*][*]b  c");
        const QString endless(1 << 20, u'x');
        QVERIFY(AsToolTip(endless).size() < 5000 && AsWindowTitle(endless).size() < 500);
    }

    void WorkTakesNothingButItsStop()
    {
        QWidget window;
        QVBoxLayout layout(&window);
        QLineEdit field;
        WorkProgress progress;
        layout.addWidget(&field);
        layout.addWidget(&progress);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        for (const char* way : {"escape", "button", "frame"}) {
            const InRow row(way);
            progress.Begin(10, true);
            QTest::keyClick(&field, Qt::Key_A);
            QVERIFY(progress.Advance(1));
            if (*way == 'e')
                QTest::keyClick(&field, Qt::Key_Escape);
            else if (*way == 'b')
                Click(progress, "cmdStop");
            else
                window.close();
            QVERIFY(!progress.Advance(2));
            progress.End();
            QVERIFY(window.isVisible());
        }
        QCOMPARE(field.text(), "");
        QTest::keyClick(&field, Qt::Key_A);
        QCOMPARE(field.text(), "a");
    }

    // Of a desktop whose style draws boxes in the color of what they stand on.
    void BoxesToTickStandOut()
    {
        QListWidget list;
        list.setItemDelegate(new TickDelegate(&list));
        QPalette palette(QColor(30, 30, 30));
        palette.setColor(QPalette::Base, QColor(20, 20, 20));
        palette.setColor(QPalette::Text, Qt::white);
        list.setPalette(palette);
        for (const char* name : {"One", "Two"})
            (new QListWidgetItem(name, &list))->setCheckState(Qt::Unchecked);
        list.show();
        QVERIFY(QTest::qWaitForWindowExposed(&list));
        const QImage shown = list.viewport()->grab().toImage();
        const int line = list.visualItemRect(list.item(0)).height();
        int edges = 0;
        for (int y = 0; y < 2 * line; ++y)
            edges += qGray(shown.pixel(line / 2, y)) > 120; // through the middle of both boxes
        QCOMPARE(edges, 4);
    }

    void ButtonsToTickStandOutInDarkWindows()
    {
        OutlinedTicks style("Fusion");
        QRadioButton choice("A");
        QCheckBox tick("B");
        QPalette palette(QColor(30, 30, 30));
        palette.setColor(QPalette::WindowText, Qt::white);
        for (QAbstractButton* button : std::initializer_list<QAbstractButton*>{&choice, &tick}) {
            button->setStyle(&style);
            button->setPalette(palette);
            const QImage shown = button->grab().toImage();
            int edges = 0;
            for (int x = 0; x < style.pixelMetric(QStyle::PM_IndicatorWidth, nullptr, button); ++x)
                edges += qGray(shown.pixel(x, shown.height() / 2)) > 100;
            QVERIFY2(edges >= 2 && edges <= 4, qPrintable(QString::number(edges)));
            button->setStyle(nullptr);
        }
    }

    void WindowsRememberTheirSize()
    {
        const QTemporaryDir folder;
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path());
        for (int time = 0; time < 3; ++time) {
            QWidget window;
            window.setObjectName("frmX");
            KeepWindowSize(&window, {300, 200});
            window.show();
            QCOMPARE(window.size(), time == 0 ? QSize(300, 200) : QSize(411, 233));
            time == 0 ? window.resize(411, 233) : window.showMaximized(); // which is not kept
            window.hide();
        }
    }

    // The real boxes, answered from inside.
    void AsksWithTheButtonsGiven()
    {
        WhenModal("QMessageBox", [](QWidget& window) {
            auto& box = dynamic_cast<QMessageBox&>(window);
            QCOMPARE(box.text(), "Delete <b>it</b> ?");
            QCOMPARE(box.textFormat(), Qt::PlainText);
            QCOMPARE(box.standardButton(box.defaultButton()), QMessageBox::Cancel);
            QCOMPARE(box.button(QMessageBox::Yes)->text(), "Remove");
            box.button(QMessageBox::No)->click();
        });
        const auto answer = dialogs_.Ask({.text = "Delete <b>it</b> ?",
                                          .icon = Dialogs::Icon::Question,
                                          .buttons = Dialogs::Buttons::YesNoCancel,
                                          .defaultAnswer = Dialogs::Answer::Cancel,
                                          .yes = "Remove"});
        QCOMPARE(answer, Dialogs::Answer::No);
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
        WhenModal("QMessageBox", [](QWidget& window) {
            QCOMPARE(dynamic_cast<QMessageBox&>(window).text(), "42 went wrong");
            window.close();
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
            QCOMPARE(dynamic_cast<QFileDialog&>(window).nameFilters(),
                     QStringList("Album (*.alb)"));
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
    }

    void LongWorkKeepsTheWindowsAlive()
    {
        const auto look = [](QWidget& window) { // which comes while the work goes on
            QCOMPARE(Find<QLabel>(window, "lblWork").text(), "Working...");
            QTest::keyClick(&window, Qt::Key_Escape);
            QVERIFY(window.isVisible()); // until the work has noticed
        };
        WhenModal("frmLongWork", look, false);
        dialogs_.RunLong("Working...", true, [&](const auto& isStopped) {
            while (!isStopped())
                QThread::msleep(5);
        });
        QVERIFY(!QApplication::activeModalWidget());
        const auto fail = [](const auto&) { throw std::runtime_error("in vain"); };
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, dialogs_.RunLong("Working...", false, fail));
    }

private:
    QtDialogs dialogs_;
};

QTEST_MAIN(TestWidgets)
#include "test_widgets.moc"
