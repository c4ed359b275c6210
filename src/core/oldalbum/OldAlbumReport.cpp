// SPDX-License-Identifier: MIT
#include "core/oldalbum/OldAlbumReport.h"

#include "platform/files/PathRoutines.h"

#include <QDir>

namespace {

constexpr qsizetype shownProblems = 15; // what a message box shows on a small screen
constexpr qsizetype shownFolders = 10;
constexpr qsizetype countedFolders = 10000;

// "C:\..." or "\\server\...", and this system has no such paths.
bool IsOfAnotherSystem(const QString& path)
{
    return path.contains(u'\\') && !QDir::isAbsolutePath(path);
}

QString Counted(qint64 count, const QString& one, const QString& many)
{
    return count == 1 ? one : many.arg(count);
}

} // namespace

namespace GeneralModule {

void OldAlbumReport::AddProblem(const QString& problem)
{
    if (problems_.size() < shownProblems)
        problems_ += problem;
    else
        ++furtherProblems_;
}

void OldAlbumReport::AddPicturePath(const QString& path)
{
    if (!IsOfAnotherSystem(path) || hasManyFolders_)
        return;
    const QString folder = FolderOf(path);
    if (folders_.contains(folder))
        return;
    folders_.insert(folder);
    if (shownFolders_.size() < shownFolders)
        shownFolders_ += folder;
    hasManyFolders_ = folders_.size() >= countedFolders;
}

QString OldAlbumReport::Summary() const
{
    const QString counts = tr("%1, %2 and %3 came over.")
                               .arg(Counted(chapters, tr("1 chapter"), tr("%1 chapters")),
                                    Counted(paragraphs, tr("1 paragraph"), tr("%1 paragraphs")),
                                    Counted(pictures, tr("1 picture"), tr("%1 pictures")));
    return keepsPassword ? counts + u' ' + tr("The new album has the old one's password.") : counts;
}

QStringList OldAlbumReport::Problems() const
{
    QStringList problems = problems_;
    if (furtherProblems_ > 0)
        problems += tr("%1 more of this kind.").arg(furtherProblems_);
    return problems;
}

QStringList OldAlbumReport::FolderHint() const
{
    if (shownFolders_.isEmpty())
        return {};
    QStringList hint = shownFolders_;
    const qsizetype further = folders_.size() - shownFolders_.size();
    if (hasManyFolders_)
        hint += tr("and many more.");
    else if (further > 0)
        hint += tr("and %1 more.").arg(further);
    hint.prepend(tr("Pictures lie at places of another system, which were kept as they are. "
                    "\"Reload Moved Pictures\" points them to where they are now. The folders:"));
    return hint;
}

} // namespace GeneralModule
