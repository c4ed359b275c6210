// SPDX-License-Identifier: MIT
#pragma once

#include "catalogue/PictureCards.h"
#include "catalogue/frmCDBuffer.h"
#include "catalogue/frmEditImage.h"
#include "catalogue/frmEditLabels.h"
#include "catalogue/frmEditTables.h"
#include "catalogue/frmLoadFiles.h"
#include "catalogue/frmMissingPictures.h"
#include "catalogue/frmReloadPictures.h"
#include "catalogue/frmTakeFromFiles.h"
#include "core/StartUp.h"
#include "gallery/frmDescribePictures.h"
#include "gallery/frmFindPictures.h"
#include "gallery/frmLinkedPictures.h"
#include "gallery/frmPlaceParagraph.h"
#include "platform/widgets/HelpWindow.h"
#include "publish/frmPublish.h"
#include "story/frmEditParagraph.h"
#include "story/frmOrganizeParagraphs.h"
#include "support/AlbumTest.h"
#include "ui/main/frmAbout.h"
#include "ui/main/frmCheckAlbum.h"
#include "ui/main/frmEarlierStates.h"
#include "ui/main/frmOpenChapter.h"
#include "ui/main/frmRepairAlbum.h"
#include "ui/main/frmTakeChapters.h"
#include "ui/main/frmUndo.h"
#include "viewer/frmFullScreen.h"
#include "viewer/frmReelvane.h"
#include "viewer/frmSelectImages.h"

#include <array>

inline constexpr std::array everyWindow{
    "frmOpenChapter",        "frmReelvane",       "frmFullScreen",     "frmEditParagraph",
    "frmOrganizeParagraphs", "frmEditImage",      "frmEditTables",     "frmEditLabels",
    "frmLoadFiles",          "frmReloadPictures", "frmSelectImages",   "frmAbout",
    "frmRepairAlbum",        "frmFindPictures",   "frmLinkedPictures", "frmDescribePictures",
    "frmTakeFromFiles",      "frmEarlierStates",  "frmTakeChapters",   "frmCheckAlbum",
    "frmMissingPictures",    "frmUndo",           "frmPublish"};

// A test of what holds for every window of the program, opened by its name.
class EveryWindowTest : public AlbumTest
{
protected:
    // The rows of a test that is run for each window.
    void AddEveryWindow()
    {
        QTest::addColumn<QString>("name");
        for (const char* name : everyWindow)
            QTest::newRow(name) << name;
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
            return Make<HelpWindow>(GeneralModule::HelpFile(), nullptr);
        if (name == "frmEditImage") {
            auto* window = Make<frmEditImage>();
            window->CurrentImage = picture_;
            return window;
        }
        if (name == "frmEarlierStates") {
            frmEarlierStates::LookInto = [](const QString&) { return true; };
            return Make<frmEarlierStates>();
        }
        if (name == "frmTakeChapters") {
            auto* window = Make<frmTakeChapters>();
            window->State = std::make_shared<GeneralModule::OpenState>(album_->GetAlbum(), "");
            return window;
        }
        if (name == "frmTakeFromFiles") {
            auto* window = Make<frmTakeFromFiles>();
            window->Pictures = AllPictureIds();
            return window;
        }
        return MakeAny<frmEditLabels, frmLoadFiles, frmReloadPictures, frmSelectImages, frmCDBuffer,
                       frmAbout, frmRepairAlbum, frmCheckAlbum, frmFindPictures, frmPlaceParagraph,
                       frmLinkedPictures, frmDescribePictures, frmMissingPictures, frmUndo,
                       frmPublish>(name);
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
