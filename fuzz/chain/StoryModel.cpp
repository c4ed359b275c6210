// SPDX-License-Identifier: MIT
#include "fuzz/chain/StoryModel.h"

#include "core/AlbumChains.h"
#include "core/AlbumSets.h"
#include "core/ChapterChain.h"

#include <QtGlobal>

#include <algorithm>

using namespace GeneralModule;

StoryModel::Chapter& StoryModel::OfParagraph(qint32 paragraph)
{
    for (Chapter& chapter : chapters) {
        if (IndexOf(chapter, paragraph) < chapter.paragraphs.size())
            return chapter;
    }
    qFatal("the model has no such paragraph");
}

std::size_t StoryModel::IndexOf(const Chapter& chapter, qint32 paragraph)
{
    const auto& all = chapter.paragraphs;
    const auto found = std::find_if(all.begin(), all.end(), [paragraph](const Paragraph& each) {
        return each.id == paragraph;
    });
    return std::size_t(found - all.begin());
}

void StoryModel::Save(qint32 paragraph, const QString& text)
{
    Chapter& chapter = OfParagraph(paragraph);
    chapter.paragraphs[IndexOf(chapter, paragraph)].text = text;
    unsaved = 0;
}

qint32 StoryModel::Step(qint32 paragraph, ChainStep step)
{
    const Chapter& chapter = OfParagraph(paragraph);
    const std::size_t last = chapter.paragraphs.size() - 1;
    const std::size_t at = IndexOf(chapter, paragraph);
    const std::size_t next = std::min(at + 1, last);
    const std::size_t previous = at == 0 ? 0 : at - 1;
    const std::size_t places[] = {0, previous, next, last};
    return chapter.paragraphs[places[std::size_t(step)]].id;
}

qint32 StoryModel::Delete(qint32 paragraph)
{
    Chapter& chapter = OfParagraph(paragraph);
    const std::size_t at = IndexOf(chapter, paragraph);
    chapter.paragraphs.erase(chapter.paragraphs.begin() + std::ptrdiff_t(at));
    unsaved = 0;
    if (chapter.paragraphs.empty())
        return 0;
    return chapter.paragraphs[std::min(at, chapter.paragraphs.size() - 1)].id;
}

bool StoryModel::Move(qint32 paragraph, bool isDown)
{
    Chapter& chapter = OfParagraph(paragraph);
    const std::size_t at = IndexOf(chapter, paragraph);
    if (isDown ? at + 1 < chapter.paragraphs.size() : at > 0) {
        std::swap(chapter.paragraphs[at], chapter.paragraphs[isDown ? at + 1 : at - 1]);
        return true;
    }
    if (&chapter == (isDown ? &chapters.back() : &chapters.front()))
        return false;
    Chapter& target = *(&chapter + (isDown ? 1 : -1));
    const Paragraph moved = chapter.paragraphs[at];
    chapter.paragraphs.erase(chapter.paragraphs.begin() + std::ptrdiff_t(at));
    target.paragraphs.insert(isDown ? target.paragraphs.begin() : target.paragraphs.end(), moved);
    return true;
}

QString StoryModel::FaultOfAlbum() const
{
    QStringList names;
    qint64 paragraphs = 0;
    for (const Chapter& chapter : chapters) {
        names += chapter.name;
        paragraphs += qint64(chapter.paragraphs.size());
    }
    if (ChapterNames() != names)
        return QStringLiteral("listed: %1, not %2")
            .arg(ChapterNames().join(u' '), names.join(u' '));
    if (ChapterSet->RecordCount() != names.size() || ParagraphSet->RecordCount() != paragraphs)
        return QStringLiteral("rows too few or too many");
    for (const Chapter& chapter : chapters) {
        const QString fault = FaultOfChapter(chapter);
        if (!fault.isEmpty())
            return QStringLiteral("chapter %1: %2").arg(chapter.id).arg(fault);
    }
    return {};
}

QString StoryModel::FaultOfChapter(const Chapter& chapter) const
{
    if (FindChapter(chapter.name) != chapter.id)
        return QStringLiteral("not found by its name");
    std::vector<qint32> expected;
    for (const Paragraph& paragraph : chapter.paragraphs) {
        if (paragraph.id != unsaved)
            expected.push_back(paragraph.id);
        if (LoadParagraph(paragraph.id).text != paragraph.text)
            return QStringLiteral("another text in %1").arg(paragraph.id);
    }
    std::vector<qint32> listed;
    for (const ParagraphLine& line : ListParagraphs(chapter.id))
        listed.push_back(line.paragraph);
    if (listed != expected)
        return QStringLiteral("other paragraphs are listed");
    if (expected.empty())
        return {};
    const std::vector<qint32> back =
        ChainOfParagraphs().Rows(expected.back(), ChainDirection::Previous);
    if (!std::equal(back.rbegin(), back.rend(), expected.begin(), expected.end()))
        return QStringLiteral("other paragraphs on the way back");
    return {};
}

QString StoryModel::Told() const
{
    QStringList told;
    for (const Chapter& chapter : chapters) {
        QString text = chapter.name + ':';
        for (const Paragraph& paragraph : chapter.paragraphs)
            text += paragraph.text;
        told += text;
    }
    return told.join(u' ');
}
