// strokes.h -- the small drawing kit of makelogo and makemap: shapes in their own units, drawn with soft edges,
// written as a 24 bit Windows bitmap. Standard library only, so that the build can run it anywhere.
//
// Positions are in drawing units, x to the right and y down from the top left corner.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <numbers>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

struct Point {
    double x = 0, y = 0;
};

struct Color {
    int red = 0, green = 0, blue = 0;
};

inline double ToSegment(Point p, Point a, Point b)
{
    const double dx = b.x - a.x, dy = b.y - a.y;
    const double square = dx * dx + dy * dy;
    const double along = square > 0 ? std::clamp(((p.x - a.x) * dx + (p.y - a.y) * dy) / square, 0.0, 1.0) : 0;
    return std::hypot(p.x - a.x - along * dx, p.y - a.y - along * dy);
}

// A white picture. Each shape is laid over what is there; a pixel that a shape covers in part takes that part of
// its colour (4 x 4 samples).
class Picture
{
public:
    Picture(int width, int height, double pixelsPerUnit) : wide(width), high(height), scale(pixelsPerUnit)
    {
        pixels.assign(std::size_t(width) * std::size_t(height), Color{255, 255, 255});
    }

    // Lays on the shape told by inside(point); it must lie within the box.
    template <class Inside>
    void lay(Point topLeft, Point bottomRight, Color color, Inside inside)
    {
        const int left = std::clamp(int(topLeft.x * scale) - 1, 0, wide);
        const int right = std::clamp(int(bottomRight.x * scale) + 2, 0, wide);
        const int top = std::clamp(int(topLeft.y * scale) - 1, 0, high);
        const int bottom = std::clamp(int(bottomRight.y * scale) + 2, 0, high);
        for (int y = top; y < bottom; ++y)
            for (int x = left; x < right; ++x) {
                int covered = 0;
                for (int i = 0; i < 16; ++i)
                    covered += inside(Point{(x + (i % 4 + 0.5) / 4) / scale, (y + (i / 4 + 0.5) / 4) / scale}) ? 1 : 0;
                mix(pixels[std::size_t(y) * std::size_t(wide) + std::size_t(x)], color, covered);
            }
    }

    // A line through the points, round at its ends and bends.
    void stroke(const std::vector<Point>& points, double weight, Color color)
    {
        if (points.empty())
            return;
        const auto [topLeft, bottomRight] = box(points, weight / 2);
        lay(topLeft, bottomRight, color, [&](Point p) {
            for (std::size_t i = 0; i + 1 < points.size(); ++i)
                if (ToSegment(p, points[i], points[i + 1]) < weight / 2)
                    return true;
            return points.size() == 1 && ToSegment(p, points[0], points[0]) < weight / 2;
        });
    }

    void polygon(const std::vector<Point>& points, Color color)
    {
        const auto [topLeft, bottomRight] = box(points, 0);
        lay(topLeft, bottomRight, color, [&](Point p) {
            bool in = false;
            for (std::size_t i = 0, j = points.size() - 1; i < points.size(); j = i++)
                if ((points[i].y > p.y) != (points[j].y > p.y) &&
                    p.x < (points[j].x - points[i].x) * (p.y - points[i].y) / (points[j].y - points[i].y) + points[i].x)
                    in = !in;
            return in;
        });
    }

    void disc(Point centre, double radius, Color color)
    {
        stroke({centre}, 2 * radius, color);
    }

    // The bytes of a Windows bitmap: 24 bits, rows from the bottom up, each filled up to four bytes.
    std::string asBitmap() const
    {
        const int row = (wide * 3 + 3) / 4 * 4;
        std::string bytes = "BM";
        const auto number = [&bytes](std::uint32_t value, int size) {
            for (int i = 0; i < size; ++i)
                bytes += char(value >> (8 * i) & 255);
        };
        number(std::uint32_t(54 + row * high), 4);
        number(0, 4);
        number(54, 4);
        number(40, 4);
        number(std::uint32_t(wide), 4);
        number(std::uint32_t(high), 4);
        number(1, 2);
        number(24, 2);
        number(0, 4);
        number(std::uint32_t(row * high), 4);
        number(11811, 4); // 300 pixels to the inch, told in pixels to the metre
        number(11811, 4);
        number(0, 4);
        number(0, 4);
        for (int y = high - 1; y >= 0; --y) {
            for (int x = 0; x < wide; ++x) {
                const Color& color = pixels[std::size_t(y) * std::size_t(wide) + std::size_t(x)];
                number(std::uint32_t(color.blue | color.green << 8 | color.red << 16), 3);
            }
            bytes.append(std::size_t(row - wide * 3), '\0');
        }
        return bytes;
    }

private:
    static void mix(Color& under, Color over, int covered)
    {
        const auto part = [covered](int a, int b) { return (a * (16 - covered) + b * covered + 8) / 16; };
        under = {part(under.red, over.red), part(under.green, over.green), part(under.blue, over.blue)};
    }

    static std::pair<Point, Point> box(const std::vector<Point>& points, double around)
    {
        Point topLeft = points[0], bottomRight = points[0];
        for (const Point& p : points) {
            topLeft = {std::min(topLeft.x, p.x), std::min(topLeft.y, p.y)};
            bottomRight = {std::max(bottomRight.x, p.x), std::max(bottomRight.y, p.y)};
        }
        return {{topLeft.x - around, topLeft.y - around}, {bottomRight.x + around, bottomRight.y + around}};
    }

    int wide, high;
    double scale;
    std::vector<Color> pixels;
};

// The points of an arc, angles in degrees, 0 to the right and 90 up.
inline void Arc(std::vector<Point>& line, Point centre, double radiusX, double radiusY, double from, double to)
{
    constexpr int Steps = 24;
    for (int i = 0; i <= Steps; ++i) {
        const double angle = (from + (to - from) * i / Steps) * std::numbers::pi / 180;
        line.push_back({centre.x + radiusX * std::cos(angle), centre.y - radiusY * std::sin(angle)});
    }
}

// The strokes of one letter in a box 1 high, baseline at y 1, and its width without spacing. Capitals, digits,
// "-", "." and the blank; any other character is a blank.
struct Glyph {
    double width = 0.4;
    std::vector<std::vector<Point>> lines;
};

inline Glyph LetterStrokes(char letter)
{
    std::vector<Point> curve;
    switch (letter) {
    case 'A':
        return {0.8, {{{0, 1}, {0.4, 0}, {0.8, 1}}, {{0.14, 0.66}, {0.66, 0.66}}}};
    case 'B':
        curve = {{0, 0}, {0.38, 0}};
        Arc(curve, {0.38, 0.24}, 0.22, 0.24, 90, -90);
        Arc(curve, {0.38, 0.74}, 0.27, 0.26, 90, -90);
        curve.insert(curve.end(), {{0, 1}, {0, 0}});
        return {0.65, {curve, {{0, 0.48}, {0.38, 0.48}}}};
    case 'C':
        Arc(curve, {0.4, 0.5}, 0.4, 0.5, 45, 315);
        return {0.7, {curve}};
    case 'D':
        curve = {{0, 1}, {0, 0}, {0.25, 0}};
        Arc(curve, {0.25, 0.5}, 0.43, 0.5, 90, -90);
        curve.push_back({0, 1});
        return {0.68, {curve}};
    case 'E':
        return {0.55, {{{0.55, 0}, {0, 0}, {0, 1}, {0.55, 1}}, {{0, 0.48}, {0.46, 0.48}}}};
    case 'F':
        return {0.52, {{{0.52, 0}, {0, 0}, {0, 1}}, {{0, 0.48}, {0.44, 0.48}}}};
    case 'G':
        Arc(curve, {0.4, 0.5}, 0.4, 0.5, 45, 340);
        curve.insert(curve.end(), {{0.78, 0.55}, {0.45, 0.55}});
        return {0.78, {curve}};
    case 'H':
        return {0.66, {{{0, 0}, {0, 1}}, {{0.66, 0}, {0.66, 1}}, {{0, 0.48}, {0.66, 0.48}}}};
    case 'I':
        return {0, {{{0, 0}, {0, 1}}}};
    case 'K':
        return {0.62, {{{0, 0}, {0, 1}}, {{0.6, 0}, {0, 0.58}}, {{0.2, 0.4}, {0.62, 1}}}};
    case 'L':
        return {0.5, {{{0, 0}, {0, 1}, {0.5, 1}}}};
    case 'M':
        return {0.8, {{{0, 1}, {0, 0}, {0.4, 0.7}, {0.8, 0}, {0.8, 1}}}};
    case 'N':
        return {0.66, {{{0, 1}, {0, 0}, {0.66, 1}, {0.66, 0}}}};
    case 'O':
    case '0':
        Arc(curve, {letter == 'O' ? 0.42 : 0.28, 0.5}, letter == 'O' ? 0.42 : 0.28, 0.5, 0, 360);
        return {letter == 'O' ? 0.84 : 0.56, {curve}};
    case 'P':
    case 'R':
        curve = {{0, 1}, {0, 0}, {0.36, 0}};
        Arc(curve, {0.36, 0.27}, 0.25, 0.27, 90, -90);
        curve.push_back({0, 0.54});
        if (letter == 'P')
            return {0.61, {curve}};
        return {0.64, {curve, {{0.34, 0.54}, {0.64, 1}}}};
    case 'S':
        Arc(curve, {0.31, 0.25}, 0.28, 0.25, 35, 180);
        Arc(curve, {0.31, 0.25}, 0.28, 0.235, 180, 245);
        Arc(curve, {0.31, 0.735}, 0.31, 0.265, 65, -90);
        Arc(curve, {0.31, 0.735}, 0.31, 0.265, -90, -150);
        return {0.62, {curve}};
    case 'T':
        return {0.68, {{{0, 0}, {0.68, 0}}, {{0.34, 0}, {0.34, 1}}}};
    case 'U':
        curve = {{0, 0}, {0, 0.68}};
        Arc(curve, {0.32, 0.68}, 0.32, 0.32, 180, 360);
        curve.push_back({0.64, 0});
        return {0.64, {curve}};
    case 'V':
        return {0.76, {{{0, 0}, {0.38, 1}, {0.76, 0}}}};
    case 'W':
        return {1.06, {{{0, 0}, {0.27, 1}, {0.53, 0.1}, {0.79, 1}, {1.06, 0}}}};
    case 'Y':
        return {0.7, {{{0, 0}, {0.35, 0.5}, {0.35, 1}}, {{0.7, 0}, {0.35, 0.5}}}};
    case '1':
        return {0.3, {{{0, 0.22}, {0.26, 0}, {0.26, 1}}}};
    case '2':
        Arc(curve, {0.28, 0.28}, 0.28, 0.28, 170, -30);
        curve.insert(curve.end(), {{0, 1}, {0.58, 1}});
        return {0.58, {curve}};
    case '3':
        Arc(curve, {0.26, 0.24}, 0.25, 0.24, 150, -90);
        Arc(curve, {0.26, 0.74}, 0.29, 0.26, 90, -150);
        return {0.56, {curve}};
    case '4':
        return {0.6, {{{0.6, 0.72}, {0, 0.72}, {0.44, 0}, {0.44, 1}}}};
    case '5':
        curve = {{0.52, 0}, {0.08, 0}, {0.04, 0.46}};
        Arc(curve, {0.25, 0.68}, 0.3, 0.31, 130, -150);
        return {0.56, {curve}};
    case '6':
        curve = {{0.46, 0}};
        Arc(curve, {0.28, 0.69}, 0.28, 0.31, 160, 520);
        return {0.56, {curve}};
    case '7':
        return {0.54, {{{0, 0}, {0.54, 0}, {0.18, 1}}}};
    case '8':
        Arc(curve, {0.28, 0.24}, 0.23, 0.24, -90, 270);
        Arc(curve, {0.28, 0.74}, 0.28, 0.26, 90, 450);
        return {0.56, {curve}};
    case '9':
        curve = {{0.1, 1}};
        Arc(curve, {0.28, 0.31}, 0.28, 0.31, -20, 340);
        return {0.56, {curve}};
    case '-':
        return {0.36, {{{0, 0.54}, {0.36, 0.54}}}};
    case '.':
        return {0, {{{0, 1}}}};
    default:
        return {};
    }
}

// Writes a text with its top left corner at the pen; gap is the room between letters. Returns the text's width;
// with a weight of 0 it only measures.
inline double Write(Picture& picture, std::string_view text, Point pen, double height, double gap, double weight,
                    Color color)
{
    double x = pen.x;
    for (const char letter : text) {
        const Glyph glyph = LetterStrokes(letter);
        for (const std::vector<Point>& line : glyph.lines) {
            std::vector<Point> placed;
            for (const Point& p : line)
                placed.push_back({x + p.x * height, pen.y + p.y * height});
            if (weight > 0)
                picture.stroke(placed, weight, color);
        }
        x += glyph.width * height + gap;
    }
    return x - gap - pen.x;
}

// Writes the bytes to a file by a temporary one beside it. Throws when that fails.
inline void WritePicture(const std::filesystem::path& name, const std::string& bytes)
{
    std::filesystem::path part = name;
    part += ".part";
    std::ofstream out(part, std::ios::binary);
    out.write(bytes.data(), std::streamsize(bytes.size()));
    out.close();
    if (!out)
        throw std::runtime_error("cannot write " + name.string());
    std::filesystem::rename(part, name);
}
