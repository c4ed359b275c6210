// SPDX-License-Identifier: MIT
#include "viewer/PageContent.h"

#include "core/ChapterChain.h"
#include "platform/data/DatabaseError.h"
#include "story/Paragraph.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

FoundPictures FindPictures(const PictureQuery& query, int maxCount, const CountFeedback& feedback)
{
    FoundPictures found;
    try {
        BuildPictureList(query, found.list, maxCount, feedback);
    } catch (const DatabaseError&) {
        found.failure = std::current_exception();
    }
    return found;
}

PageText TextOfEmptyChapter(qint32 chapter)
{
    const QString name = GeneralModule::ChapterTitle(chapter);
    const QString text = QCoreApplication::translate(
        "PageContent", "Click HERE to create first paragraph of the new chapter '%1'");
    return {name, text.arg(name), {}};
}

} // namespace

std::optional<PageText> TextAt(const StoryPosition& position)
{
    if (position.paragraph == 0)
        return TextOfEmptyChapter(position.chapter);
    const std::optional<Paragraph> paragraph = ReadParagraph(position.paragraph);
    if (!paragraph)
        return std::nullopt;
    const QString& text = paragraph->content.text;
    return PageText{GeneralModule::ChapterTitle(paragraph->chapter), text, text};
}

FoundPictures FindPicturesAt(const StoryPosition& position, const CountFeedback& feedback)
{
    if (const std::optional<Paragraph> paragraph = ReadParagraph(position.paragraph))
        return FindPictures(paragraph->GetQuery(), GeneralModule::maxListed, feedback);
    return FindSelection(QStringLiteral("*"), anyValue, GeneralModule::maxListed, feedback);
}

FoundPictures FindSelection(const QString& fileSelection, const QString& imageSelection,
                            int maxCount, const CountFeedback& feedback)
{
    PictureQuery query{.fileSelection = PatternOfSelection(fileSelection)};
    query.values.fill(imageSelection);
    return FindPictures(query, maxCount, feedback);
}

FoundPictures ListFiles(const QStringList& files, const CountFeedback& feedback)
{
    FoundPictures found;
    for (const QString& file :
         files.first(std::min<qsizetype>(files.size(), GeneralModule::maxListed)))
        found.list.Add(file);
    feedback(found.list.Count());
    return found;
}
