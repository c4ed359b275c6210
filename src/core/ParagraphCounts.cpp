// SPDX-License-Identifier: MIT
#include "core/ParagraphCounts.h"

#include "core/AlbumSets.h"
#include "core/ChapterChain.h"
#include "platform/data/Statement.h"

namespace GeneralModule {

// Counted by the index: a walk would read every paragraph.
QHash<QString, int> ParagraphCounts()
{
    QHash<qint64, int> byChapter;
    Statement counting(AlbumDatabase->GetEngine(),
                       "SELECT Chapter, COUNT(*) FROM Paragraph GROUP BY Chapter");
    while (counting.Step())
        byChapter.insert(counting.GetInteger(0), int(counting.GetInteger(1)));
    QHash<QString, int> counts;
    for (const Chapter& chapter : Chapters())
        counts.insert(chapter.title, byChapter.value(chapter.id));
    return counts;
}

} // namespace GeneralModule
