// SPDX-License-Identifier: MIT
#pragma once

#include "platform/shell/IdleWork.h"

#include <QCoreApplication>

#include <memory>
#include <vector>

class ContactSheet;
class PictureDays;
class QLabel;
class QPushButton;

// Buttons that choose what belongs together on a sheet: the pictures of the current one's folder,
// those taken on its day, and those with its values.
class GroupChoice : public QObject
{
    Q_OBJECT

public:
    struct Controls
    {
        ContactSheet* sheet;
        QPushButton* sameFolder;
        QPushButton* sameDay;
        QPushButton* sameValues;
        QLabel* feedback;
    };

    GroupChoice(const Controls& controls, QObject* parent);
    ~GroupChoice() override;

    void OfferWhere(bool isChosen);

private:
    void SameFolder();
    // The files are read once, while nothing else is to do; a second click gives that up.
    void SameDay();
    bool ReadDays(std::chrono::milliseconds time);
    void ChooseDay();
    void SameValues();

    Controls controls_;
    std::unique_ptr<PictureDays> days_;
    IdleWork reading_;
    qint32 ofDay_ = 0; // the picture whose day is asked for
};
