// makemap.cpp -- makemap: draws the location plan of the sample project, SITEMAP.BMP, which two of its borings name.
//
//     makemap FILE.BMP
//
// The map block of a page is 2.3 by 1.4 inches: 690 x 420 pixels are 300 to the inch.
// Exit status: 0 written, 1 the file could not be written, 2 a wrong command line.
#include "../../data/makelogo/strokes.h"

#include <iostream>

constexpr Color Ink{31, 49, 66}, Water{198, 219, 232}, Bank{110, 142, 164}, Levee{150, 120, 80}, Yard{228, 222, 212};

// County grid in feet to the picture's units of 0.01 inch; the plan shows 2350 to 3050 east, 880 to 1306 north.
static Point Place(double east, double north)
{
    constexpr double UnitsPerFoot = 230.0 / 700;
    return {(east - 2350) * UnitsPerFoot, (1306 - north) * UnitsPerFoot};
}

static void Boring(Picture& picture, std::string_view name, double east, double north, double labelX, double labelY)
{
    const Point at = Place(east, north);
    picture.disc(at, 2.4, {255, 255, 255});
    picture.disc(at, 1.7, {176, 40, 32});
    Write(picture, name, {at.x + labelX, at.y + labelY}, 5.5, 1.5, 0.9, Ink);
}

int main(int argc, char** argv)
try {
    if (argc != 2 || std::string_view(argv[1]).starts_with("-")) {
        std::cerr << "makemap FILE.BMP\n";
        return 2;
    }
    Picture picture(690, 420, 3);
    const std::vector<Point> west = {Place(2455, 1310), Place(2450, 1180), Place(2440, 1050), Place(2520, 940),
                                     Place(2566, 874)};
    const std::vector<Point> east = {Place(2765, 1310), Place(2760, 1180), Place(2745, 1060), Place(2870, 930),
                                     Place(2936, 874)};
    std::vector<Point> river = west;
    river.insert(river.end(), east.rbegin(), east.rend());
    picture.polygon(river, Water);
    picture.stroke(west, 0.8, Bank);
    picture.stroke(east, 0.8, Bank);
    // The levee: its crest, and the hachures of its land side.
    const std::vector<Point> crest = {Place(2812, 1310), Place(2806, 1180), Place(2795, 1080), Place(2918, 978),
                                      Place(3046, 872)};
    picture.stroke(crest, 1.6, Levee);
    for (std::size_t i = 0; i + 1 < crest.size(); ++i) {
        const double dx = crest[i + 1].x - crest[i].x, dy = crest[i + 1].y - crest[i].y, length = std::hypot(dx, dy);
        for (double along = 2; along < length; along += 4) {
            const Point from{crest[i].x + dx * along / length, crest[i].y + dy * along / length};
            picture.stroke({from, {from.x + 3.2 * dy / length, from.y - 3.2 * dx / length}}, 0.6, Levee);
        }
    }
    // The yard, and the line of the new bridge.
    const std::vector<Point> yard = {Place(2842, 1072), Place(2992, 1058), Place(3012, 1222), Place(2852, 1236),
                                     Place(2842, 1072)};
    picture.polygon(yard, Yard);
    picture.stroke(yard, 0.7, Ink);
    for (const double side : {-9.0, 9.0})
        for (double x = 2366; x < 2834; x += 14)
            picture.stroke(
                {Place(x, 1172 + (x - 2366) * 0.085 + side), Place(x + 8, 1172.7 + (x - 2366) * 0.085 + side)}, 0.7,
                Ink);
    Write(picture, "TAMBER RIVER", Place(2478, 1095), 6, 2.2, 0.9, Bank);
    Write(picture, "WIRE", Place(2868, 1214), 5, 1.6, 0.8, Ink);
    Write(picture, "WORKS", Place(2868, 1189), 5, 1.6, 0.8, Ink);
    Write(picture, "LEVEE", Place(2826, 1284), 5, 1.6, 0.8, Levee);
    Boring(picture, "101", 2410, 1180, -6, 7.5);
    Boring(picture, "106", 2650, 1195, -6, 6.5);
    Boring(picture, "102", 2790, 1210, -6.5, -11);
    Boring(picture, "103", 2795, 1080, -17, -3);
    Boring(picture, "104", 2870, 1105, 3.5, 2);
    Boring(picture, "105", 2918, 978, -16, 1);
    Boring(picture, "107", 2984, 981, 4, -3);
    Boring(picture, "108", 2930, 1160, 4, -1);
    // North, and a hundred feet.
    picture.polygon({Place(2380, 1290), Place(2370, 1240), Place(2380, 1251), Place(2390, 1240)}, Ink);
    Write(picture, "N", {Place(2380, 1231).x - 1.9, Place(2380, 1231).y}, 5.5, 0, 0.9, Ink);
    picture.stroke({Place(2370, 912), Place(2370, 902), Place(2470, 902), Place(2470, 912)}, 0.9, Ink);
    Write(picture, "100 FT", Place(2382, 934), 5, 1.4, 0.8, Ink);
    WritePicture(argv[1], picture.asBitmap());
    return 0;
} catch (const std::exception& failure) {
    std::cerr << "makemap: " << failure.what() << '\n';
    return 1;
}
