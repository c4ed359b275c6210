// SPDX-License-Identifier: MIT
#include "publish/book/BookText.h"

#include <QColor>
#include <QFont>

#include <algorithm>

namespace {

struct FontKind
{
    qreal size; // points
    qreal lineHeight;
    QRgb colour;
    bool isSlanted;
};

FontKind KindOf(BookFont font)
{
    switch (font) {
    case BookFont::Cover:
        return {30, 38, 0xff202020, false};
    case BookFont::Heading:
        return {21, 28, 0xff202020, false};
    case BookFont::Body:
        return {11, 15.4, 0xff202020, false};
    case BookFont::Legend:
        return {8.5, 11.5, 0xff606060, true};
    case BookFont::Number:
        return {9, 12, 0xff606060, false};
    }
    return {};
}

QFont MakeFont(const FontKind& kind)
{
    QFont font;
    font.setFamilies({QStringLiteral("Noto Serif"), QStringLiteral("Liberation Serif"),
                      QStringLiteral("DejaVu Serif")});
    font.setStyleHint(QFont::Serif);
    font.setPixelSize(int(kind.size * bookDotsPerPoint));
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setItalic(kind.isSlanted);
    // Any spacing at all keeps letters from being joined to a glyph that stands for no character:
    // nobody would find them in a PDF.
    font.setLetterSpacing(QFont::AbsoluteSpacing, 1.0 / 64);
    return font;
}

} // namespace

BookText::BookText(const QString& text, BookFont font, qreal width, Qt::Alignment alignment)
    : font_(font), width_(width), isRightToLeft_(text.isRightToLeft())
{
    QTextOption option(alignment);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setUseDesignMetrics(true);
    option.setTabStopDistance(KindOf(font).size * 2 * bookDotsPerPoint);
    for (const QString& paragraph : text.split(u'\n'))
        AddParagraph(paragraph, option);
}

void BookText::AddParagraph(const QString& text, const QTextOption& option)
{
    const FontKind kind = KindOf(font_);
    auto layout = std::make_unique<QTextLayout>(text, MakeFont(kind));
    QTextOption ownOption = option;
    ownOption.setTextDirection(text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    if (text.isRightToLeft() && option.alignment() == Qt::AlignLeft)
        ownOption.setAlignment(Qt::AlignRight);
    layout->setTextOption(ownOption);
    layout->setCacheEnabled(true);
    qreal top = lines_.empty() ? 0 : lines_.back().bottom;
    layout->beginLayout();
    for (QTextLine line = layout->createLine(); line.isValid(); line = layout->createLine()) {
        line.setLineWidth(width_ * bookDotsPerPoint);
        // Letters of some scripts are taller than the font's own.
        const qreal height = std::max(kind.lineHeight * bookDotsPerPoint, line.height());
        line.setPosition({0, top + (height - line.height()) / 2});
        lines_.push_back({layouts_.size(), line.lineNumber(), top, top + height});
        top += height;
    }
    layout->endLayout();
    layouts_.push_back(std::move(layout));
}

qreal BookText::HeightOf(int first, int last) const
{
    if (first >= last)
        return 0;
    return (lines_[std::size_t(last) - 1].bottom - lines_[std::size_t(first)].top) /
           bookDotsPerPoint;
}

int BookText::LinesWithin(int first, qreal height) const
{
    constexpr qreal rounding = 0.01;
    int last = first;
    while (last < CountLines() && HeightOf(first, last + 1) <= height + rounding)
        ++last;
    return last - first;
}

void BookText::Paint(QPainter& painter, QPointF place, int first, int last) const
{
    if (first >= last)
        return;
    painter.setPen(QColor::fromRgb(KindOf(font_).colour));
    const QPointF corner = place * bookDotsPerPoint - QPointF(0, lines_[std::size_t(first)].top);
    for (int i = first; i < last; ++i) {
        const Line& line = lines_[std::size_t(i)];
        layouts_[line.layout]->lineAt(line.number).draw(&painter, corner);
    }
}
