// SPDX-License-Identifier: MIT
#include "publish/pages/WebPages.h"

#include "publish/pages/WebParagraphs.h"
#include "publish/pages/WebPictures.h"

#include <QCoreApplication>
#include <QFile>

#include <kainjow/mustache.hpp>

namespace mustache = kainjow::mustache;

// A static library's resources are not found by themselves. Outside a namespace, as it must be.
static void NeedTemplates()
{
    Q_INIT_RESOURCE(web);
}

namespace {

constexpr qsizetype longestExcerpt = 160;

struct PageWords
{
    Q_DECLARE_TR_FUNCTIONS(WebPages)
};

std::string Text(const QString& text)
{
    return text.toStdString();
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

} // namespace

// What the templates are filled with.
class WebPages::Data
{
public:
    Data(const PublishedStory& story, const WebPictures& pictures, Form form)
        : story_(story), pictures_(pictures), paragraphs_(pictures, form), form_(form)
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
                paragraphs_.Fill(entry, chapter);
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
        paragraphs_.Fill(page, chapter);
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

    const PublishedStory& story_;
    const WebPictures& pictures_;
    WebParagraphs paragraphs_;
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
