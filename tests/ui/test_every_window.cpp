// SPDX-License-Identifier: MIT
#include "catalogue/frmCDBuffer.h"
#include "catalogue/frmEditImage.h"
#include "catalogue/frmEditLabels.h"
#include "catalogue/frmEditTables.h"
#include "catalogue/frmLoadFiles.h"
#include "catalogue/frmReloadPictures.h"
#include "core/StartUp.h"
#include "platform/widgets/HelpWindow.h"
#include "story/frmEditParagraph.h"
#include "story/frmOrganizeParagraphs.h"
#include "support/AlbumFixture.h"
#include "support/ModalDriver.h"
#include "support/ScriptedDialogs.h"
#include "ui/main/frmAbout.h"
#include "ui/main/frmOpenChapter.h"
#include "ui/main/frmRepairAlbum.h"
#include "viewer/frmFullScreen.h"
#include "viewer/frmReelvane.h"
#include "viewer/frmSelectImages.h"

#include <QAccessible>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>
#include <QTextBrowser>
#include <QTranslator>
#include <QtTest>

#include <memory>

using namespace GeneralModule;

// What holds for every window of the program.
class TestEveryWindow : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void KeepsItsManners_data();
    void KeepsItsManners();
    void HelpComesAtTheWindowsChapter_data();
    void HelpComesAtTheWindowsChapter();
    void HelpFindsWhatIsAskedFor();

private:
    // Shown, with an album behind it that has a chapter, a paragraph and pictures.
    QWidget& Open(const QString& name);

    std::unique_ptr<AlbumFixture> album_;
    std::unique_ptr<ScriptedDialogs> dialogs_;
    std::unique_ptr<frmReelvane> viewer_;
    std::unique_ptr<QWidget> window_;
    qint32 chapter_ = 0;
    qint32 paragraph_ = 0;
    QString picture_;
};

namespace {

bool TakesInput(const QWidget& widget)
{
    return widget.focusPolicy() != Qt::NoFocus || widget.inherits("QAbstractButton");
}

// Parts of a control, such as the list of a combo box, are named by the control.
bool IsPartOfControl(const QWidget& widget)
{
    const QWidget* parent = widget.parentWidget();
    return widget.objectName().startsWith("qt_") || parent->inherits("QComboBox") ||
           parent->inherits("QAbstractScrollArea") || parent->inherits("QLineEdit") ||
           widget.inherits("QMenuBar") || widget.inherits("QSplitterHandle");
}

QString AccessibleNameOf(QWidget& widget)
{
    QAccessibleInterface* face = QAccessible::queryAccessibleInterface(&widget);
    return face ? face->text(QAccessible::Name) : QString();
}

bool IsCutOff(const QWidget& widget)
{
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return !label->wordWrap() && !label->text().isEmpty() &&
               label->width() < label->minimumSizeHint().width();
    return widget.inherits("QAbstractButton") && widget.width() < widget.sizeHint().width();
}

QStringList FaultsOf(QWidget& window)
{
    QStringList faults;
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisible() || IsPartOfControl(*widget))
            continue;
        if (TakesInput(*widget) && AccessibleNameOf(*widget).isEmpty())
            faults += widget->objectName() + " has no name";
        if (IsCutOff(*widget))
            faults += widget->objectName() + " is cut off";
        if (!window.rect().contains(QRect(widget->mapTo(&window, QPoint()), widget->size())) &&
            !widget->parentWidget()->inherits("QScrollArea"))
            faults += widget->objectName() + " lies outside";
    }
    return faults;
}

// The controls that Tab leads to from the one in focus, each once.
QStringList TabWay(QWidget& window)
{
    QStringList way;
    for (int i = 0; i < 100; ++i) {
        QWidget* focus = window.focusWidget();
        if (!focus || way.contains(focus->objectName()))
            break;
        way += focus->objectName();
        // Where Tab writes into a text, Ctrl+Tab leads on.
        QTest::keyClick(focus, Qt::Key_Tab,
                        focus->inherits("QTextEdit") ? Qt::ControlModifier : Qt::NoModifier);
    }
    return way;
}

bool IsReachable(const QWidget& widget, const QStringList& way)
{
    // Of radio buttons, Tab leads to the one that is chosen.
    return way.contains(widget.objectName()) || widget.inherits("QRadioButton");
}

} // namespace

void TestEveryWindow::init()
{
    album_ = std::make_unique<AlbumFixture>();
    dialogs_ = std::make_unique<ScriptedDialogs>();
    chapter_ = album_->AddChapter("Chapter");
    paragraph_ = album_->AddParagraph(chapter_, "Text");
    picture_ = album_->AddPicture("a.jpg");
    album_->AddPicture("b.jpg");
}

void TestEveryWindow::cleanup()
{
    window_.reset();
    viewer_.reset();
    dialogs_.reset();
    album_.reset();
}

QWidget& TestEveryWindow::Open(const QString& name)
{
    window_.reset(); // before the viewer, which may be its parent
    if (name == "frmOpenChapter") {
        window_ = std::make_unique<frmOpenChapter>(album_->GetAlbum());
    } else if (name == "frmReelvane") {
        window_ = std::make_unique<frmReelvane>();
    } else if (name == "frmFullScreen") {
        viewer_ = std::make_unique<frmReelvane>();
        window_ = std::make_unique<frmFullScreen>(*viewer_);
    } else if (name == "frmEditParagraph") {
        auto window = std::make_unique<frmEditParagraph>();
        window->CurrentChapter = chapter_;
        window->CurrentParagraph = paragraph_;
        window_ = std::move(window);
    } else if (name == "frmOrganizeParagraphs") {
        auto window = std::make_unique<frmOrganizeParagraphs>();
        window->CurrentChapter = chapter_;
        window->CurrentParagraph = paragraph_;
        window_ = std::move(window);
    } else if (name == "frmEditImage") {
        auto window = std::make_unique<frmEditImage>();
        window->CurrentImage = picture_;
        window_ = std::move(window);
    } else if (name == "frmEditTables") {
        window_ = std::make_unique<frmEditTables>(picture_, nullptr);
    } else if (name == "frmEditLabels") {
        window_ = std::make_unique<frmEditLabels>();
    } else if (name == "frmLoadFiles") {
        window_ = std::make_unique<frmLoadFiles>();
    } else if (name == "frmReloadPictures") {
        window_ = std::make_unique<frmReloadPictures>();
    } else if (name == "frmSelectImages") {
        window_ = std::make_unique<frmSelectImages>();
    } else if (name == "frmCDBuffer") {
        window_ = std::make_unique<frmCDBuffer>();
    } else if (name == "frmAbout") {
        window_ = std::make_unique<frmAbout>();
    } else if (name == "frmRepairAlbum") {
        window_ = std::make_unique<frmRepairAlbum>();
    } else if (name == "frmHelp") {
        window_ = std::make_unique<HelpWindow>(HelpFile(), nullptr);
    }
    window_->show();
    window_->activateWindow();
    if (!QTest::qWaitForWindowActive(window_.get()))
        qFatal("the window does not come");
    return *window_;
}

void TestEveryWindow::KeepsItsManners_data()
{
    HelpComesAtTheWindowsChapter_data();
    QTest::newRow("help") << "frmHelp";
    QTest::newRow("opened by nothing") << "frmCDBuffer";
}

void TestEveryWindow::KeepsItsManners()
{
    QFETCH(QString, name);
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
        QVERIFY2(window.minimumSizeHint().width() <= 1280 &&
                     window.minimumSizeHint().height() <= 720,
                 qPrintable(name));
        const QStringList way = TabWay(window);
        for (const QWidget* control : window.findChildren<QWidget*>()) {
            if (control->isVisible() && control->isEnabled() && !IsPartOfControl(*control) &&
                (control->focusPolicy() & Qt::TabFocus))
                QVERIFY2(IsReachable(*control, way),
                         qPrintable(control->objectName() + " not in " + way.join(" ")));
        }
    }
}

void TestEveryWindow::HelpComesAtTheWindowsChapter_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name :
         {"frmOpenChapter", "frmReelvane", "frmFullScreen", "frmEditParagraph",
          "frmOrganizeParagraphs", "frmEditImage", "frmEditTables", "frmEditLabels", "frmLoadFiles",
          "frmReloadPictures", "frmSelectImages", "frmAbout", "frmRepairAlbum"})
        QTest::newRow(name) << name;
}

void TestEveryWindow::HelpComesAtTheWindowsChapter()
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

void TestEveryWindow::HelpFindsWhatIsAskedFor()
{
    QWidget& help = Open("frmHelp");
    auto& text = Find<QTextBrowser>(help, "txtHelp");
    auto& search = Find<QLineEdit>(help, "txtSearch");
    QTest::keyClicks(&search, "moved");
    const int first = text.textCursor().position();
    QCOMPARE(text.textCursor().selectedText().toLower(), "moved");
    QTest::keyClick(&search, Qt::Key_Return);
    QVERIFY(text.textCursor().position() > first);
    for (int i = 0; i < 100 && text.textCursor().position() != first; ++i)
        QTest::keyClick(&search, Qt::Key_Return);
    QCOMPARE(text.textCursor().position(), first); // round again
    QVERIFY(!Find<QLabel>(help, "lblNotFound").isVisible());
    QTest::keyClicks(&search, "zzz");
    QVERIFY(Find<QLabel>(help, "lblNotFound").isVisible());

    auto& contents = Find<QListWidget>(help, "lstContents");
    int place = -1;
    for (int row = 0; row < contents.count(); ++row) {
        contents.setCurrentRow(row);
        QVERIFY2(text.verticalScrollBar()->value() > place ||
                     place == text.verticalScrollBar()->maximum(),
                 qPrintable(contents.item(row)->text()));
        place = text.verticalScrollBar()->value();
    }
    QVERIFY(place > 0);
}

QTEST_MAIN(TestEveryWindow)
#include "test_every_window.moc"
