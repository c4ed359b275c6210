// SPDX-License-Identifier: MIT
#include "Tour.h"

#include "core/AlbumSets.h"
#include "platform/widgets/FolderList.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPixmap>
#include <QPushButton>
#include <QTextStream>
#include <QTimer>

namespace {

constexpr int stepPause = 60;   // milliseconds between steps, for windows to draw themselves
constexpr int patience = 20000; // milliseconds to wait for a window before the tour ends

} // namespace

Tour::Tour(const QString& folder, QWidget* mainWindow)
    : QObject(mainWindow), folder_(folder), mainWindow_(mainWindow)
{
    QDir().mkpath(folder_); // if this fails, writing the first picture does too
    PlanReading();
    PlanWriting();
    PlanIndexing();
    PlanOtherWindows();
    QTimer::singleShot(stepPause, this, &Tour::Continue);
}

void Tour::PlanReading()
{
    Shoot("main-window");
    Click("cmdReadChapter");
    Await("frmReelvane");
    Resize(1280, 800);
    Shoot("viewer-one-picture");
    Press(Qt::Key_Right);
    Press(Qt::Key_Plus);
    Shoot("viewer-two-lines");
    Press(Qt::Key_PageDown);
    Press(Qt::Key_Right);
    Shoot("viewer-three-pictures");
    Click("cmdHideMenu");
    Await("frmFullScreen");
    Shoot("full-screen");
    Press(Qt::Key_Escape);
    Await("frmReelvane");
    Press(Qt::Key_PageDown);
    Press(Qt::Key_PageDown);
    Press(Qt::Key_PageDown);
    for (int i = 0; i < 3; ++i)
        Press(Qt::Key_Plus);
    Shoot("viewer-empty-chapter");
    Press(Qt::Key_Escape);
    Await("frmOpenChapter");
}

void Tour::PlanWriting()
{
    Click("cmdReadChapter");
    Await("frmReelvane");
    Press(Qt::Key_Right);
    Click("cmdEditParagraph");
    Await("frmEditParagraph");
    Resize(1280, 860);
    Shoot("paragraph-editor");
    Click("cmdPreview");
    Shoot("paragraph-preview");
    Click("cmdOrganize");
    Await("frmOrganizeParagraphs");
    Shoot("paragraph-organiser");
    Click("cmdExit");
    Await("frmEditParagraph");
    Click("cmdExit");
    Await("frmReelvane");
    Press(Qt::Key_Escape);
    Await("frmOpenChapter");
}

void Tour::PlanIndexing()
{
    Click("cmdReadChapter");
    Await("frmReelvane");
    RightClick("imgImage_0");
    Await("frmEditImage");
    Shoot("indexing");
    Click("cmdEditTables");
    Await("frmEditTables");
    Shoot("tables");
    Click("cmdEditLabels");
    Await("frmEditLabels");
    Shoot("labels");
    Press(Qt::Key_Escape);
    Await("frmEditTables");
    Press(Qt::Key_Escape);
    Await("frmEditImage");
    Press(Qt::Key_Escape);
    Await("frmReelvane");
    Press(Qt::Key_Escape);
    Await("frmOpenChapter");
}

void Tour::PlanOtherWindows()
{
    struct Window
    {
        const char* entry;
        const char* window;
        const char* picture;
        const char* folder = nullptr; // the list that goes to the pictures' folder
    };
    for (const Window& window : {
             Window{"mnuLoadPictures", "frmLoadFiles", "loading", "dirPicturesToLoad"},
             Window{"mnuReloadPictures", "frmReloadPictures", "moved-pictures", "dirNewReferences"},
             Window{"mnuSelectedPictures", "frmSelectImages", "browsing", "dirPicturesToSelect"},
             Window{"mnuRepair", "frmRepairAlbum", "repair"},
             Window{"mnuAbout", "frmAbout", "about"},
             Window{"mnuPhotoAlbumHelp", "frmHelp", "help"},
         }) {
        Choose(window.entry);
        Await(window.window);
        if (window.folder)
            ShowFolder(window.folder);
        Shoot(window.picture);
        Press(Qt::Key_Escape);
        Await("frmOpenChapter");
    }
}

QWidget* Tour::Front() const
{
    QWidget* modal = QApplication::activeModalWidget();
    return modal ? modal : mainWindow_;
}

void Tour::Act(std::function<void()> action)
{
    steps_.push_back([action = std::move(action)] {
        action();
        return true;
    });
}

void Tour::Await(const QString& window)
{
    steps_.push_back([this, window] { return Front()->objectName() == window; });
}

void Tour::Shoot(const QString& name)
{
    Act([this, name] {
        const QString path = folder_ + QLatin1Char('/') + name + QStringLiteral(".png");
        if (!Front()->grab().save(path))
            Fail(QStringLiteral("cannot write %1").arg(path));
    });
}

template<typename Part>
void Tour::With(const QString& name, std::function<void(Part*)> action)
{
    Act([this, name, action = std::move(action)] {
        auto* part = Front()->findChild<Part*>(name);
        if (!part)
            return Fail(QStringLiteral("there is no %1").arg(name));
        action(part);
    });
}

// Clicking a button that opens a modal window returns only when that window closes, so the event
// loop does it while the tour continues.
void Tour::Click(const QString& button)
{
    With<QPushButton>(button,
                      [](auto* control) { QTimer::singleShot(0, control, &QPushButton::click); });
}

void Tour::Choose(const QString& entry)
{
    With<QAction>(entry, [](auto* action) { QTimer::singleShot(0, action, &QAction::trigger); });
}

void Tour::Press(int key)
{
    Act([this, key] {
        QWidget* window = Front();
        QWidget* target = window->focusWidget() ? window->focusWidget() : window;
        QApplication::postEvent(target, new QKeyEvent(QEvent::KeyPress, key, Qt::NoModifier));
    });
}

void Tour::RightClick(const QString& control)
{
    With<QWidget>(control, [](auto* target) {
        const QPointF place = target->rect().center();
        for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease})
            QApplication::postEvent(target, new QMouseEvent(type, place, target->mapToGlobal(place),
                                                            Qt::RightButton, Qt::RightButton,
                                                            Qt::NoModifier));
    });
}

void Tour::ShowFolder(const QString& list)
{
    With<FolderList>(list, [](auto* folders) {
        GeneralModule::ImageSet->MoveFirst();
        const QString picture = GeneralModule::ImageSet->TextOrEmpty(u"File");
        folders->SetPath(QFileInfo(picture).absolutePath());
    });
}

void Tour::Resize(int width, int height)
{
    Act([this, width, height] { Front()->resize(width, height); });
}

void Tour::Continue()
{
    if (next_ == steps_.size())
        return QApplication::exit(0);
    waited_ += stepPause;
    if (steps_[next_]()) {
        ++next_;
        waited_ = 0;
    } else if (waited_ > patience) {
        return Fail(QStringLiteral("step %1 of the tour did not come to an end").arg(next_));
    }
    QTimer::singleShot(stepPause, this, &Tour::Continue);
}

void Tour::Fail(const QString& text)
{
    QTextStream(stderr) << "lumenark_tour: " << text << '\n';
    next_ = steps_.size();
    std::exit(1);
}
