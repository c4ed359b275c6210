// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <optional>
#include <vector>

// Where pictures stand on a screen. All figures are in display units: the drawing area is 100 wide
// and 100 high whatever its size in pixels.

struct UnitSize
{
    float width;
    float height;
};

struct UnitRect
{
    float left;
    float top;
    float width;
    float height;
};

// The size of a picture in the given room: its proportions are kept, and it is made smaller where
// necessary, never larger.
UnitSize FitPicture(UnitSize natural, float maxHeight, float maxWidth);

// Fills one screen, picture by picture.
class LineLayout
{
public:
    // From 0 lines (one picture alone, centred both ways) to maxLines, in a band of that height at
    // the top of the drawing area.
    LineLayout(int lines, float bandHeight, float totalWidth = 100);

    static constexpr int maxLines = 10;

    // Puts a picture on the first line from the top that has room for it, to the right of the
    // pictures there and touching them; the pictures of a line share their bottom edge. None when
    // no line has room, or when the one picture that stands alone is placed.
    std::optional<UnitRect> Place(UnitSize natural);

private:
    std::optional<UnitRect> PlaceAlone(UnitSize natural);

    struct Line
    {
        float top = 0;
        float usedWidth = 0;
    };

    int lines_;
    float bandHeight_;
    float totalWidth_;
    float lineHeight_;
    bool isEmpty_ = true;
    std::array<Line, maxLines> table_;
};

// Moves the pictures of each line sideways together, so that the line stands in the middle.
void CentreLines(std::vector<UnitRect>& pictures, float totalWidth = 100);
