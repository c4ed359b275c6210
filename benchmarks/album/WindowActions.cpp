// SPDX-License-Identifier: MIT
#include "LargeAlbum.h"
#include "Measurement.h"

#include "catalogue/frmEditImage.h"
#include "catalogue/frmEditTables.h"
#include "catalogue/frmLoadFiles.h"
#include "catalogue/frmReloadPictures.h"
#include "core/Album.h"
#include "platform/widgets/PictureBox.h"
#include "story/frmEditParagraph.h"
#include "story/frmOrganizeParagraphs.h"
#include "ui/main/frmOpenChapter.h"
#include "ui/main/frmRepairAlbum.h"
#include "viewer/ViewerFlags.h"
#include "viewer/frmReelvane.h"

#include <QApplication>
#include <QPushButton>

namespace {

constexpr QSize viewerSize(1280, 860);

// Until its first paint.
void Show(QWidget& window)
{
    window.show();
    QCoreApplication::processEvents();
    if (window.grab().isNull())
        qFatal("nothing was painted");
}

void OpenToRead(LargeAlbum& album)
{
    album.OpenToRead();
}

QString APicture()
{
    return LargeAlbum::FolderOf(5000) + LargeAlbum::NameOf(5000);
}

template<typename Window>
Action Starting(const char* name, const std::function<void(Window&, LargeAlbum&)>& set = {})
{
    return {name, OpenToRead, [set](LargeAlbum& album) {
                Window window;
                if (set)
                    set(window, album);
                Show(window);
            }};
}

std::unique_ptr<frmEditParagraph> Editor(const LargeAlbum& album)
{
    auto editor = std::make_unique<frmEditParagraph>();
    editor->CurrentChapter = LargeAlbum::longChapter;
    editor->CurrentParagraph = album.LastOfLong() / 2 * 2;
    return editor;
}

void PrepareEditor(LargeAlbum& album)
{
    OpenToRead(album);
    auto editor = Editor(album);
    Show(*editor);
    album.Front = std::move(editor);
}

void PrepareOrganizer(LargeAlbum& album)
{
    album.OpenToChange();
    auto organizer = std::make_unique<frmOrganizeParagraphs>();
    organizer->CurrentChapter = LargeAlbum::longChapter;
    organizer->CurrentParagraph = album.LastOfLong() / 2;
    Show(*organizer);
    album.Front = std::move(organizer);
}

// On the button of the window that is open, until it is painted again.
Action Pressing(const char* name, void (*prepare)(LargeAlbum&), const char* button)
{
    return {name, prepare, [button](LargeAlbum& album) {
                album.Front->findChild<QPushButton*>(QString::fromLatin1(button))->click();
                Show(*album.Front);
            }};
}

bool HasPictures(const QWidget& viewer)
{
    const QList<PictureBox*> boxes = viewer.findChildren<PictureBox*>();
    return std::any_of(boxes.begin(), boxes.end(),
                       [](const PictureBox* box) { return box->isVisible(); });
}

// A page of the viewer, drawn again in the window that is open.
Action Viewing(const char* name, int chapter, const QString& folder, const QString& values)
{
    return {name,
            [=](LargeAlbum& album) {
                OpenToRead(album);
                GeneralModule::PictureAtRandom = true;
                auto viewer = std::make_unique<frmReelvane>();
                viewer->CurrentChapter = chapter < 0 ? album.LastChapter() : chapter;
                viewer->FileSelection = folder;
                viewer->ImageSelection = values;
                viewer->resize(viewerSize);
                viewer->show();
                while (!HasPictures(*viewer))
                    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
                album.Front = std::move(viewer);
            },
            [](LargeAlbum& album) {
                auto& viewer = static_cast<frmReelvane&>(*album.Front);
                viewer.DisplayAgain();
                viewer.repaint();
            }};
}

std::vector<Action> ViewerActions()
{
    const QString any = QStringLiteral("*");
    return {
        Viewing("viewer: a paragraph of the long chapter", LargeAlbum::longChapter, {}, any),
        Viewing("viewer: an empty chapter", -1, {}, any),
        Viewing("viewer: all pictures at random", 0, {}, any),
        Viewing("viewer: a folder", 0, LargeAlbum::FolderOf(5000) + QStringLiteral("*.*"), any),
        Viewing("viewer: not indexed", 0, {}, QStringLiteral("-")),
    };
}

} // namespace

std::vector<Action> WindowActions()
{
    std::vector<Action> actions{
        {"window: main, with opening the album", [](LargeAlbum& album) { album.Close(); },
         [](LargeAlbum& album) {
             frmOpenChapter window(album.GetPath());
             Show(window);
             if (!window.AlbumOpen())
                 qFatal("the album was not opened");
         }},
        {"window: editor", OpenToRead, [](LargeAlbum& album) { Show(*Editor(album)); }},
        Pressing("editor: preview of a filter", PrepareEditor, "cmdPreview"),
        Starting<frmOrganizeParagraphs>("window: organiser, long chapter",
                                        [](frmOrganizeParagraphs& window, LargeAlbum& album) {
                                            window.CurrentChapter = LargeAlbum::longChapter;
                                            window.CurrentParagraph = album.LastOfLong() / 2;
                                        }),
        Pressing("organiser: move a paragraph", PrepareOrganizer, "cmdMoveUp"),
        Starting<frmEditImage>(
            "window: indexing",
            [](frmEditImage& window, LargeAlbum&) { window.CurrentImage = APicture(); }),
        {"window: tables", OpenToRead,
         [](LargeAlbum&) {
             frmEditTables window(APicture(), nullptr);
             Show(window);
         }},
        Starting<frmReloadPictures>("window: moved pictures"),
        Starting<frmRepairAlbum>("window: repair"),
        Starting<frmLoadFiles>("window: load pictures"),
    };
    const std::vector<Action> viewer = ViewerActions();
    actions.insert(actions.end(), viewer.begin(), viewer.end());
    return actions;
}
