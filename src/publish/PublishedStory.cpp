// SPDX-License-Identifier: MIT
#include "publish/PublishedStory.h"

#include "catalogue/Picture.h"
#include "core/Album.h"
#include "core/AlbumChains.h"
#include "core/AlbumSets.h"
#include "core/ChapterChain.h"
#include "core/LocalCopy.h"
#include "core/Parameters.h"
#include "platform/data/ReadLock.h"
#include "publish/PublishReport.h"
#include "story/ParagraphMarkers.h"
#include "viewer/PageContent.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>

using namespace GeneralModule;

namespace {

struct StoryTexts
{
    Q_DECLARE_TR_FUNCTIONS(PublishedStory)
};

struct ChapterPlan
{
    Chapter chapter;
    std::vector<qint32> paragraphs;
};

std::vector<ChapterPlan> PlanOf(const QStringList& titles)
{
    const std::vector<Chapter> listed = Chapters();
    for (const QString& title : titles) {
        const auto hasTitle = [&title](const Chapter& chapter) { return chapter.title == title; };
        if (std::none_of(listed.begin(), listed.end(), hasTitle))
            throw PublishError(StoryTexts::tr("There is no chapter \"%1\".").arg(title));
    }
    std::vector<ChapterPlan> plan;
    for (const Chapter& chapter : listed) {
        if (titles.isEmpty() || titles.contains(chapter.title))
            plan.push_back({chapter, ChainOfParagraphs().Rows(FirstParagraphOf(chapter.id),
                                                              ChainDirection::Next)});
    }
    return plan;
}

PublishedPicture ReadPublishedPicture(const QString& file, const QString& storedText)
{
    const std::optional<Picture> picture = ReadPicture(file);
    return {file, FindPictureFile(file), picture ? CleanPublishedText(picture->legend) : QString(),
            CleanPublishedText(FillPictureMarkers(storedText, file))};
}

// That of autoview, which goes on at once where it is 0; a browser's reader has to see something.
int DelayOfSlideShow()
{
    constexpr int usual = 10'000;
    const int stored = GetTimerDelay();
    return stored > 0 ? stored : usual;
}

class StoryReading
{
public:
    StoryReading(const StoryChoice& choice, const PublishProgress& progress)
        : choice_(choice), progress_(progress)
    {
    }

    std::optional<PublishedStory> Read()
    {
        const std::vector<ChapterPlan> plan = PlanOf(choice_.chapters);
        for (const ChapterPlan& each : plan)
            total_ += int(each.paragraphs.size());
        const QString album = QFileInfo(OpenAlbumTitle()).completeBaseName();
        story_.title = CleanPublishedText(choice_.title.isEmpty() ? album : choice_.title);
        story_.delay = DelayOfSlideShow();
        for (const ChapterPlan& each : plan) {
            if (!ReadChapter(each))
                return std::nullopt;
        }
        return std::move(story_);
    }

private:
    bool ReadChapter(const ChapterPlan& plan)
    {
        PublishedChapter chapter{plan.chapter.id, CleanPublishedText(plan.chapter.title), {}};
        for (const qint32 id : plan.paragraphs) {
            if (!progress_(done_++, total_))
                return false;
            chapter.paragraphs.push_back(ReadParagraphOf({plan.chapter.id, id}));
        }
        story_.chapters.push_back(std::move(chapter));
        return true;
    }

    PublishedParagraph ReadParagraphOf(const StoryPosition& position)
    {
        const ReadLock together(*AlbumDatabase);
        const QString text = TextAt(position).value_or(PageText()).text;
        const FoundPictures found = FindPicturesAt(position, [](int) {});
        if (found.failure)
            TellFailure(position, found.failure);
        PublishedParagraph paragraph{position.paragraph, {}, {}, found.list.Count()};
        const QStringList files =
            found.list.GetFiles().first(std::clamp(choice_.mostPictures, 0, found.list.Count()));
        paragraph.pictures.reserve(std::size_t(files.size()));
        for (const QString& file : files)
            paragraph.pictures.push_back(ReadPublishedPicture(file, text));
        paragraph.text = files.isEmpty() ? CleanPublishedText(FillPictureMarkers(text, {}))
                                         : paragraph.pictures.back().text;
        return paragraph;
    }

    void TellFailure(const StoryPosition& position, const std::exception_ptr& failure)
    {
        try {
            std::rethrow_exception(failure);
        } catch (const std::exception& error) {
            story_.troubles += StoryTexts::tr("Chapter \"%1\", paragraph %2: %3")
                                   .arg(ChapterTitle(position.chapter))
                                   .arg(position.paragraph)
                                   .arg(QString::fromUtf8(error.what()));
        }
    }

    const StoryChoice& choice_;
    const PublishProgress& progress_;
    PublishedStory story_;
    int done_ = 0;
    int total_ = 0;
};

} // namespace

int PublishedStory::CountPictures() const
{
    std::size_t count = 0;
    for (const PublishedChapter& chapter : chapters) {
        for (const PublishedParagraph& paragraph : chapter.paragraphs)
            count += paragraph.pictures.size();
    }
    return int(count);
}

bool PublishedStory::IsRightToLeft() const
{
    int balance = title.isRightToLeft() ? 1 : -1;
    for (const PublishedChapter& chapter : chapters) {
        for (const PublishedParagraph& paragraph : chapter.paragraphs)
            balance += paragraph.text.isRightToLeft() ? 1 : -1;
    }
    return balance > 0;
}

std::optional<PublishedStory> ReadPublishedStory(const StoryChoice& choice,
                                                 const PublishProgress& progress)
{
    return StoryReading(choice, progress).Read();
}

QString CleanPublishedText(const QString& text)
{
    QString clean;
    clean.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar letter = text[i];
        const bool isPair =
            letter.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        if (isPair) {
            clean += letter;
            clean += text[++i];
        } else if (letter == u'\r') {
            if (i + 1 == text.size() || text[i + 1] != u'\n')
                clean += u'\n';
        } else if (letter == u'\n' || letter == u'\t' ||
                   (letter >= u' ' && !letter.isSurrogate() && !letter.isNonCharacter() &&
                    (letter < u'\x7f' || letter > u'\x9f'))) {
            clean += letter;
        }
    }
    return clean;
}
