// SPDX-License-Identifier: MIT
#include "publish/WebPages.h"

#include "publish/WebPictures.h"

#include <QCoreApplication>
#include <QFile>
#include <QRegularExpression>

#include <kainjow/mustache.hpp>

#include <algorithm>

namespace mustache = kainjow::mustache;

// A static library's resources are not found by themselves. Outside a namespace, as it must be.
static void NeedTemplates()
{
    Q_INIT_RESOURCE(web);
}

namespace {

constexpr int shownEdge = 960; // of the picture that a browser without srcset shows
constexpr qsizetype longestExcerpt = 160;
constexpr std::size_t fewPictures = 4; // that stand in higher rows
constexpr double rowHeight = 20;       // in em, with what rows are stretched by
constexpr double highRowHeight = 28;
constexpr double ratioOfPlaceholder = 1.5; // width to height
constexpr double leastSum = 2.6; // of ratios in a row of few pictures, lest it becomes too high

struct PageWords
{
    Q_DECLARE_TR_FUNCTIONS(WebPages)
};

std::string Text(const QString& text)
{
    return text.toStdString();
}

mustache::data Number(double number)
{
    return {QByteArray::number(number, 'g', 5).toStdString()};
}

std::string Resource(const QString& name)
{
    NeedTemplates();
    QFile file(QStringLiteral(":/publish/web/") + name);
    file.open(QIODevice::ReadOnly);
    return file.readAll().toStdString();
}

mustache::data Words()
{
    mustache::data words;
    const std::pair<const char*, QString> each[] = {
        {"contents", PageWords::tr("Contents")},
        {"chapters", PageWords::tr("Chapters")},
        {"previousChapter", PageWords::tr("Previous chapter")},
        {"nextChapter", PageWords::tr("Next chapter")},
        {"previousPicture", PageWords::tr("Previous picture")},
        {"nextPicture", PageWords::tr("Next picture")},
        {"slideShow", PageWords::tr("Slide show")},
        {"close", PageWords::tr("Close")},
        {"large", PageWords::tr("Large picture")},
        {"gone", PageWords::tr("This picture is missing.")},
        {"empty", PageWords::tr("Nothing has been written here yet.")},
    };
    for (const auto& [name, text] : each)
        words.set(name, Text(text));
    return words;
}

mustache::data Lines(const QString& text)
{
    static const QRegularExpression emptyLines(QStringLiteral("\n\\s*\n"));
    mustache::data lines{mustache::data::type::list};
    for (const QString& line : text.split(emptyLines, Qt::SkipEmptyParts))
        lines.push_back(Text(line));
    return lines;
}

std::string Marked(const QString& file)
{
    return WebPages::insideMark + file.toStdString() + WebPages::insideMark;
}

} // namespace

// What the templates are filled with.
class WebPages::Data
{
public:
    Data(const PublishedStory& story, const WebPictures& pictures, Form form)
        : story_(story), pictures_(pictures), form_(form)
    {
    }

    mustache::data ForPage(const QString& title) const
    {
        mustache::data page;
        page.set("lang", Text(story_.language.bcp47Name()));
        page.set("dir", story_.IsRightToLeft() ? "rtl" : "ltr");
        page.set("pageTitle", Text(title));
        page.set("title", Text(story_.title));
        page.set("delay", std::to_string(story_.delay));
        page.set("words", Words());
        page.set("isAlone", IsAlone());
        if (IsAlone()) {
            page.set("style", GetStyle().toStdString());
            page.set("script", GetScript().toStdString());
        }
        for (const char* part : {"head", "contents", "sections", "large", "foot"})
            page.set(part, mustache::partial([part] {
                         return Resource(QLatin1String(part) + QStringLiteral(".mustache"));
                     }));
        return page;
    }

    mustache::data ForChapters() const
    {
        mustache::data chapters{mustache::data::type::list};
        for (const PublishedChapter& chapter : story_.chapters) {
            mustache::data entry = Link(chapter);
            entry.set("anchor", Text(Anchor(chapter)));
            if (IsAlone())
                FillChapter(entry, chapter);
            else
                FillCard(entry, chapter);
            chapters.push_back(entry);
        }
        return chapters;
    }

    mustache::data Link(const PublishedChapter& chapter) const
    {
        mustache::data link;
        link.set("address", Text(IsAlone() ? u'#' + Anchor(chapter) : ChapterName(chapter)));
        link.set("title", Text(chapter.title));
        return link;
    }

    void FillChapter(mustache::data& page, const PublishedChapter& chapter) const
    {
        page.set("isEmpty", chapter.paragraphs.empty());
        mustache::data paragraphs{mustache::data::type::list};
        for (std::size_t i = 0; i < chapter.paragraphs.size(); ++i)
            paragraphs.push_back(OfParagraph(chapter.paragraphs[i], i == 0));
        page.set("paragraphs", paragraphs);
    }

private:
    bool IsAlone() const { return form_ == Form::Single; }

    static QString Anchor(const PublishedChapter& chapter)
    {
        return QStringLiteral("chapter-%1").arg(chapter.id);
    }

    // How a chapter is announced on the front page: by its first picture and their number.
    void FillCard(mustache::data& card, const PublishedChapter& chapter) const
    {
        int count = 0;
        const WebPicture* cover = nullptr;
        for (const PublishedParagraph& paragraph : chapter.paragraphs) {
            for (const PublishedPicture& picture : paragraph.pictures) {
                const WebPicture& each = pictures_.Of(picture.file);
                ++count;
                if (!cover && each.IsThere())
                    cover = &each;
            }
        }
        if (count > 0)
            card.set("count", Text(PageWords::tr("%Ln pictures", nullptr, count)));
        if (!cover) {
            card.set("excerpt", Text(Excerpt(chapter)));
            return;
        }
        const QSize size = cover->sizes[cover->sizes.size() > 2 ? 1 : 0];
        mustache::data image;
        image.set("src", Text(cover->FileName(size)));
        image.set("width", std::to_string(size.width()));
        image.set("height", std::to_string(size.height()));
        card.set("cover", image);
    }

    // For a chapter that has no picture to show.
    static QString Excerpt(const PublishedChapter& chapter)
    {
        if (chapter.paragraphs.empty())
            return PageWords::tr("Nothing has been written here yet.");
        const QString text = chapter.paragraphs.front().text.simplified();
        return text.size() > longestExcerpt ? text.first(longestExcerpt) + QChar(u'\u2026') : text;
    }

    mustache::data OfParagraph(const PublishedParagraph& paragraph, bool isFirst) const
    {
        const std::size_t count = paragraph.pictures.size();
        mustache::data data;
        data.set("lines", Lines(paragraph.text));
        data.set("hasPictures", count > 0);
        data.set("crowd", count == 1 ? "one" : count <= fewPictures ? "few" : "many");
        mustache::data pictures{mustache::data::type::list};
        for (std::size_t i = 0; i < count; ++i) {
            mustache::data picture = OfPicture(paragraph, i);
            // The first one of a page is asked for before the browser knows where it stands.
            picture.set("isFirst", isFirst && i == 0);
            pictures.push_back(picture);
        }
        data.set("pictures", pictures);
        data.set("sum", Number(SumOfRatios(paragraph)));
        if (const int more = paragraph.found - int(count); more > 0 && count > 0)
            data.set("more", Text(PageWords::tr("and %Ln more pictures", nullptr, more)));
        return data;
    }

    double RatioOf(const QString& file) const
    {
        const WebPicture& picture = pictures_.Of(file);
        if (!picture.IsThere())
            return ratioOfPlaceholder;
        return double(picture.sizes.back().width()) / picture.sizes.back().height();
    }

    // Few pictures stand in one row where the page is wide.
    double SumOfRatios(const PublishedParagraph& paragraph) const
    {
        double sum = 0;
        for (const PublishedPicture& picture : paragraph.pictures)
            sum += RatioOf(picture.file);
        return std::max(sum, leastSum);
    }

    mustache::data OfPicture(const PublishedParagraph& paragraph, std::size_t number) const
    {
        const PublishedPicture& picture = paragraph.pictures[number];
        const WebPicture& files = pictures_.Of(picture.file);
        mustache::data data;
        data.set("isThere", files.IsThere());
        data.set("ratio", Number(RatioOf(picture.file)));
        if (!picture.legend.trimmed().isEmpty())
            data.set("legend", Text(picture.legend));
        if (!files.IsThere())
            return data;
        const QString place =
            PageWords::tr("Picture %1 of %2").arg(number + 1).arg(paragraph.pictures.size());
        data.set("alt", Text(picture.legend.trimmed().isEmpty() ? place : picture.legend));
        if (picture.text != paragraph.text)
            data.set("text", Text(picture.text));
        SetFiles(data, picture.file, paragraph.pictures.size());
        return data;
    }

    void SetFiles(mustache::data& data, const QString& file, std::size_t neighbours) const
    {
        const WebPicture& files = pictures_.Of(file);
        const QSize largest = files.sizes.back();
        QSize shown = largest;
        QStringList set;
        for (const QSize& size : files.sizes) {
            set += QStringLiteral("%1 %2w").arg(files.FileName(size)).arg(size.width());
            if (std::max(size.width(), size.height()) <= shownEdge)
                shown = size;
        }
        if (IsAlone()) {
            data.set("src", Marked(files.FileName(shown)));
            data.set("address", "#"); // a browser follows no link to an address that holds a file
        } else {
            data.set("src", Text(files.FileName(shown)));
            data.set("address", Text(files.FileName(largest)));
        }
        if (set.size() > 1) {
            data.set("srcset", Text(set.join(QStringLiteral(", "))));
            data.set("sizes", Text(SizesFor(RatioOf(file), neighbours)));
        }
        data.set("width", std::to_string(shown.width()));
        data.set("height", std::to_string(shown.height()));
    }

    // How wide the style shows a picture, about: rows fill a phone's width and have a certain
    // height elsewhere.
    static QString SizesFor(double ratio, std::size_t neighbours)
    {
        if (neighbours == 1)
            return QStringLiteral("min(92vw, 79em, %1vh)").arg(qRound(ratio * 78));
        const double height = neighbours <= fewPictures ? highRowHeight : rowHeight;
        return QStringLiteral("(max-width: 40em) 92vw, min(92vw, %1em)")
            .arg(qRound(ratio * height));
    }

    const PublishedStory& story_;
    const WebPictures& pictures_;
    Form form_;
};

WebPages::WebPages(const PublishedStory& story, const WebPictures& pictures, Form form)
    : story_(story), data_(std::make_unique<Data>(story, pictures, form))
{
}

WebPages::~WebPages() = default;

namespace {

QByteArray Filled(const QString& name, const mustache::data& data)
{
    mustache::mustache page(Resource(name));
    return QByteArray::fromStdString(page.render(data));
}

} // namespace

QByteArray WebPages::MakeFront() const
{
    mustache::data page = data_->ForPage(story_.title);
    page.set("chapters", data_->ForChapters());
    return Filled(QStringLiteral("front.mustache"), page);
}

QByteArray WebPages::MakeChapter(std::size_t number) const
{
    const PublishedChapter& chapter = story_.chapters[number];
    mustache::data page = data_->ForPage(chapter.title + QStringLiteral(" – ") + story_.title);
    page.set("chapterTitle", Text(chapter.title));
    data_->FillChapter(page, chapter);
    if (number > 0)
        page.set("previous", data_->Link(story_.chapters[number - 1]));
    if (number + 1 < story_.chapters.size())
        page.set("next", data_->Link(story_.chapters[number + 1]));
    return Filled(QStringLiteral("chapter.mustache"), page);
}

QByteArray WebPages::MakeSingle() const
{
    mustache::data page = data_->ForPage(story_.title);
    page.set("chapters", data_->ForChapters());
    return Filled(QStringLiteral("single.mustache"), page);
}

QString WebPages::ChapterName(const PublishedChapter& chapter)
{
    return QStringLiteral("chapter-%1.html").arg(chapter.id);
}

QByteArray WebPages::GetStyle()
{
    return QByteArray::fromStdString(Resource(QStringLiteral("story.css")));
}

QByteArray WebPages::GetScript()
{
    return QByteArray::fromStdString(Resource(QStringLiteral("story.js")));
}
