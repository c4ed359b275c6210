// SPDX-License-Identifier: MIT
#include "catalogue/frmCDBuffer.h"
#include "catalogue/frmEditImage.h"
#include "catalogue/frmEditLabels.h"
#include "catalogue/frmEditTables.h"
#include "catalogue/frmLoadFiles.h"
#include "catalogue/frmReloadPictures.h"
#include "core/Album.h"
#include "core/Parameters.h"
#include "core/StartUp.h"
#include "platform/widgets/HelpWindow.h"
#include "story/frmEditParagraph.h"
#include "story/frmOrganizeParagraphs.h"
#include "support/AlbumTest.h"
#include "support/ModalDriver.h"
#include "support/Rows.h"
#include "ui/main/frmAbout.h"
#include "ui/main/frmOpenChapter.h"
#include "ui/main/frmRepairAlbum.h"
#include "viewer/frmFullScreen.h"
#include "viewer/frmReelvane.h"
#include "viewer/frmSelectImages.h"

#include <QAccessible>
#include <QSettings>
#include <QTextDocument>
#include <QTranslator>

using namespace GeneralModule;

namespace {

constexpr std::array everyWindow{"frmOpenChapter",    "frmReelvane",           "frmFullScreen",
                                 "frmEditParagraph",  "frmOrganizeParagraphs", "frmEditImage",
                                 "frmEditTables",     "frmEditLabels",         "frmLoadFiles",
                                 "frmReloadPictures", "frmSelectImages",       "frmAbout",
                                 "frmRepairAlbum"};

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

// Turned by one notch over the control, as the system does it.
void TurnWheel(QWidget& widget)
{
    const QPointF middle = QRectF(widget.rect()).center();
    QWheelEvent turn(middle, widget.mapToGlobal(middle), {}, {0, -120}, Qt::NoButton,
                     Qt::NoModifier, Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&turn); // others do not go on to parents
    qApp->notify(&widget, &turn);
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
    TurnWheel(box->lineEdit() ? *static_cast<QWidget*>(box->lineEdit()) : *box);
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

// Where the toolkit reads more into a text than what stands there.
bool IsMisread(const QString& text)
{
    if (!Qt::mightBeRichText(text))
        return false;
    QTextDocument document;
    document.setHtml(text);
    return document.toPlainText().contains(QChar::ObjectReplacementCharacter);
}

QStringList MisreadTexts(QWidget& window)
{
    QStringList faults;
    QList<QWidget*> widgets = window.findChildren<QWidget*>();
    widgets.prepend(&window);
    for (const QWidget* widget : widgets) {
        if (IsMisread(widget->toolTip()))
            faults += widget->objectName() + "'s tool tip";
        const auto* label = qobject_cast<const QLabel*>(widget);
        if (label && label->textFormat() != Qt::PlainText && Qt::mightBeRichText(label->text()))
            faults += widget->objectName() + "'s text";
        const auto* view = qobject_cast<const QAbstractItemView*>(widget);
        for (int row = 0; view && view->model() && row < view->model()->rowCount(); ++row) {
            for (int column = 0; column < view->model()->columnCount(); ++column) {
                if (IsMisread(view->model()->index(row, column).data(Qt::ToolTipRole).toString()))
                    faults += widget->objectName() + "'s item";
            }
        }
    }
    if (window.windowTitle().remove("[*][*]").contains("[*]"))
        faults += "title";
    return faults;
}

// Presses and clicks whatever a window has, and closes what comes up over it.
void Prod(QWidget& window)
{
    QTimer closer;
    QObject::connect(&closer, &QTimer::timeout, [&window] {
        QWidget* modal = QApplication::activeModalWidget();
        if (modal && modal != &window)
            modal->close();
    });
    closer.start(20);
    const auto act = [&window](const auto& action) {
        window.show();
        action();
        QCoreApplication::processEvents();
    };
    for (const int key :
         {Qt::Key_Return, Qt::Key_Space, Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down,
          Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Plus, Qt::Key_Minus, Qt::Key_Delete, Qt::Key_E,
          Qt::Key_N, Qt::Key_T, Qt::Key_F11, Qt::Key_Escape})
        act([&] {
            QTest::keyClick(window.focusWidget() ? window.focusWidget() : &window, Qt::Key(key));
        });
    for (QWidget* control : window.findChildren<QWidget*>()) {
        const QString name = control->objectName();
        const bool isOurs = !name.isEmpty() && !name.startsWith("qt_") && name != "cmdSysInfo";
        for (const auto button : {Qt::LeftButton, Qt::RightButton}) {
            if (isOurs && control->isVisible() && control->isEnabled())
                act([&] { QTest::mouseClick(control, button); });
        }
    }
    for (QAction* entry : window.findChildren<QAction*>()) {
        const QString name = entry->objectName();
        if (entry->isEnabled() && name.startsWith("mnu") && !name.startsWith("mnuRecent"))
            act([entry] { entry->trigger(); });
    }
}

} // namespace

// What holds for every window of the program.
class TestEveryWindow : public AlbumTest
{
    Q_OBJECT

private slots:
    void KeepsItsManners_data()
    {
        HelpComesAtTheWindowsChapter_data();
        QTest::newRow("help") << "frmHelp";
        QTest::newRow("opened by nothing") << "frmCDBuffer";
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

    // Whatever an album says is text and nothing else, and leaves every window in its size.
    void HostileTextsStayTexts_data()
    {
        AddRows<QString>({"text"}, {{"markup", "<img src=\"/dev/zero\"><h1>Anna & Co</h1>"},
                                    {"signs of the toolkit", "Salt & Pepper [*] %1 %2 %n"},
                                    {"right to left", "\u202eשלום & <b>"},
                                    {"NUL", QString("a") + QChar(0) + "b\n<img src=x>"},
                                    {"a megabyte", QString("long & <b> ").repeated(100000)}});
    }

    void HostileTextsStayTexts()
    {
        QFETCH(QString, text);
        FillWith(text);
        isStoryRead_ = true;
        for (const char* name : everyWindow) {
            QWidget& window = Open(name);
            QVERIFY(!window.grab().isNull());
            QVERIFY2(MisreadTexts(window).isEmpty(),
                     qPrintable(name + (": " + MisreadTexts(window).join(", "))));
            const QSize least = window.minimumSizeHint();
            QVERIFY2(least == least.boundedTo({1280, 720}), name);
        }
    }

    // As after an opening that failed.
    void NothingCrashesWithoutAnAlbum_data() { HelpComesAtTheWindowsChapter_data(); }

    void NothingCrashesWithoutAnAlbum()
    {
        QFETCH(QString, name);
        dialogs_.reset();
        const PatientDialogs patient;
        QWidget& window = Open(name);
        ReleaseAlbum();
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, album_->PathOf("empty"));
        Prod(window);
        QVERIFY(!IsAlbumOpen());
    }

    void WheelOverListBoxScrollsWhatIsAround()
    {
        Open("frmLoadFiles"); // the program's first window is enough
        QScrollArea area;
        area.setWidget(new QWidget);
        area.widget()->resize(100, 5000);
        auto* box = new QComboBox(area.widget());
        area.show();
        QVERIFY(QTest::qWaitForWindowExposed(&area));
        QVERIFY(!TakesWheel(*box));
        QVERIFY(area.verticalScrollBar()->value() > 0);
    }

    void HelpComesAtTheWindowsChapter_data()
    {
        QTest::addColumn<QString>("name");
        for (const char* name : everyWindow)
            QTest::newRow(name) << name;
    }

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

    void HelpFindsWhatIsAskedFor()
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
        QScrollBar& place = *text.verticalScrollBar();
        contents.setCurrentRow(0);
        for (int row = 1; row < contents.count(); ++row) {
            const int before = place.value();
            contents.setCurrentRow(row);
            QVERIFY(place.value() > before || before == place.maximum());
            QCOMPARE(contents.currentRow(), row);
        }
        QVERIFY(contents.count() > 10 && place.value() > 0);
        place.setValue(0); // the contents follow
        QVERIFY(contents.currentRow() < 1);
    }

private:
    void FillWith(const QString& text)
    {
        chapter_ = album_->AddChapter(text);
        QMap<QString, QString> values;
        for (int column = 0; column < 12; ++column)
            values["Car" + QString::number(column)] = text;
        paragraph_ = album_->AddParagraph(chapter_, text, values);
        values["Legend"] = text;
        picture_ = album_->AddPicture("a<b>&[*]%1.jpg", values);
        for (const char* label : {"Car0", "Car4", "Car9", "Caract0", "Caract1", "Caract3"})
            SetParam(label, text);
        for (const char* table : {"Car0", "Car4", "Car9"}) {
            RecordSet set(AlbumDatabase, table);
            set.AddNew();
            set.Set(u"Name", text);
            set.Update();
        }
    }

    // Shown, with an album behind it that has a chapter, a paragraph and pictures.
    QWidget& Open(const QString& name)
    {
        if (picture_.isEmpty() || !QFile::exists(picture_)) {
            chapter_ = album_->AddChapter("Chapter");
            paragraph_ = album_->AddParagraph(chapter_, "Text");
            picture_ = album_->AddPicture("a.jpg");
            album_->AddPicture("b.jpg");
        }
        QWidget* window = MakeByName(name);
        window->show();
        window->activateWindow();
        if (!QTest::qWaitForWindowActive(window))
            qFatal("the window does not come");
        QCoreApplication::processEvents(); // the labels may need more room
        return *window;
    }

    QWidget* MakeByName(const QString& name)
    {
        if (name == "frmOpenChapter")
            return Make<frmOpenChapter>(album_->GetAlbum());
        if (name == "frmReelvane")
            return MakeViewer();
        if (name == "frmFullScreen") // the viewer owns it
            return new frmFullScreen(*MakeViewer());
        if (name == "frmEditParagraph")
            return MakeAt<frmEditParagraph>();
        if (name == "frmOrganizeParagraphs")
            return MakeAt<frmOrganizeParagraphs>();
        if (name == "frmEditTables")
            return Make<frmEditTables>(picture_, nullptr);
        if (name == "frmHelp")
            return Make<HelpWindow>(HelpFile(), nullptr);
        if (name == "frmEditImage") {
            auto* window = Make<frmEditImage>();
            window->CurrentImage = picture_;
            return window;
        }
        return MakeAny<frmEditLabels, frmLoadFiles, frmReloadPictures, frmSelectImages, frmCDBuffer,
                       frmAbout, frmRepairAlbum>(name);
    }

    frmReelvane* MakeViewer()
    {
        auto* viewer = Make<frmReelvane>();
        viewer->CurrentChapter = isStoryRead_ ? chapter_ : 0;
        return viewer;
    }

    // The one whose class has that name.
    template<typename... Windows>
    QWidget* MakeAny(const QString& name)
    {
        QWidget* made = nullptr;
        ((name == Windows::staticMetaObject.className() ? void(made = Make<Windows>()) : void()),
         ...);
        return made;
    }

    template<typename Window>
    Window* MakeAt()
    {
        auto* window = Make<Window>();
        window->CurrentChapter = chapter_;
        window->CurrentParagraph = paragraph_;
        return window;
    }

    qint32 chapter_ = 0;
    qint32 paragraph_ = 0;
    QString picture_;
    bool isStoryRead_ = false;
};

QTEST_MAIN(TestEveryWindow)
#include "test_every_window.moc"
