// SPDX-License-Identifier: MIT
#include "platform/widgets/HeldEscape.h"
#include "platform/widgets/KeyPreview.h"
#include "platform/widgets/LiteralText.h"
#include "platform/widgets/PictureBox.h"
#include "platform/widgets/WindowSize.h"
#include "platform/widgets/WorkProgress.h"

#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTextDocument>
#include <QVBoxLayout>
#include <QtTest>

namespace {

void SendKey(QWidget& target, int key, bool isRepeated)
{
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, {}, isRepeated);
    QCoreApplication::sendEvent(&target, &event);
}

} // namespace

class TestWidgets : public QObject
{
    Q_OBJECT

private slots:
    void TextsAreShownAsTheyStand()
    {
        for (const QString& text : {QString("<img src='x'> & Co"), QString("Salt &amp; Pepper"),
                                    QString("a < b\nc > d")}) {
            QTextDocument tip;
            tip.setHtml(AsToolTip(text));
            QCOMPARE(tip.toPlainText(), text);
            QVERIFY(Qt::mightBeRichText(AsToolTip(text)));
        }
        QCOMPARE(AsToolTip({}), "");
        QWidget window;
        window.setWindowTitle(AsWindowTitle("a[*]b" + QString(QChar(0)) + "\nc"));
        QCOMPARE(window.windowTitle(), "a[*][*]b  c"); // which the toolkit shows as "a[*]b  c"
        const QString endless(1 << 20, u'x');
        QVERIFY(AsToolTip(endless).size() < 5000 && AsWindowTitle(endless).size() < 500);
    }

    void KeyPreviewSeesEachKeyOnce()
    {
        QWidget window;
        auto* layer = new QWidget(&window);
        auto* control = new QWidget(layer); // leaves every key unused
        int seen = 0;
        new KeyPreview(&window, [&seen](QKeyEvent&) {
            ++seen;
            return false;
        });
        for (int expected = 1; expected <= 3; ++expected) {
            QTest::keyClick(control, Qt::Key_X);
            QCOMPARE(seen, expected);
        }
    }

    void WorkTakesNothingButItsStop()
    {
        QWidget window;
        QVBoxLayout layout(&window);
        QLineEdit field;
        QPushButton other;
        WorkProgress progress;
        layout.addWidget(&field);
        layout.addWidget(&other);
        layout.addWidget(&progress);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        const QSignalSpy clicks(&other, &QPushButton::clicked);
        const auto use = [&] {
            for (const int key : {Qt::Key_A, Qt::Key_Return})
                QTest::keyClick(&field, Qt::Key(key));
            QTest::mouseClick(&other, Qt::LeftButton);
        };
        const std::function<void()> ways[] = {
            [&] { QTest::keyClick(&field, Qt::Key_Escape); },
            [&] { QTest::mouseClick(progress.findChild<QPushButton*>("cmdStop"), Qt::LeftButton); },
            [&] { window.close(); }};
        for (const auto& stop : ways) {
            progress.Begin(10, true);
            use();
            QVERIFY(progress.Advance(1));
            stop();
            QVERIFY(!progress.Advance(2));
            progress.End();
            QVERIFY(window.isVisible());
        }
        QCOMPARE(field.text(), "");
        QCOMPARE(clicks.count(), 0);
        use();
        QCOMPARE(field.text(), "a");
        QCOMPARE(clicks.count(), 1);
    }

    void WindowsRememberTheirSize()
    {
        const QTemporaryDir folder;
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path());
        const auto open = [](QWidget& window) {
            window.setObjectName("frmX");
            KeepWindowSize(&window, {300, 200});
            window.show();
        };
        for (const QSize& size : {QSize(300, 200), QSize(411, 233)}) {
            QWidget window;
            open(window);
            QCOMPARE(window.size(), size);
            window.resize(411, 233);
            window.hide();
        }
        QWidget window;
        open(window);
        window.showMaximized();
        window.hide();
        QWidget next;
        open(next);
        QCOMPARE(next.size(), QSize(411, 233));
    }

    void HeldEscapeClosesOneWindow()
    {
        InstallHeldEscapeFilter();
        QDialog lower;
        QDialog upper(&lower);
        lower.show();
        upper.show();
        SendKey(upper, Qt::Key_Escape, false);
        QVERIFY(!upper.isVisible());
        SendKey(lower, Qt::Key_Escape, true);
        QVERIFY(lower.isVisible());
        // As X11 repeats a key after a window has closed.
        for (const auto type : {QEvent::KeyRelease, QEvent::KeyPress}) {
            QKeyEvent event(type, Qt::Key_Escape, Qt::NoModifier);
            event.setTimestamp(700);
            QCoreApplication::sendEvent(&lower, &event);
        }
        QVERIFY(lower.isVisible());
        SendKey(lower, Qt::Key_Escape, false);
        QVERIFY(!lower.isVisible());
    }

    void ADoubleClickIsOnePress()
    {
        PictureBox box;
        QSignalSpy presses(&box, &PictureBox::Pressed);
        QTest::mouseClick(&box, Qt::LeftButton);
        QMouseEvent second(QEvent::MouseButtonDblClick, QPointF(1, 1), QPointF(1, 1),
                           Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&box, &second);
        QCOMPARE(presses.size(), 1);
    }
};

QTEST_MAIN(TestWidgets)
#include "test_widgets.moc"
