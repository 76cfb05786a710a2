// makemap.cpp -- makemap: draws the plans of the sample project. SITEMAP.BMP is the location plan of the title blocks,
// which some of its borings name; PROJECT.BMP is the project map of the intro pages, which finds it by that name.
//
//     makemap SITEMAP.BMP PROJECT.BMP
//
// The map block of a log is 2.3 by 1.4 inches: 690 x 420 pixels are 300 to the inch. The map of an intro page fills a
// box of 2.5 by 3 or of 4 by 4 inches: its picture is 4 by 4.4, between the two shapes.
// Exit status: 0 written, 1 a file could not be written, 2 a wrong command line.
#include "../../data/makelogo/strokes.h"

#include <iostream>

constexpr Color Ink{31, 49, 66}, Water{198, 219, 232}, Bank{110, 142, 164}, Levee{150, 120, 80}, Yard{228, 222, 212};

namespace
{
// The part of the county grid that a plan shows, in feet, and its scale in units of 0.01 inch.
struct Plan {
    Picture picture;
    double west, north, unitsPerFoot;
    double letters; // size of the letters and marks, 1 on the location plan

    Point Place(double east, double northing) const
    {
        return {(east - west) * unitsPerFoot, (north - northing) * unitsPerFoot};
    }
    std::vector<Point> Places(const std::vector<Point>& grid) const
    {
        std::vector<Point> places;
        for (const Point& p : grid)
            places.push_back(Place(p.x, p.y));
        return places;
    }
    void Words(std::string_view words, Point at, double height, double gap, double weight, Color color)
    {
        Write(picture, words, at, height * letters, gap * letters, weight * letters, color);
    }
    void Boring(std::string_view name, double east, double northing, double labelX, double labelY)
    {
        const Point at = Place(east, northing);
        picture.disc(at, 2.4 * letters, {255, 255, 255});
        picture.disc(at, 1.7 * letters, {176, 40, 32});
        Words(name, {at.x + labelX * letters, at.y + labelY * letters}, 5.5, 1.5, 0.9, Ink);
    }
};
} // namespace

// The river between its banks, and the levee: its crest, and the hachures of its land side.
static void DrawRiver(Plan& plan)
{
    const std::vector<Point> west =
        plan.Places({{2470, 1500}, {2455, 1310}, {2450, 1180}, {2440, 1050}, {2520, 940}, {2566, 874}, {2690, 700}});
    const std::vector<Point> east =
        plan.Places({{2772, 1500}, {2765, 1310}, {2760, 1180}, {2745, 1060}, {2870, 930}, {2936, 874}, {3110, 700}});
    std::vector<Point> river = west;
    river.insert(river.end(), east.rbegin(), east.rend());
    plan.picture.polygon(river, Water);
    plan.picture.stroke(west, 0.8, Bank);
    plan.picture.stroke(east, 0.8, Bank);
    const std::vector<Point> crest =
        plan.Places({{2822, 1500}, {2812, 1310}, {2806, 1180}, {2795, 1080}, {2918, 978}, {3046, 872}, {3190, 740}});
    plan.picture.stroke(crest, 1.6, Levee);
    for (std::size_t i = 0; i + 1 < crest.size(); ++i) {
        const double dx = crest[i + 1].x - crest[i].x, dy = crest[i + 1].y - crest[i].y, length = std::hypot(dx, dy);
        for (double along = 2; along < length; along += 4) {
            const Point from{crest[i].x + dx * along / length, crest[i].y + dy * along / length};
            plan.picture.stroke({from, {from.x + 3.2 * dy / length, from.y - 3.2 * dx / length}}, 0.6, Levee);
        }
    }
}

// The yard, and the line of the new bridge.
static void DrawWorks(Plan& plan)
{
    const std::vector<Point> yard = plan.Places({{2842, 1072}, {2992, 1058}, {3012, 1222}, {2852, 1236}, {2842, 1072}});
    plan.picture.polygon(yard, Yard);
    plan.picture.stroke(yard, 0.7, Ink);
    for (const double side : {-9.0, 9.0})
        for (double x = 2366; x < 2834; x += 14)
            plan.picture.stroke(
                plan.Places({{x, 1172 + (x - 2366) * 0.085 + side}, {x + 8, 1172.7 + (x - 2366) * 0.085 + side}}), 0.7,
                Ink);
    plan.Words("TAMBER RIVER", plan.Place(2478, 1095), 6, 2.2, 0.9, Bank);
    plan.Words("WIRE", plan.Place(2868, 1214), 5, 1.6, 0.8, Ink);
    plan.Words("WORKS", plan.Place(2868, 1189), 5, 1.6, 0.8, Ink);
}

static void DrawBorings(Plan& plan)
{
    plan.Boring("101", 2410, 1180, -6, 7.5);
    plan.Boring("106", 2650, 1195, -6, 6.5);
    plan.Boring("102", 2790, 1210, -6.5, -11);
    plan.Boring("103", 2795, 1080, -17, -3);
    plan.Boring("104", 2870, 1105, 3.5, 2);
    plan.Boring("105", 2918, 978, -16, 1);
    plan.Boring("107", 2984, 981, 4, -3);
    plan.Boring("108", 2930, 1160, 4, -1);
    plan.Boring("109", 2960, 1205, 4, -3);
    plan.Boring("110", 2950, 1085, 4, -1);
    plan.Boring("112", 2945, 1140, -14.5, -1.5);
}

// North, and a hundred feet, in the plan's lower left corner and below its upper one.
static void DrawScale(Plan& plan, double top, double bottom)
{
    plan.picture.polygon(plan.Places({{2380, top}, {2370, top - 50}, {2380, top - 39}, {2390, top - 50}}), Ink);
    const Point n = plan.Place(2380, top - 59);
    plan.Words("N", {n.x - 1.9 * plan.letters, n.y}, 5.5, 0, 0.9, Ink);
    plan.picture.stroke(plan.Places({{2370, bottom + 10}, {2370, bottom}, {2470, bottom}, {2470, bottom + 10}}),
                        0.9 * plan.letters, Ink);
    plan.Words("100 FT", plan.Place(2382, bottom + 32), 5, 1.4, 0.8, Ink);
}

int main(int argc, char** argv)
try {
    if (argc != 3 || std::string_view(argv[1]).starts_with("-")) {
        std::cerr << "makemap SITEMAP.BMP PROJECT.BMP\n";
        return 2;
    }
    // 2350 to 3050 east on both; 880 to 1306 north, and 710 to 1480.
    Plan site{Picture(690, 420, 3), 2350, 1306, 230.0 / 700, 1};
    Plan project{Picture(800, 880, 2), 2350, 1480, 400.0 / 700, 1.6};
    for (Plan* plan : {&site, &project}) {
        DrawRiver(*plan);
        DrawWorks(*plan);
        plan->Words("LEVEE", plan->Place(2812 + 14 * plan->letters, plan->north - 22), 5, 1.6, 0.8, Levee);
        DrawBorings(*plan);
    }
    DrawScale(site, 1290, 902);
    DrawScale(project, 1455, 735);
    WritePicture(argv[1], site.picture.asBitmap());
    WritePicture(argv[2], project.picture.asBitmap());
    return 0;
} catch (const std::exception& failure) {
    std::cerr << "makemap: " << failure.what() << '\n';
    return 1;
}
