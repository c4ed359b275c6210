// SPDX-License-Identifier: MIT
#include "core/AlbumChains.h"

#include "core/AlbumSets.h"

namespace GeneralModule {

Chain ChainOfChapters()
{
    return {*ChapterSet, u"PreviousChapter", u"NextChapter"};
}

Chain ChainOfParagraphs()
{
    return {*ParagraphSet, u"PreviousParagraph", u"NextParagraph"};
}

qint32 FirstParagraphOf(qint32 chapter)
{
    if (ChainOfChapters().Find(chapter) == 0)
        return 0;
    return ChainOfParagraphs().Find(LinkIn(*ChapterSet, u"FirstParagraph"));
}

void SetFirstParagraph(qint32 chapter, qint32 paragraph)
{
    SetLink(*ChapterSet, chapter, u"FirstParagraph", paragraph);
}

} // namespace GeneralModule
