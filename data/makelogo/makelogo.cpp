// makelogo.cpp -- makelogo: draws the stock logo, LOGO.BMP of logo.txt.
//
//     makelogo FILE.BMP
//
// The logo block of a page shows its picture 2.35 by 0.7 inches: 705 x 210 pixels are 300 to the inch. The left
// end is a core of bedded soil with a hole bored through it, beside it the name.
// Exit status: 0 written, 1 the file could not be written, 2 a wrong command line.
#include "strokes.h"

#include <iostream>

constexpr Color Ink{31, 49, 66}, Soft{96, 112, 124};

// The top of bed k (0 is the ground) at x, in units of 0.01 inch. The beds dip and thicken to the right, each
// with a swell of its own.
static double BedTop(int k, double x)
{
    const double top[] = {9, 19, 27, 39, 48, 61};
    return top[k] + 2.2 * std::sin(x / 9.5 + 1.1 * k) + 0.045 * k * (x - 30);
}

static void DrawBeds(Picture& picture)
{
    const Color beds[] = {{139, 115, 85}, {214, 184, 124}, {186, 140, 84}, {158, 166, 160}, {104, 124, 134}, Ink};
    constexpr double Left = 4, Right = 60, Bottom = 66;
    const auto inCore = [](Point p) { return p.x > Left && p.x < Right && p.y < Bottom; };
    for (int k = 0; k < 6; ++k) {
        const auto inBed = [&](Point p) { return inCore(p) && p.y > BedTop(k, p.x); };
        picture.lay({Left, 0}, {Right, Bottom}, beds[k], inBed);
        if (k > 0)
            picture.lay({Left, 0}, {Right, Bottom}, {255, 255, 255},
                        [&](Point p) { return inCore(p) && std::abs(p.y - BedTop(k, p.x)) < 0.55; });
    }
    // Grains of the second bed, pebbles of the third.
    for (int i = 0; i < 9; ++i)
        picture.disc({7.5 + 6.2 * i, (BedTop(1, 7.5 + 6.2 * i) + BedTop(2, 7.5 + 6.2 * i)) / 2 + (i % 2 ? 1.2 : -1.0)},
                     0.8, {139, 115, 85});
    for (int i = 0; i < 7; ++i) {
        const double x = 8.5 + 7.9 * i;
        const double y = (BedTop(2, x) + BedTop(3, x)) / 2 + (i % 2 ? 2 : -1.5);
        picture.lay({x - 3, y - 2}, {x + 3, y + 2}, {240, 226, 200},
                    [&](Point p) { return std::hypot((p.x - x) / 2.4, (p.y - y) / 1.5) < 1; });
    }
    // The hole, cased to the rock, and the rod above the ground.
    picture.polygon({{29.2, 6}, {34.8, 6}, {34.8, 62}, {32, 66}, {29.2, 62}}, {255, 255, 255});
    picture.stroke({{32, 3}, {32, 58}}, 2.2, Ink);
    picture.polygon({{30, 57}, {34, 57}, {32, 62.5}}, Ink);
}

int main(int argc, char** argv)
try {
    if (argc != 2 || std::string_view(argv[1]).starts_with("-")) {
        std::cerr << "makelogo FILE.BMP\n";
        return 2;
    }
    Picture picture(705, 210, 3);
    DrawBeds(picture);
    // The name fills the room right of the core; the gap follows from its width.
    constexpr std::string_view Name = "STRATAVUE", Line = "BORING LOGS AND SECTIONS";
    constexpr double Left = 71, Room = 157;
    const double name = Write(picture, Name, {}, 18.5, 0, 0, Ink);
    Write(picture, Name, {Left, 17}, 18.5, (Room - name) / double(Name.size() - 1), 3.3, Ink);
    const double line = Write(picture, Line, {}, 7, 0, 0, Soft);
    Write(picture, Line, {Left, 47.5}, 7, (Room - line) / double(Line.size() - 1), 1.1, Soft);
    WritePicture(argv[1], picture.asBitmap());
    return 0;
} catch (const std::exception& failure) {
    std::cerr << "makelogo: " << failure.what() << '\n';
    return 1;
}
