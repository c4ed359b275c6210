// SPDX-License-Identifier: MIT
#include "platform/text/CsvText.h"

#include <algorithm>
#include <array>
#include <utility>

namespace {

bool BeginsFormula(const QString& text)
{
    static constexpr std::array starters{u'=', u'+', u'-', u'@', u'＝', u'＋', u'－', u'＠'};
    // Some spreadsheets drop what is blank in front.
    const auto first = std::find_if_not(text.begin(), text.end(), [](QChar character) {
        return character.isSpace() || character.unicode() < u' ';
    });
    if (first == text.end() || text == QLatin1String("-"))
        return false;
    return *first == u'\'' || std::find(starters.begin(), starters.end(), *first) != starters.end();
}

// The one that stands most often in the first line, outside quotes.
QChar SeparatorOf(const QString& text)
{
    constexpr std::array candidates{u',', u';', u'\t'};
    std::array<int, candidates.size()> counts{};
    bool isQuoted = false;
    for (const QChar character : text) {
        if (character == u'"')
            isQuoted = !isQuoted;
        if (!isQuoted && (character == u'\n' || character == u'\r'))
            break;
        for (std::size_t i = 0; !isQuoted && i < candidates.size(); ++i)
            counts[i] += character == candidates[i] ? 1 : 0;
    }
    return candidates[std::size_t(std::max_element(counts.begin(), counts.end()) - counts.begin())];
}

} // namespace

QString CsvRow(const QStringList& cells)
{
    QString row;
    for (const QString& cell : cells) {
        const bool needsQuotes = std::any_of(cell.begin(), cell.end(), [](QChar character) {
            return character == u',' || character == u';' || character == u'"' ||
                   character.isSpace() || character.unicode() < u' ';
        });
        QString written = cell;
        if (needsQuotes)
            written = u'"' + written.replace(u'"', QLatin1String("\"\"")) + u'"';
        row += written + u',';
    }
    row.chop(1);
    return row + QLatin1String("\r\n");
}

QString SafeCell(const QString& text)
{
    return BeginsFormula(text) ? u'\'' + text : text;
}

QString CellText(const QString& cell)
{
    return cell.startsWith(u'\'') && BeginsFormula(cell.sliced(1)) ? cell.sliced(1) : cell;
}

CsvReader::CsvReader(QString text) : text_(std::move(text)), separator_(SeparatorOf(text_)) {}

bool CsvReader::TakeLineEnd()
{
    if (at_ >= text_.size() || (text_[at_] != u'\r' && text_[at_] != u'\n'))
        return false;
    const bool isPair = text_[at_] == u'\r' && at_ + 1 < text_.size() && text_[at_ + 1] == u'\n';
    at_ += isPair ? 2 : 1;
    ++line_;
    return true;
}

// What follows a closing quote still belongs to the cell, as where a program has quoted badly.
QString CsvReader::TakeCell()
{
    QString cell;
    bool isQuoted = at_ < text_.size() && text_[at_] == u'"';
    if (isQuoted)
        ++at_;
    for (; at_ < text_.size(); ++at_) {
        const QChar character = text_[at_];
        if (isQuoted && character == u'"') {
            isQuoted = at_ + 1 < text_.size() && text_[at_ + 1] == u'"';
            if (!isQuoted)
                continue;
            ++at_;
        } else if (!isQuoted &&
                   (character == separator_ || character == u'\r' || character == u'\n')) {
            break;
        } else if (character == u'\n') {
            ++line_;
        }
        cell += character;
    }
    isCutOff_ = isCutOff_ || isQuoted;
    return cell;
}

bool CsvReader::Next(QStringList& cells)
{
    while (TakeLineEnd())
        ;
    cells.clear();
    if (at_ >= text_.size())
        return false;
    rowLine_ = line_;
    cells += TakeCell();
    while (at_ < text_.size() && text_[at_] == separator_) {
        ++at_;
        cells += TakeCell();
    }
    TakeLineEnd();
    return true;
}
