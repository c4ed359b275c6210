// SPDX-License-Identifier: MIT
#include "viewer/PageDisplay.h"

#include "platform/dialogs/Guard.h"
#include "platform/files/PathRoutines.h"
#include "platform/picture/LookAhead.h"
#include "story/ParagraphMarkers.h"
#include "viewer/StorySurface.h"
#include "viewer/ViewerFlags.h"

#include <QCoreApplication>

#include <utility>

namespace {

constexpr int screensHeld = 3; // besides the one on show

} // namespace

void PageDisplay::Begin(const PageText& page)
{
    page_ = page;
    if (!page.title.isEmpty())
        surface_->SetTitle(page.title);
    surface_->Arrange(page.arrangedFor);
}

void PageDisplay::ShowCountFound(int count)
{
    surface_->ShowFeedback(
        QCoreApplication::translate("PageDisplay", "%n images found", nullptr, count));
}

void PageDisplay::SetFound(FoundPictures found)
{
    displayed_.clear();
    list_ = std::move(found.list);
    failure_ = found.failure;
    hasFound_ = list_.Count() > 0;
}

void PageDisplay::TellFailure()
{
    if (const std::exception_ptr failure = std::exchange(failure_, nullptr))
        RunGuarded([&failure] { std::rethrow_exception(failure); });
}

// Either all of it happens or nothing.
void PageDisplay::ShowNextScreen(int lines)
{
    const auto work = surface_->BeginWork();
    const ScreenShape shape = surface_->GetShape(lines);
    PictureList list = list_;
    std::vector<ShownPicture> pictures = FillScreen(list, shape, GeneralModule::PictureAtRandom);
    lookAhead_.SetRoom((QSizeF(shape.area) * shape.pixelRatio).toSize(), screensHeld);
    std::vector<QImage> images = lookAhead_.Take(RequestsFor(pictures, shape.pixelRatio));
    list_ = std::move(list);
    displayed_ = std::move(pictures);
    surface_->ShowPictures(displayed_, std::move(images));
    surface_->SetNotice(Notice());
}

void PageDisplay::ShowScreenAgain(int lines)
{
    list_.PutBack(FilesOf(displayed_));
    ShowNextScreen(lines);
}

// Why the screen holds no pictures; empty when it does.
QString PageDisplay::Notice() const
{
    if (!displayed_.empty())
        return {};
    return hasFound_ ? QCoreApplication::translate("PageDisplay", "The picture files are missing.")
                     : QCoreApplication::translate("PageDisplay", "No picture fits.");
}

void PageDisplay::ShowText()
{
    surface_->SetLegend(FillPictureMarkers(page_.text, GetLastDisplayed()));
}

void PageDisplay::ShowCountLeft()
{
    surface_->SetLegend(
        QCoreApplication::translate("PageDisplay", "%n images left", nullptr, list_.Count()));
}

void PageDisplay::ShowAlone(const ShownPicture& picture, bool hasText)
{
    const ScreenShape shape = surface_->GetShape(0);
    const ShownPicture large{picture.file, picture.path, PlaceOfSinglePicture(picture.path, shape)};
    surface_->ShowFullSize(large, ReadPictures(RequestsFor({large}, shape.pixelRatio)).front());
    const QString pattern = hasText ? page_.text : QStringLiteral("<[Picture Legend]>");
    const QString text = FillPictureMarkers(pattern, picture.file);
    surface_->SetLegend(text.isEmpty() ? FileNameOf(picture.file) : text);
}

QString PageDisplay::GetLastDisplayed() const
{
    return displayed_.empty() ? QString() : displayed_.back().file;
}

void PageDisplay::Remove(const QStringList& files)
{
    for (const QString& file : files)
        list_.Remove(file);
    std::erase_if(displayed_,
                  [&files](const ShownPicture& picture) { return files.contains(picture.file); });
}
