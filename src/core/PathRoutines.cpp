// SPDX-License-Identifier: MIT
#include "core/PathRoutines.h"

#include <QDir>

#include <algorithm>

namespace {

bool IsSeparator(QChar character)
{
    return character == u'\\' || character == QDir::separator();
}

qsizetype BehindLastSeparator(const QString& path)
{
    const auto last = std::find_if(path.rbegin(), path.rend(), IsSeparator);
    return path.rend() - last;
}

} // namespace

namespace GeneralModule {

QString FolderOf(const QString& path)
{
    return path.first(BehindLastSeparator(path));
}

QString FileNameOf(const QString& path)
{
    return path.sliced(BehindLastSeparator(path));
}

QString DriveOf(const QString& path)
{
    return path.first(std::find_if(path.begin(), path.end(), IsSeparator) - path.begin());
}

} // namespace GeneralModule
