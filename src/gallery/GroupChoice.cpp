// SPDX-License-Identifier: MIT
#include "gallery/GroupChoice.h"

#include "catalogue/PictureDays.h"
#include "catalogue/PictureGroup.h"
#include "gallery/ContactSheet.h"
#include "platform/dialogs/Guard.h"
#include "platform/widgets/BusyPointer.h"

#include <QLabel>
#include <QLocale>
#include <QPushButton>

GroupChoice::GroupChoice(const Controls& controls, QObject* parent)
    : QObject(parent), controls_(controls)
{
    connect(controls_.sameFolder, &QPushButton::clicked, this,
            Guarded(this, &GroupChoice::SameFolder));
    connect(controls_.sameDay, &QPushButton::clicked, this, Guarded(this, &GroupChoice::SameDay));
    connect(controls_.sameValues, &QPushButton::clicked, this,
            Guarded(this, &GroupChoice::SameValues));
}

GroupChoice::~GroupChoice() = default;

void GroupChoice::OfferWhere(bool isChosen)
{
    for (QPushButton* button : {controls_.sameFolder, controls_.sameDay, controls_.sameValues})
        button->setEnabled(isChosen);
}

void GroupChoice::SameFolder()
{
    const BusyPointer busy;
    ContactSheet& sheet = *controls_.sheet;
    sheet.Select(PicturesOfFolderOf(sheet.GetCurrent(), sheet.GetPictures()));
}

void GroupChoice::SameValues()
{
    const BusyPointer busy;
    ContactSheet& sheet = *controls_.sheet;
    sheet.Select(PicturesWithValuesOf(sheet.GetCurrent(), sheet.GetPictures()));
}

void GroupChoice::SameDay()
{
    if (reading_.IsWorking()) {
        reading_.Stop();
        return controls_.feedback->clear();
    }
    ofDay_ = controls_.sheet->GetCurrent();
    if (!days_)
        days_ = std::make_unique<PictureDays>(controls_.sheet->GetPictures());
    reading_.Begin([this](std::chrono::milliseconds time) { return ReadDays(time); });
}

bool GroupChoice::ReadDays(std::chrono::milliseconds time)
{
    bool goesOn = false;
    if (!RunGuarded([&] { goesOn = days_->Work(time); })) {
        controls_.feedback->clear();
        return false;
    }
    const QLocale locale;
    controls_.feedback->setText(
        tr("Dates read: %1 of %2")
            .arg(locale.toString(days_->GetRead()), locale.toString(days_->GetCount())));
    if (!goesOn)
        ChooseDay();
    return goesOn;
}

void GroupChoice::ChooseDay()
{
    std::vector<qint32> wanted = days_->OfDayOf(ofDay_);
    controls_.feedback->setText(
        wanted.empty() ? tr("The day of this picture is not known")
                       : QLocale().toString(days_->DayOf(ofDay_), QLocale::LongFormat));
    if (!wanted.empty())
        controls_.sheet->Select(std::move(wanted));
}
