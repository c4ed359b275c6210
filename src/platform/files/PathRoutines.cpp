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

// Both separators are ASCII, which no other character holds a byte of.
std::string_view Utf8FolderOf(std::string_view path)
{
    const char separators[] = {'\\', char(QDir::separator().unicode()), '\0'};
    return path.substr(0, path.find_last_of(separators) + 1);
}

QString FileNameOf(const QString& path)
{
    return path.sliced(AfterLastSeparator(path));
}

QString DriveOf(const QString& path)
{
    return path.first(std::find_if(path.begin(), path.end(), IsSeparator) - path.begin());
}
