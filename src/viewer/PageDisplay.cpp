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
    earlier_ = {};
    list_ = std::move(found.list);
    failure_ = found.failure;
    found_ = list_.Count();
    seenElsewhere_ = 0;
}

void PageDisplay::TellFailure()
{
    if (const std::exception_ptr failure = std::exchange(failure_, nullptr))
        RunGuarded([&failure] { std::rethrow_exception(failure); });
}

void PageDisplay::ShowNextScreen(int lines)
{
    EarlierScreens earlier = earlier_;
    earlier.Add(FilesOf(displayed_));
    Show(lines, list_, std::move(earlier), Way::On);
}

void PageDisplay::ShowScreenAgain(int lines)
{
    Show(lines, ListFromScreenOn(), earlier_, Way::On);
}

void PageDisplay::ShowEarlierScreen(int lines)
{
    Show(lines, ListFromScreenOn(), earlier_, Way::Back);
}

PictureList PageDisplay::ListFromScreenOn() const
{
    PictureList list = list_;
    list.PutBack(FilesOf(displayed_));
    return list;
}

// Either all of it happens or nothing.
void PageDisplay::Show(int lines, PictureList list, EarlierScreens earlier, Way way)
{
    const auto work = surface_->BeginWork();
    const ScreenShape shape = surface_->GetShape(lines);
    const bool atRandom = GeneralModule::PictureAtRandom;
    std::vector<ShownPicture> pictures = way == Way::Back
                                             ? earlier.FillWithLast(list, shape, atRandom)
                                             : FillScreen(list, shape, atRandom);
    lookAhead_.SetRoom((QSizeF(shape.area) * shape.pixelRatio).toSize(), screensHeld);
    std::vector<QImage> images = lookAhead_.Take(RequestsFor(pictures, shape.pixelRatio));
    list_ = std::move(list);
    earlier_ = std::move(earlier);
    displayed_ = std::move(pictures);
    large_.Forget();
    surface_->ShowPictures(displayed_, std::move(images));
    surface_->SetNotice(Notice());
}

PagePlace PageDisplay::GetPlace() const
{
    const int shown = int(displayed_.size());
    const int before = earlier_.CountPictures() + seenElsewhere_;
    return {.first = shown > 0 ? before + 1 : 0,
            .last = before + shown,
            .found = found_,
            .missing = found_ - before - shown - list_.Count()};
}

void PageDisplay::SetList(const PictureList& list)
{
    seenElsewhere_ += list_.Count() - list.Count();
    list_ = list;
}

// Why the screen holds no pictures; empty when it does.
QString PageDisplay::Notice() const
{
    if (!displayed_.empty())
        return {};
    return found_ > 0 ? QCoreApplication::translate("PageDisplay", "The picture files are missing.")
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
    large_.Show(*surface_, picture);
    const QString pattern = hasText ? page_.text : QStringLiteral("<[Picture Legend]>");
    const QString text = FillPictureMarkers(pattern, picture.file);
    surface_->SetLegend(text.isEmpty() ? FileNameOf(picture.file) : text);
}

void PageDisplay::LeaveAlone()
{
    large_.Forget();
    surface_->LeaveFullSize();
}

QString PageDisplay::GetLastDisplayed() const
{
    return displayed_.empty() ? QString() : displayed_.back().file;
}

void PageDisplay::Remove(const QStringList& files)
{
    found_ -= earlier_.Remove(files) + list_.Count();
    for (const QString& file : files)
        list_.Remove(file);
    found_ += list_.Count();
    found_ -= int(std::erase_if(displayed_, [&files](const ShownPicture& picture) {
        return files.contains(picture.file);
    }));
}
