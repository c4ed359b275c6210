// SPDX-License-Identifier: MIT
#include "platform/files/PathRoutines.h"

#include <QDir>

#include <algorithm>

namespace {

bool IsSeparator(QChar character)
{
    return character == u'\\' || character == QDir::separator();
}

qsizetype AfterLastSeparator(const QString& path)
{
    const auto last = std::find_if(path.rbegin(), path.rend(), IsSeparator);
    return path.rend() - last;
}

} // namespace

QString FolderOf(const QString& path)
{
    return path.first(AfterLastSeparator(path));
}

QString FileNameOf(const QString& path)
{
    return path.sliced(AfterLastSeparator(path));
}

QString DriveOf(const QString& path)
{
    return path.first(std::find_if(path.begin(), path.end(), IsSeparator) - path.begin());
}
