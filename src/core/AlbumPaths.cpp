// SPDX-License-Identifier: MIT
#include "core/AlbumPaths.h"

#include "core/Album.h"
#include "core/EarlierStates.h"
#include "core/TextRoutines.h"
#include "platform/files/PathRoutines.h"
#include "platform/text/LikePattern.h"

#include <QDir>

namespace {

bool IsAbsolute(const QString& path)
{
    const bool hasDrive = path.size() > 1 && path[1] == u':' && path[0].isLetter();
    return path.startsWith(u'/') || path.startsWith(u'\\') || hasDrive;
}

// The path from whose folder the open album's paths count: an earlier state stands for its album.
QString StandingPath()
{
    static QString open;
    static QString standing;
    const QString path = GeneralModule::OpenAlbumPath();
    if (path != open) {
        QString album;
        standing = GeneralModule::IsEarlierState(path, &album) ? album : path;
        open = path;
    }
    return standing;
}

} // namespace

namespace GeneralModule {

QString AbsolutePath(const QString& file)
{
    return IsAbsolute(file) ? file : AbsolutePath(file, StandingPath());
}

QString AbsolutePath(const QString& file, const QString& album)
{
    if (file.isEmpty() || album.isEmpty() || IsAbsolute(file))
        return file;
    return QDir::toNativeSeparators(
        QDir::cleanPath(FolderOf(album) + QString(file).replace(u'\\', u'/')));
}

QString RelativePath(const QString& path)
{
    const QString folder = FolderOf(StandingPath());
    if (folder.isEmpty() || !path.startsWith(folder))
        return {};
    return QDir::fromNativeSeparators(path.sliced(folder.size()));
}

QString PathLike(const QString& former, const QString& path)
{
    const QString relative = IsAbsolute(former) ? QString() : RelativePath(path);
    return relative.isEmpty() ? path : relative;
}

QString RelativeFilter(const QString& folder, const QString& pattern)
{
    const auto like = [](const QString& wanted) -> QString {
        return QStringLiteral("[File] LIKE ") + Quoted(wanted);
    };
    const QString albums = EscapedForLike(FolderOf(StandingPath()));
    if (albums.isEmpty() || folder.isEmpty())
        return {};
    if (folder.startsWith(albums) && folder.size() > albums.size())
        return like(QDir::fromNativeSeparators(folder.sliced(albums.size())) + pattern);
    const bool isAny = pattern.startsWith(u'*');
    if (folder != albums && !(isAny && albums.startsWith(folder)))
        return {};
    const QString notAbsolute = QStringLiteral("[!/\\]");
    return QLatin1Char('(') + like(isAny ? notAbsolute + pattern : pattern) +
           QLatin1String(" AND NOT ") + like(QStringLiteral("?:*")) + QLatin1Char(')');
}

} // namespace GeneralModule
