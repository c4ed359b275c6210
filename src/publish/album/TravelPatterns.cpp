// SPDX-License-Identifier: MIT
#include "publish/album/TravelPatterns.h"

#include "catalogue/PatternHead.h"
#include "core/AlbumPaths.h"
#include "platform/files/FilePatterns.h"
#include "platform/files/PathRoutines.h"
#include "platform/text/LikePattern.h"

#include <QDir>

#include <algorithm>
#include <string_view>

namespace {

// Folders for all pictures, in case that a pattern finds the first one's name in every path.
const QStringList tops{QStringLiteral("pictures"), QStringLiteral("images"),
                       QStringLiteral("photos")};

// What patterns without a folder find in the whole path.
class LooseEnds
{
public:
    explicit LooseEnds(const TravelContents& contents)
    {
        QSet<QString> seen;
        for (const TravelParagraph& paragraph : contents.paragraphs) {
            const QString& pattern = paragraph.query.fileSelection;
            if (!pattern.isEmpty() && !seen.contains(pattern) && HeadOf(pattern).folder.isEmpty())
                Add(pattern);
            seen.insert(pattern);
        }
        for (const TravelPicture& picture : contents.pictures)
            found_.push_back(FindIn(picture.file));
    }

    bool AreNone() const { return patterns_.empty(); }
    bool IsKept(int number, const QString& name) const
    {
        return found_[std::size_t(number)] == FindIn(name);
    }

private:
    void Add(const QString& pattern)
    {
        std::vector<LikePattern> parts;
        for (const QString& part : SplitPatterns(FileNameOf(pattern)))
            parts.emplace_back((FolderOf(pattern) + part).toStdString(),
                               LikePattern::Case::Sensitive);
        patterns_.push_back(std::move(parts));
    }

    std::vector<bool> FindIn(const QString& path) const
    {
        const QByteArray utf8 = path.toUtf8();
        const std::string_view text(utf8.constData(), std::size_t(utf8.size()));
        std::vector<bool> found;
        for (const std::vector<LikePattern>& parts : patterns_) {
            found.push_back(
                std::any_of(parts.begin(), parts.end(), [text](const LikePattern& part) {
                    return part.IsValid() && part.Matches(text);
                }));
        }
        return found;
    }

    std::vector<std::vector<LikePattern>> patterns_;
    std::vector<std::vector<bool>> found_; // by picture, for each pattern
};

// With its separator at the end.
QString AbsoluteFolder(const QString& folder)
{
    const QString path = GeneralModule::AbsolutePath(folder);
    return FileNameOf(path).isEmpty() ? path : path + QDir::separator();
}

// The folders that patterns begin with, absolute.
QStringList PatternFolders(const TravelContents& contents)
{
    QStringList folders;
    for (const TravelParagraph& paragraph : contents.paragraphs) {
        const QString folder = HeadOf(paragraph.query.fileSelection).folder;
        if (!folder.isEmpty())
            folders += AbsoluteFolder(folder);
    }
    folders.removeDuplicates();
    return folders;
}

} // namespace

std::optional<TravelNames> ChooseTravelNames(const TravelContents& contents,
                                             const PublishProgress& progress)
{
    const LooseEnds looseEnds(contents);
    QStringList files;
    for (const TravelPicture& picture : contents.pictures)
        files += picture.absolute;
    const QStringList folders = PatternFolders(contents);
    std::optional<TravelNames> best;
    int fewestLost = 0;
    for (const QString& top : tops) {
        for (int kept = 0; !best || kept <= best->GetMostKept(); ++kept) {
            if (!progress(0, 0))
                return {};
            TravelNames names(files, folders, {top, kept});
            int lost = 0;
            for (int i = 0; !looseEnds.AreNone() && i < int(files.size()); ++i)
                lost += looseEnds.IsKept(i, names.NameOf(i)) ? 0 : 1;
            if (!best || lost < fewestLost) {
                best = std::move(names);
                fewestLost = lost;
            }
            if (fewestLost == 0)
                return best;
        }
    }
    return best;
}

QString TravelPattern(const QString& pattern, TravelNames& names)
{
    const PatternHead head = HeadOf(pattern);
    if (head.folder.isEmpty())
        return pattern;
    const QString folder = names.FolderFor(AbsoluteFolder(head.folder));
    return EscapedForLike(folder) + PatternRest(pattern.sliced(head.length), head.folder, folder);
}
