// SPDX-License-Identifier: MIT
#include "viewer/PageDisplay.h"

#include "core/PathRoutines.h"
#include "platform/data/DatabaseError.h"
#include "platform/dialogs/Guard.h"
#include "platform/widgets/BusyPointer.h"
#include "story/ParagraphMarkers.h"
#include "story/PictureFilter.h"
#include "viewer/StoryPage.h"

#include <QCoreApplication>

#include <utility>

void PageDisplay::FindPictures(const PictureQuery& query, int maximum)
{
    const BusyPointer busy;
    displayed_.clear();
    list_.Clear();
    try {
        BuildPictureList(query, list_, maximum, [this](int count) {
            page_->ShowFeedback(QString::number(count) +
                                QCoreApplication::translate("PageDisplay", " images found"));
        });
    } catch (const DatabaseError&) {
        failure_ = std::current_exception();
    }
    hasFound_ = list_.Count() > 0;
}

void PageDisplay::TellFailure()
{
    if (const std::exception_ptr failure = std::exchange(failure_, nullptr))
        RunGuarded([&failure] { std::rethrow_exception(failure); });
}

void PageDisplay::ShowScreen(int lines, bool isAgain)
{
    const BusyPointer busy;
    if (isAgain) {
        QStringList files;
        for (const ShownPicture& picture : displayed_)
            files += picture.file;
        list_.PutBack(files);
    }
    const ScreenShape shape = page_->GetShape(lines);
    displayed_ = FillScreen(list_, shape);
    page_->ShowPictures(displayed_, DecodePictures(displayed_, shape.pixelRatio));
    page_->SetNotice(Notice());
}

// Why the screen holds no pictures; empty when it does.
QString PageDisplay::Notice() const
{
    if (!displayed_.empty())
        return {};
    return hasFound_ ? QCoreApplication::translate("PageDisplay", "The picture files are missing.")
                     : QCoreApplication::translate("PageDisplay", "No picture fits.");
}

void PageDisplay::Arrange(const QString& text)
{
    text_ = text;
    page_->Arrange(text);
}

void PageDisplay::ShowText()
{
    page_->SetLegend(FillPictureMarkers(text_, GetLastDisplayed()));
}

void PageDisplay::ShowCountLeft()
{
    page_->SetLegend(QString::number(list_.Count()) +
                     QCoreApplication::translate("PageDisplay", " images left"));
}

void PageDisplay::ShowLarge(const ShownPicture& picture, bool hasText)
{
    const ScreenShape shape = page_->GetShape(0);
    const ShownPicture large{picture.file, picture.path, PlaceOfSinglePicture(picture.path, shape)};
    page_->ShowFullSize(large, DecodePictures({large}, shape.pixelRatio).front());
    const QString pattern = hasText ? text_ : QStringLiteral("<[Picture Legend]>");
    const QString text = FillPictureMarkers(pattern, picture.file);
    page_->SetLegend(text.isEmpty() ? GeneralModule::FileNameOf(picture.file) : text);
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
