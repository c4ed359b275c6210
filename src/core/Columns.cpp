// SPDX-License-Identifier: MIT
#include "core/Columns.h"

QString GeneralModule::CarField(int column)
{
    return QStringLiteral("Car%1").arg(column);
}
