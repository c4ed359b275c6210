// SPDX-License-Identifier: MIT
#include "platform/widgets/BusyPointer.h"

#include <QApplication>

BusyPointer::BusyPointer()
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
}

BusyPointer::~BusyPointer()
{
    QApplication::restoreOverrideCursor();
}
