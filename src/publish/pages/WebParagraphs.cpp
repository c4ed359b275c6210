// SPDX-License-Identifier: MIT
#include "publish/pages/WebParagraphs.h"

#include "publish/pages/WebPictures.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>

namespace mustache = kainjow::mustache;

namespace {

constexpr int shownEdge = 960;         // of the picture that a browser without srcset shows
constexpr std::size_t fewPictures = 4; // that stand in higher rows
constexpr double rowHeight = 20;       // in em, with what rows are stretched by
constexpr double highRowHeight = 28;
constexpr double ratioOfPlaceholder = 1.5; // width to height
constexpr double leastSum = 2.6; // of ratios in a row of few pictures, lest it becomes too high

struct ParagraphWords
{
    Q_DECLARE_TR_FUNCTIONS(WebPages)
};

std::string ToUtf8(const QString& text)
{
    return text.toStdString();
}

mustache::data Number(double number)
{
    return {QByteArray::number(number, 'g', 5).toStdString()};
}

mustache::data Lines(const QString& text)
{
    static const QRegularExpression emptyLines(QStringLiteral("\n\\s*\n"));
    mustache::data lines{mustache::data::type::list};
    for (const QString& line : text.split(emptyLines, Qt::SkipEmptyParts))
        lines.push_back(line.toStdString());
    return lines;
}

std::string Marked(const QString& file)
{
    return WebPages::insideMark + file.toStdString() + WebPages::insideMark;
}

// How wide the style shows a picture, about: rows fill a phone's width and have a certain
// height elsewhere.
QString SizesFor(double ratio, std::size_t neighbours)
{
    if (neighbours == 1)
        return QStringLiteral("min(92vw, 79em, %1vh)").arg(qRound(ratio * 78));
    const double height = neighbours <= fewPictures ? highRowHeight : rowHeight;
    return QStringLiteral("(max-width: 40em) 92vw, min(92vw, %1em)").arg(qRound(ratio * height));
}

} // namespace

void WebParagraphs::Fill(mustache::data& page, const PublishedChapter& chapter) const
{
    page.set("isEmpty", chapter.paragraphs.empty());
    mustache::data paragraphs{mustache::data::type::list};
    for (std::size_t i = 0; i < chapter.paragraphs.size(); ++i)
        paragraphs.push_back(OfParagraph(chapter.paragraphs[i], i == 0));
    page.set("paragraphs", paragraphs);
}

mustache::data WebParagraphs::OfParagraph(const PublishedParagraph& paragraph, bool isFirst) const
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
        data.set("more", ToUtf8(ParagraphWords::tr("and %Ln more pictures", nullptr, more)));
    return data;
}

double WebParagraphs::RatioOf(const QString& file) const
{
    const WebPicture& picture = pictures_.Of(file);
    if (!picture.IsThere())
        return ratioOfPlaceholder;
    return double(picture.sizes.back().width()) / picture.sizes.back().height();
}

// Few pictures stand in one row where the page is wide.
double WebParagraphs::SumOfRatios(const PublishedParagraph& paragraph) const
{
    double sum = 0;
    for (const PublishedPicture& picture : paragraph.pictures)
        sum += RatioOf(picture.file);
    return std::max(sum, leastSum);
}

mustache::data WebParagraphs::OfPicture(const PublishedParagraph& paragraph,
                                        std::size_t number) const
{
    const PublishedPicture& picture = paragraph.pictures[number];
    const WebPicture& files = pictures_.Of(picture.file);
    mustache::data data;
    data.set("isThere", files.IsThere());
    data.set("ratio", Number(RatioOf(picture.file)));
    if (!picture.legend.trimmed().isEmpty())
        data.set("legend", ToUtf8(picture.legend));
    if (!files.IsThere())
        return data;
    const QString place =
        ParagraphWords::tr("Picture %1 of %2").arg(number + 1).arg(paragraph.pictures.size());
    data.set("alt", ToUtf8(picture.legend.trimmed().isEmpty() ? place : picture.legend));
    if (picture.text != paragraph.text)
        data.set("text", ToUtf8(picture.text));
    SetFiles(data, picture.file, paragraph.pictures.size());
    return data;
}

void WebParagraphs::SetFiles(mustache::data& data, const QString& file,
                             std::size_t neighbours) const
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
    if (form_ == WebPages::Form::Single) {
        data.set("src", Marked(files.FileName(shown)));
        data.set("address", "#"); // a browser follows no link to an address that holds a file
    } else {
        data.set("src", ToUtf8(files.FileName(shown)));
        data.set("address", ToUtf8(files.FileName(largest)));
    }
    if (set.size() > 1) {
        data.set("srcset", ToUtf8(set.join(QStringLiteral(", "))));
        data.set("sizes", ToUtf8(SizesFor(RatioOf(file), neighbours)));
    }
    data.set("width", std::to_string(shown.width()));
    data.set("height", std::to_string(shown.height()));
}
