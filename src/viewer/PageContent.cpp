// SPDX-License-Identifier: MIT
#include "viewer/PageContent.h"

#include "core/Album.h"
#include "core/ChapterChain.h"

#include <QCoreApplication>
#include <QScopeGuard>

using GeneralModule::FindById;
using GeneralModule::ParagraphSet;

namespace {

// The pictures that the paragraph chooses on which the set stands.
FoundPictures FindPictures(RecordSet& paragraph, int maxCount, const CountFeedback& feedback)
{
    FoundPictures found;
    try {
        BuildPictureList(paragraph, found.list, maxCount, feedback);
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
    if (!FindById(*ParagraphSet, position.paragraph))
        return std::nullopt;
    const QString text = ParagraphSet->TextOrEmpty(u"Text");
    return PageText{GeneralModule::ChapterTitle(ParagraphSet->Number(u"Chapter")), text, text};
}

FoundPictures FindPicturesAt(const StoryPosition& position, const CountFeedback& feedback)
{
    if (position.paragraph > 0 && FindById(*ParagraphSet, position.paragraph))
        return FindPictures(*ParagraphSet, maxListed, feedback);
    return FindSelection(QStringLiteral("*"), QStringLiteral("*"), maxListed, feedback);
}

FoundPictures FindSelection(const QString& fileSelection, const QString& imageSelection,
                            int maxCount, const CountFeedback& feedback)
{
    // The selection is written as a paragraph that is never saved, so that one routine finds the
    // pictures of both.
    ParagraphSet->AddNew();
    const auto cancel = qScopeGuard([] { ParagraphSet->CancelUpdate(); });
    for (int column = 0; column < 12; ++column)
        ParagraphSet->Set(QStringLiteral("Car%1").arg(column), imageSelection);
    ParagraphSet->Set(u"FileSelection", PatternOfSelection(fileSelection));
    return FindPictures(*ParagraphSet, maxCount, feedback);
}
