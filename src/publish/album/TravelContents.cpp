// SPDX-License-Identifier: MIT
#include "publish/album/TravelContents.h"

#include "core/AlbumPaths.h"
#include "core/AlbumSets.h"
#include "core/LocalCopy.h"
#include "platform/data/Statement.h"
#include "story/Paragraph.h"
#include "story/PictureFilter.h"

#include <algorithm>
#include <exception>

using namespace GeneralModule;

namespace {

class Stopped : public std::exception
{
};

// It costs a paragraph its pictures only.
bool IsOfFilter(const DatabaseError& error)
{
    const int number = error.GetNumber();
    return number == DatabaseError::BadFilter || number == DatabaseError::InvalidPattern ||
           number == DatabaseError::TooComplex;
}

class ContentsReading
{
public:
    explicit ContentsReading(const PublishProgress& progress) : progress_(progress) {}

    TravelContents Read()
    {
        ReadPictures("SELECT File, SourceFile FROM Image ORDER BY rowid");
        // What is only linked is shown too.
        ReadPictures("SELECT File, '' FROM LinkedImages WHERE ParagraphId IN "
                     "(SELECT Id FROM Paragraph) ORDER BY rowid");
        Statement ids(AlbumDatabase->GetEngine(), "SELECT Id FROM Paragraph ORDER BY Id");
        while (ids.Step())
            contents_.paragraphs.push_back({qint32(ids.GetInteger(0))});
        for (TravelParagraph& paragraph : contents_.paragraphs) {
            GoOn();
            ReadParagraphOf(paragraph);
            ++done_;
        }
        return std::move(contents_);
    }

private:
    void GoOn() const
    {
        if (!progress_(done_, int(contents_.paragraphs.size())))
            throw Stopped();
    }

    void ReadPictures(const char* sql)
    {
        constexpr std::size_t atOnce = 500; // between two looks at the user
        Statement rows(AlbumDatabase->GetEngine(), sql);
        while (rows.Step()) {
            const QString file = QString::fromUtf8(rows.GetUtf8(0));
            if (file.isEmpty() || contents_.numbers.contains(file))
                continue;
            contents_.numbers.insert(file, int(contents_.pictures.size()));
            contents_.pictures.push_back({file, AbsolutePath(file),
                                          PictureFileOf(file, QString::fromUtf8(rows.GetUtf8(1)))});
            if (contents_.pictures.size() % atOnce == 0)
                GoOn();
        }
    }

    void ReadParagraphOf(TravelParagraph& paragraph)
    {
        const std::optional<Paragraph> row = ReadParagraph(paragraph.id);
        if (!row)
            return;
        paragraph.chapter = row->chapter;
        paragraph.query = row->GetQuery();
        PictureList list;
        try {
            BuildPictureList(paragraph.query, list, maxListed, [this](int) { GoOn(); });
        } catch (const DatabaseError& error) {
            if (!IsOfFilter(error))
                throw;
            paragraph.isReadable = false;
        }
        for (const QString& file : list.GetFiles()) {
            const int number = contents_.numbers.value(file, -1);
            paragraph.pictures.push_back(number);
            if (number >= 0)
                contents_.pictures[std::size_t(number)].isShown = true;
        }
        paragraph.linked = std::min(paragraph.pictures.size(), CountLinks(paragraph.id));
    }

    static std::size_t CountLinks(qint32 paragraph)
    {
        Statement count(AlbumDatabase->GetEngine(),
                        "SELECT count(*) FROM LinkedImages WHERE ParagraphId=?1");
        count.Bind(1, qint64(paragraph));
        return count.Step() ? std::size_t(count.GetInteger(0)) : 0;
    }

    const PublishProgress& progress_;
    TravelContents contents_;
    int done_ = 0;
};

} // namespace

std::optional<TravelContents> ReadTravelContents(const PublishProgress& progress)
{
    try {
        return ContentsReading(progress).Read();
    } catch (const Stopped&) {
        return {};
    }
}

TravelContents OnlyShown(const TravelContents& contents)
{
    TravelContents shown{{}, {}, contents.paragraphs};
    std::vector<int> numbers(contents.pictures.size(), -1);
    for (std::size_t i = 0; i < contents.pictures.size(); ++i) {
        const TravelPicture& picture = contents.pictures[i];
        if (!picture.isShown)
            continue;
        numbers[i] = int(shown.pictures.size());
        shown.numbers.insert(picture.file, numbers[i]);
        shown.pictures.push_back(picture);
    }
    for (TravelParagraph& paragraph : shown.paragraphs) {
        for (int& number : paragraph.pictures)
            number = number < 0 ? number : numbers[std::size_t(number)];
    }
    return shown;
}
