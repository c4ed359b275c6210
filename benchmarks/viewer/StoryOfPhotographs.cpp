// SPDX-License-Identifier: MIT
#include "StoryOfPhotographs.h"

#include "../pictures/PaintedPictures.h"

#include "core/Album.h"
#include "core/AlbumSets.h"
#include "core/ChapterChain.h"
#include "platform/dialogs/Dialogs.h"
#include "story/ParagraphChain.h"

#include <QApplication>
#include <QFile>
#include <QSettings>

#include <cstdio>
#include <cstdlib>

using namespace GeneralModule;

namespace {

constexpr QSize pictureSize(6000, 4000);
constexpr int pictureCount = 21; // as many as a screen holds

void AddChapter(const QString& name, int paragraphs)
{
    ParagraphPlace place{CreateChapter(name, {}), 0};
    CreateFirstParagraph(place);
    const ParagraphContent content = LoadParagraph(place.paragraph);
    for (int i = 1; i < paragraphs; ++i)
        CreateNextParagraph(place, {content, content});
    SaveParagraph(place, {content, content}); // links the last one
}

} // namespace

StoryOfPhotographs::StoryOfPhotographs()
{
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder_.path());
    qputenv("XDG_DATA_HOME", QFile::encodeName(folder_.path()));
    const QString album = folder_.filePath(QStringLiteral("story.alb"));
    isThere_ = folder_.isValid() && CreateAlbumFile(album) && OpenAlbum(album) && AddPictures();
    if (!isThere_)
        return;
    AddSingles();
    AddChapter(QStringLiteral("All of them"), paragraphs);
}

StoryOfPhotographs::~StoryOfPhotographs()
{
    ReleaseAlbum();
}

// A screen has 21 photographs; further screens show links to the same files.
bool StoryOfPhotographs::AddPictures()
{
    const QStringList painted = PaintPictures(QDir(folder_.path()), pictureSize, pictureCount);
    for (int screen = 0; screen < screens; ++screen) {
        for (const QString& picture : painted) {
            const QString name = picture + QStringLiteral(".%1.jpg").arg(screen);
            if (!QFile::link(picture, name))
                return false;
            ImageSet->AddNew();
            ImageSet->Set(u"File", name);
            ImageSet->Update();
        }
    }
    return painted.size() == pictureCount;
}

void StoryOfPhotographs::AddSingles()
{
    AddChapter(QStringLiteral("One by one"), paragraphs);
    ImageSet->MoveFirst();
    ParagraphSet->MoveFirst();
    for (int i = 0; i < paragraphs; ++i) {
        ParagraphSet->Edit();
        ParagraphSet->Set(u"FileSelection", ImageSet->Text(u"File"));
        ParagraphSet->Update();
        ParagraphSet->MoveNext();
        ImageSet->MoveNext();
    }
}

int RunWithStory(int argc, char** argv, Dialogs& dialogs, const std::function<void()>& run)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    Dialogs::Install(&dialogs);
    const StoryOfPhotographs story;
    if (!story.IsThere()) {
        std::fputs("The story cannot be made in the temporary folder\n", stderr);
        return EXIT_FAILURE;
    }
    run();
    return EXIT_SUCCESS;
}
