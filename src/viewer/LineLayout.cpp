// SPDX-License-Identifier: MIT
#include "viewer/LineLayout.h"

#include <algorithm>
#include <cmath>

namespace {

// Pictures of one line differ in their bottom edge only by rounding.
constexpr float sameLine = 0.01F;

bool ShareLine(const UnitRect& first, const UnitRect& second)
{
    return std::fabs((first.top + first.height) - (second.top + second.height)) < sameLine;
}

// How far the picture's line stands left of the middle.
float ShiftToMiddle(const std::vector<UnitRect>& pictures, const UnitRect& ofLine, float totalWidth)
{
    float left = ofLine.left;
    float right = ofLine.left + ofLine.width;
    for (const UnitRect& picture : pictures) {
        if (ShareLine(picture, ofLine)) {
            left = std::min(left, picture.left);
            right = std::max(right, picture.left + picture.width);
        }
    }
    return (totalWidth - left - right) / 2;
}

} // namespace

UnitSize FitPicture(UnitSize natural, float maxHeight, float maxWidth)
{
    const float ratio = natural.width / natural.height;
    UnitSize fitted;
    fitted.height = std::min(natural.height, maxHeight);
    fitted.width = std::min(fitted.height * ratio, maxWidth);
    fitted.height = fitted.width / ratio;
    return fitted;
}

LineLayout::LineLayout(int lines, float bandHeight, float totalWidth)
    : lines_(std::clamp(lines, 0, maxLines)),
      bandHeight_(bandHeight),
      totalWidth_(totalWidth),
      lineHeight_(lines_ > 0 ? bandHeight / float(lines_) : bandHeight)
{
    for (int i = 1; i < lines_; ++i)
        table_[std::size_t(i)].top = table_[std::size_t(i) - 1].top + lineHeight_;
}

std::optional<UnitRect> LineLayout::Place(UnitSize natural)
{
    if (lines_ == 0)
        return PlaceAlone(natural);
    const UnitSize size = FitPicture(natural, lineHeight_, totalWidth_);
    const auto end = table_.begin() + lines_;
    const auto line = std::find_if(table_.begin(), end, [&](const Line& candidate) {
        return candidate.usedWidth + size.width <= totalWidth_;
    });
    if (line == end)
        return std::nullopt;
    const UnitRect place{line->usedWidth, line->top + lineHeight_ - size.height, size.width,
                         size.height};
    line->usedWidth += size.width;
    return place;
}

std::optional<UnitRect> LineLayout::PlaceAlone(UnitSize natural)
{
    if (!isEmpty_)
        return std::nullopt;
    isEmpty_ = false;
    const UnitSize size = FitPicture(natural, lineHeight_, totalWidth_);
    return UnitRect{(totalWidth_ - size.width) / 2, (bandHeight_ - size.height) / 2, size.width,
                    size.height};
}

void CentreLines(std::vector<UnitRect>& pictures, float totalWidth)
{
    std::vector<float> shifts;
    shifts.reserve(pictures.size());
    for (const UnitRect& picture : pictures)
        shifts.push_back(ShiftToMiddle(pictures, picture, totalWidth));
    for (std::size_t i = 0; i < pictures.size(); ++i)
        pictures[i].left += shifts[i];
}
