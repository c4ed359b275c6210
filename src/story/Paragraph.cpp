// SPDX-License-Identifier: MIT
#include "story/Paragraph.h"

#include "core/AlbumSets.h"
#include "core/Chain.h"

using GeneralModule::ParagraphSet;

std::optional<Paragraph> ReadParagraph(qint32 id)
{
    if (!GeneralModule::FindById(*ParagraphSet, id))
        return std::nullopt;
    Paragraph paragraph{.id = id,
                        .chapter = GeneralModule::LinkIn(*ParagraphSet, u"Chapter"),
                        .content = {.text = ParagraphSet->TextOrEmpty(u"Text")},
                        .fileSelection = ParagraphSet->TextOrEmpty(u"FileSelection")};
    for (int column = 0; column < columnCount; ++column) {
        const QString stored = ParagraphSet->TextOrEmpty(CarField(column));
        if (!stored.isEmpty())
            paragraph.content.values[std::size_t(column)] = stored;
    }
    return paragraph;
}
