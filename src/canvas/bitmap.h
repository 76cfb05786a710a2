// bitmap.h -- Windows bitmaps: the fill patterns, read, shrunk to the screen form, tinted and written.
//
// Logos and maps are not read here; the page painter loads them.
#pragma once

#include "session/text.h"

#include <vector>

// A picture in memory: its rows from the top, red, green and blue of each pixel in the low three bytes (0xRRGGBB).
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

// Reads a bitmap of 1, 4, 8, 16, 24 or 32 bits, RLE too. A missing file is failure 53, one that is no picture 481.
Bitmap LoadBitmap(const Text& name);
// Reads a bitmap from the bytes of its file; bytes that are no picture are failure 481.
Bitmap DecodeBitmap(std::string_view bytes);
// Returns the bytes of its file, with 24 bits a pixel and 600 pixels to the inch.
std::string EncodeBitmap(const Bitmap& bitmap);
// Returns the bitmap in that size, averaged over areas.
Bitmap Shrunk(const Bitmap& bitmap, int width, int height);
// Returns the bitmap with the colour for white; black stays, and greys are between.
Bitmap Tinted(const Bitmap& bitmap, uint32_t color);
