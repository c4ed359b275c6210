// SPDX-License-Identifier: MIT
#include "viewer/PageDisplay.h"

#include "platform/dialogs/Guard.h"
#include "platform/widgets/BusyPointer.h"
#include "story/ParagraphMarkers.h"
#include "story/PictureFilter.h"
#include "viewer/StoryPage.h"

#include <QCoreApplication>

void PageDisplay::FindPictures(RecordSet& paragraph, int most)
{
    const BusyPointer busy;
    displayed_.clear();
    RunGuarded([&] {
        BuildPictureList(paragraph, list_, most, [this](int count) {
            page_->ShowFeedback(QString::number(count) +
                                QCoreApplication::translate("PageDisplay", " images found"));
        });
    });
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
    const QString text = hasText ? text_ : QStringLiteral("<[Picture Legend]>");
    page_->SetLegend(FillPictureMarkers(text, picture.file));
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
