// bitmap.h -- Windows bitmaps: the fill patterns, read, shrunk to the screen form, tinted and written.
//
// Logos and maps are not read here; the page painter loads them.
#pragma once

#include "session/text.h"

#include <vector>

// Rows from the top, red, green, blue of each pixel in the low three bytes (0xRRGGBB).
struct Bitmap {
    int Width = 0, Height = 0;
    std::vector<uint32_t> Pixels;
    uint32_t& At(int x, int y)
    {
        return Pixels[static_cast<size_t>(y) * static_cast<size_t>(Width) + static_cast<size_t>(x)];
    }
    uint32_t At(int x, int y) const
    {
        return Pixels[static_cast<size_t>(y) * static_cast<size_t>(Width) + static_cast<size_t>(x)];
    }
};

Bitmap LoadBitmap(const Text& name); // 1, 4, 8, 16, 24 or 32 bits, RLE too; failure 53 missing, 481 not a picture
Bitmap DecodeBitmap(std::string_view bytes);                // failure 481
std::string EncodeBitmap(const Bitmap& bitmap);             // 24 bits, 600 pixels to the inch
Bitmap Shrunk(const Bitmap& bitmap, int width, int height); // averaged over areas
Bitmap Tinted(const Bitmap& bitmap, uint32_t color);        // white becomes the colour, black stays, greys between
