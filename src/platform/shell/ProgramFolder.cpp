// SPDX-License-Identifier: MIT
#include "platform/shell/ProgramFolder.h"

#include <QCoreApplication>
#include <QDir>

QString ProgramFolder()
{
    return QDir::toNativeSeparators(QCoreApplication::applicationDirPath());
}

QString ProgramFile(const QString& name)
{
    return ProgramFolder() + QDir::separator() + name;
}
