// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>

class ContactSheet;
class SheetPicture;
class SheetModel;

// A contact sheet's current picture over all of its window. Keys go on to the others of the sheet,
// and back to it.
class LargeViewing : public QObject
{
    Q_OBJECT

public:
    LargeViewing(ContactSheet& sheet, const SheetModel& model);
    ~LargeViewing() override;

    // Nothing happens while the sheet has no current picture.
    void Open();
    void Close();

private:
    void Show(int step);
    void Step(int step);

    ContactSheet& sheet_;
    const SheetModel& model_;
    QPointer<SheetPicture> picture_;
};
