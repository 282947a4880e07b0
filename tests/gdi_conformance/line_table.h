#pragma once
// One-pixel lines in every direction and the pixels real GDI sets for them.

#include <vector>

namespace vorlex::gdi_conformance {

// A line from (10,10) to (10 + dx, 10 + dy) on a 20x20 bitmap and the pixels it
// sets. The end point is never set; ties of oblique lines go to the smaller y
// on x-major lines and to the smaller x on y-major lines, in every direction.
struct Line {
  const char* name;
  int dx;
  int dy;
  const char* pixels;
};

inline const std::vector<Line> kLines = {
    {"East", 8, 0, "10:10..17"},
    {"West", -8, 0, "10:3..10"},
    {"South", 0, 8, "10:10 11:10 12:10 13:10 14:10 15:10 16:10 17:10"},
    {"North", 0, -8, "3:10 4:10 5:10 6:10 7:10 8:10 9:10 10:10"},
    {"SouthEast", 6, 6, "10:10 11:11 12:12 13:13 14:14 15:15"},
    {"NorthWest", -6, -6, "5:5 6:6 7:7 8:8 9:9 10:10"},
    {"NorthEast", 6, -6, "5:15 6:14 7:13 8:12 9:11 10:10"},
    {"SouthWest", -6, 6, "10:10 11:9 12:8 13:7 14:6 15:5"},
    {"ShallowEastSouthEast", 8, 3, "10:10..11 11:12..14 12:15..16 13:17"},
    {"ShallowWestNorthWest", -8, -3, "7:3 8:4..6 9:7..8 10:9..10"},
    {"ShallowEastNorthEast", 8, -3, "7:17 8:14..16 9:12..13 10:10..11"},
    {"ShallowWestSouthWest", -8, 3, "10:9..10 11:6..8 12:4..5 13:3"},
    {"SteepSouthSouthEast", 3, 8, "10:10 11:10 12:11 13:11 14:11 15:12 16:12 17:13"},
    {"SteepNorthNorthWest", -3, -8, "3:7 4:8 5:8 6:8 7:9 8:9 9:10 10:10"},
    {"SteepNorthNorthEast", 3, -8, "3:13 4:12 5:12 6:11 7:11 8:11 9:10 10:10"},
    {"SteepSouthSouthWest", -3, 8, "10:10 11:10 12:9 13:9 14:8 15:8 16:8 17:7"},
    // Half-way ties: 2:1 and 1:2 slopes in all eight directions.
    {"TieXMajorDownRight", 4, 2, "10:10..11 11:12..13"},
    {"TieXMajorUpLeft", -4, -2, "8:7 9:8..9 10:10"},
    {"TieXMajorUpRight", 4, -2, "8:13 9:11..12 10:10"},
    {"TieXMajorDownLeft", -4, 2, "10:9..10 11:7..8"},
    {"TieYMajorDownRight", 2, 4, "10:10 11:10 12:11 13:11"},
    {"TieYMajorUpLeft", -2, -4, "7:8 8:9 9:9 10:10"},
    {"TieYMajorUpRight", 2, -4, "7:11 8:11 9:10 10:10"},
    {"TieYMajorDownLeft", -2, 4, "10:10 11:9 12:9 13:8"},
};

}  // namespace vorlex::gdi_conformance
