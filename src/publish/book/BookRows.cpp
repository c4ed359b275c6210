// SPDX-License-Identifier: MIT
#include "publish/book/BookRows.h"

#include <algorithm>
#include <limits>
#include <numeric>

namespace {

// Number of pictures in each row, so that the rows' proportions differ least: the sum of the
// squared widths, at equal height, is least then.
std::vector<int> ShareOut(const std::vector<qreal>& ratios, int rows)
{
    const auto count = ratios.size();
    std::vector<qreal> upTo(count + 1, 0);
    std::partial_sum(ratios.begin(), ratios.end(), upTo.begin() + 1);
    constexpr qreal never = std::numeric_limits<qreal>::infinity();
    // best[r][i]: the first i pictures in r rows; from[r][i]: where the last of those begins.
    std::vector<std::vector<qreal>> best(std::size_t(rows) + 1,
                                         std::vector<qreal>(count + 1, never));
    std::vector<std::vector<std::size_t>> from(best.size(), std::vector<std::size_t>(count + 1, 0));
    best[0][0] = 0;
    for (std::size_t row = 1; row < best.size(); ++row) {
        for (std::size_t end = row; end <= count; ++end) {
            for (std::size_t begin = row - 1; begin < end; ++begin) {
                const qreal width = upTo[end] - upTo[begin];
                const qreal cost = best[row - 1][begin] + width * width;
                if (cost < best[row][end]) {
                    best[row][end] = cost;
                    from[row][end] = begin;
                }
            }
        }
    }
    std::vector<int> shares(std::size_t(rows), 0);
    std::size_t end = count;
    for (std::size_t row = shares.size(); row > 0; --row) {
        shares[row - 1] = int(end - from[row][end]);
        end = from[row][end];
    }
    return shares;
}

class Arrangement
{
public:
    Arrangement(const std::vector<QSizeF>& natural, QSizeF area, qreal gap, qreal legends)
        : natural_(natural), area_(area), gap_(gap), legends_(legends)
    {
        for (const QSizeF& size : natural)
            ratios_.push_back(size.width() / size.height());
    }

    BookRows InRows(int count) const
    {
        const std::vector<int> shares = ShareOut(ratios_, count);
        std::vector<qreal> heights;
        std::size_t begin = 0;
        for (const int share : shares) {
            heights.push_back(HeightOfRow(begin, begin + std::size_t(share)));
            begin += std::size_t(share);
        }
        const qreal sum = std::accumulate(heights.begin(), heights.end(), qreal(0));
        const qreal room = area_.height() - count * legends_ - (count - 1) * gap_;
        const qreal scale = std::clamp<qreal>(room / sum, 0, 1);
        BookRows rows;
        begin = 0;
        for (std::size_t row = 0; row < shares.size(); ++row) {
            const std::size_t end = begin + std::size_t(shares[row]);
            rows.height += heights[row] * scale;
            PlaceRow(rows, begin, end, heights[row] * scale);
            rows.height += legends_ + gap_;
            begin = end;
        }
        rows.height -= gap_;
        return rows;
    }

private:
    // Where it is as wide as the area, but no picture larger than it is.
    qreal HeightOfRow(std::size_t begin, std::size_t end) const
    {
        qreal ratio = 0;
        qreal largest = 0;
        for (std::size_t i = begin; i < end; ++i) {
            ratio += ratios_[i];
            largest = std::max(largest, natural_[i].height());
        }
        const qreal width = area_.width() - qreal(end - begin - 1) * gap_;
        return std::min(width / ratio, largest);
    }

    // Its bottom edge is at the height reached.
    void PlaceRow(BookRows& rows, std::size_t begin, std::size_t end, qreal height) const
    {
        const int row = rows.rows.empty() ? 0 : rows.rows.back() + 1;
        const std::size_t first = rows.places.size();
        qreal left = 0;
        for (std::size_t i = begin; i < end; ++i) {
            const qreal own = std::min(height, natural_[i].height());
            rows.places.emplace_back(left, rows.height - own, own * ratios_[i], own);
            rows.rows.push_back(row);
            rows.area += own * own * ratios_[i];
            left += own * ratios_[i] + gap_;
        }
        const qreal shift = (area_.width() - (left - gap_)) / 2;
        for (std::size_t i = first; i < rows.places.size(); ++i)
            rows.places[i].translate(shift, 0);
    }

    const std::vector<QSizeF>& natural_;
    QSizeF area_;
    qreal gap_;
    qreal legends_;
    std::vector<qreal> ratios_;
};

} // namespace

BookRows ArrangeRows(const std::vector<QSizeF>& natural, QSizeF area, qreal gap, qreal legends)
{
    const Arrangement arrangement(natural, area, gap, legends);
    BookRows best = arrangement.InRows(1);
    for (int count = 2; count <= int(natural.size()); ++count) {
        BookRows rows = arrangement.InRows(count);
        if (rows.area > best.area)
            best = std::move(rows);
    }
    return best;
}
