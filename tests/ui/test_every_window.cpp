// SPDX-License-Identifier: MIT
#include "EveryWindow.h"
#include "support/ModalDriver.h"

#include <QAccessible>
#include <QTranslator>

using namespace GeneralModule;

namespace {

// Parts of a control, such as the list of a combo box, are named by the control.
bool IsPartOfControl(const QWidget& widget)
{
    const QWidget* parent = widget.parentWidget();
    return widget.objectName().startsWith("qt_") || parent->inherits("QComboBox") ||
           parent->inherits("QAbstractScrollArea") || parent->inherits("QLineEdit") ||
           widget.inherits("QMenuBar") || widget.inherits("QSplitterHandle") ||
           (!widget.isVisible() && widget.objectName().isEmpty());
}

bool HasName(QWidget& widget)
{
    const bool takesInput = widget.focusPolicy() != Qt::NoFocus ||
                            widget.inherits("QAbstractButton") || widget.inherits("QProgressBar");
    QAccessibleInterface* face = QAccessible::queryAccessibleInterface(&widget);
    return !takesInput || (face && !face->text(QAccessible::Name).isEmpty());
}

bool IsCutOff(const QWidget& widget)
{
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return !label->wordWrap() && !label->text().isEmpty() &&
               label->width() < label->minimumSizeHint().width();
    return widget.inherits("QAbstractButton") && widget.width() < widget.sizeHint().width();
}

// The controls that Tab leads to from the one in focus, each once.
QStringList TabWay(QWidget& window)
{
    QStringList way;
    for (QWidget* focus = window.focusWidget(); focus && !way.contains(focus->objectName());
         focus = window.focusWidget()) {
        way += focus->objectName();
        // Where Tab writes into a text, Ctrl+Tab leads on.
        QTest::keyClick(focus, Qt::Key_Tab,
                        focus->inherits("QTextEdit") ? Qt::ControlModifier : Qt::NoModifier);
    }
    return way;
}

// Of radio buttons, Tab leads to the one that is chosen.
bool IsReachable(const QWidget& widget, const QStringList& way)
{
    return !(widget.focusPolicy() & Qt::TabFocus) || !widget.isEnabled() ||
           widget.inherits("QRadioButton") || way.contains(widget.objectName());
}

bool TakesWheel(QWidget& widget)
{
    auto* box = qobject_cast<QComboBox*>(&widget);
    if (!box)
        return false;
    const QSignalBlocker quiet(box);
    box->addItems({"first", "second", "third"});
    const int chosen = box->count() - 2;
    box->setCurrentIndex(chosen);
    TurnWheel(box->lineEdit() ? *static_cast<QWidget*>(box->lineEdit()) : *box, -1);
    return box->currentIndex() != chosen;
}

QStringList FaultsOf(QWidget& window)
{
    QStringList faults;
    const QStringList way = TabWay(window);
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        if (IsPartOfControl(*widget))
            continue;
        if (!HasName(*widget))
            faults += widget->objectName() + " has no name";
        if (TakesWheel(*widget))
            faults += widget->objectName() + " takes the wheel";
        if (!widget->isVisible())
            continue;
        const QRect place(widget->mapTo(&window, QPoint()), widget->size());
        if (IsCutOff(*widget))
            faults += widget->objectName() + " is cut off";
        if (!window.rect().contains(place))
            faults += widget->objectName() + " lies outside";
        if (!IsReachable(*widget, way))
            faults += widget->objectName() + " is not on Tab's way";
    }
    return faults;
}

} // namespace

// What holds for every window of the program.
class TestEveryWindow : public EveryWindowTest
{
    Q_OBJECT

private slots:
    void KeepsItsManners_data()
    {
        HelpComesAtTheWindowsChapter_data();
        QTest::newRow("help") << "frmHelp";
        QTest::newRow("opened by nothing") << "frmCDBuffer";
        QTest::newRow("place") << "frmPlaceParagraph";
    }

    void KeepsItsManners()
    {
        QFETCH(QString, name);
        isStoryRead_ = false;
        for (const bool isFrench : {false, true}) {
            QTranslator french; // goes out of use with this round
            if (isFrench) {
                QVERIFY(french.load(COMPILED_TRANSLATION));
                QCoreApplication::installTranslator(&french);
            }
            QWidget& window = Open(name);
            QCOMPARE(window.objectName(), name);
            QVERIFY(!window.windowTitle().isEmpty());
            QCOMPARE(FaultsOf(window).join("; "), "");
            // What the smallest laptop's screen holds.
            const QSize least = window.minimumSizeHint();
            QCOMPARE(least.boundedTo({1280, 720}), least);
            QVERIFY2(name != "frmReelvane" || least.width() <= 960,
                     qPrintable(QString("%1, French: %2").arg(least.width()).arg(isFrench)));
        }
    }

    void HelpComesAtTheWindowsChapter_data() { AddEveryWindow(); }

    void HelpComesAtTheWindowsChapter()
    {
        QFETCH(QString, name);
        static bool isInstalled = false;
        if (!std::exchange(isInstalled, true))
            InstallHelpKey(HelpFile());
        QWidget& window = Open(name);
        QString chapter;
        WhenModal("frmHelp", [&](QWidget& help) {
            const auto* item = Find<QListWidget>(help, "lstContents").currentItem();
            chapter = item ? item->data(Qt::UserRole).toString() : QString();
            help.close();
        });
        QTest::keyClick(window.focusWidget() ? window.focusWidget() : &window, Qt::Key_F1);
        QCOMPARE(chapter, name);
    }
};

QTEST_MAIN(TestEveryWindow)
#include "test_every_window.moc"
