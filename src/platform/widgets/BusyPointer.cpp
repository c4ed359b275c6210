// SPDX-License-Identifier: MIT
#include "platform/widgets/BusyPointer.h"

#include <QApplication>

BusyPointer::BusyPointer()
{
    const QCursor* present = QApplication::overrideCursor();
    isShown_ = !present || present->shape() != Qt::BlankCursor;
    if (isShown_)
        QApplication::setOverrideCursor(Qt::WaitCursor);
}

BusyPointer::~BusyPointer()
{
    if (isShown_)
        QApplication::restoreOverrideCursor();
}
