// bitmap.cpp -- Windows bitmaps.
#include "canvas/bitmap.h"

#include "session/failure.h"
#include "session/files.h"

#include <algorithm>
#include <cstdlib>

// No pattern comes near it; a header that claims more is damaged.
static constexpr int64_t mostPixels = 32'000'000;
static constexpr int32_t pixelsPerMeter = 23622; // 600 to the inch

namespace
{
// The bytes of a file from a place on; reading past their end is a picture that cannot be decoded.
class Bytes
{
public:
    explicit Bytes(std::string_view content) : bytes(content)
    {
    }
    uint32_t U8(size_t at) const
    {
        if (at >= bytes.size())
            throw RunTimeError{InvalidPicture};
        return static_cast<unsigned char>(bytes[at]);
    }
    uint32_t U16(size_t at) const
    {
        return U8(at) | U8(at + 1) << 8;
    }
    uint32_t U32(size_t at) const
    {
        return U16(at) | U16(at + 2) << 16;
    }
    size_t Size() const
    {
        return bytes.size();
    }

private:
    std::string_view bytes;
};

enum Compression { Plain = 0, RunLength8 = 1, RunLength4 = 2, Masks = 3 };

struct Header {
    size_t PixelsAt = 0, PaletteAt = 0, PaletteEntry = 4;
    int32_t Width = 0, Height = 0;
    bool TopDown = false;
    uint32_t Bits = 0, Compression = Plain;
    uint32_t RedMask = 0, GreenMask = 0, BlueMask = 0;
    std::vector<uint32_t> Palette;
};
} // namespace

static void ReadMasks(const Bytes& in, Header& header, size_t at)
{
    if (header.Compression == Masks) {
        header.RedMask = in.U32(at);
        header.GreenMask = in.U32(at + 4);
        header.BlueMask = in.U32(at + 8);
    } else if (header.Bits == 16) {
        header.RedMask = 0x7C00;
        header.GreenMask = 0x03E0;
        header.BlueMask = 0x001F;
    }
}

static Header ReadHeader(const Bytes& in)
{
    Header header;
    if (in.U8(0) != 'B' || in.U8(1) != 'M')
        throw RunTimeError{InvalidPicture};
    header.PixelsAt = in.U32(10);
    const uint32_t size = in.U32(14);
    uint32_t colors = 0;
    if (size == 12) {
        header.Width = static_cast<int32_t>(in.U16(18));
        header.Height = static_cast<int32_t>(in.U16(20));
        header.Bits = in.U16(24);
        header.PaletteEntry = 3;
    } else {
        header.Width = static_cast<int32_t>(in.U32(18));
        const int64_t height = static_cast<int32_t>(in.U32(22));
        header.TopDown = height < 0;
        header.Height = static_cast<int32_t>(std::min<int64_t>(std::llabs(height), INT32_MAX));
        header.Bits = in.U16(28);
        header.Compression = in.U32(30);
        colors = in.U32(46);
    }
    header.PaletteAt = 14 + size_t(size);
    if (header.Compression == Masks && size == 40)
        header.PaletteAt += 12;
    const bool bitsKnown = header.Bits == 1 || header.Bits == 4 || header.Bits == 8 || header.Bits == 16 ||
                           header.Bits == 24 || header.Bits == 32;
    const bool packed = (header.Compression == RunLength8 && header.Bits == 8) ||
                        (header.Compression == RunLength4 && header.Bits == 4) ||
                        (header.Compression == Masks && (header.Bits == 16 || header.Bits == 32));
    if (!bitsKnown || (header.Compression != Plain && !packed) || header.Width < 1 || header.Height < 1 ||
        int64_t(header.Width) * header.Height > mostPixels)
        throw RunTimeError{InvalidPicture};
    ReadMasks(in, header, 54);
    if (header.Bits <= 8) {
        const uint32_t most = 1u << header.Bits;
        const uint32_t count = colors == 0 || colors > most ? most : colors;
        header.Palette.assign(most, 0);
        for (uint32_t i = 0; i < count; ++i) {
            const size_t at = header.PaletteAt + i * header.PaletteEntry;
            // A palette may be shorter than its count where the pixels begin.
            if (at + header.PaletteEntry > header.PixelsAt && i > 0)
                break;
            header.Palette[i] = in.U8(at) | in.U8(at + 1) << 8 | in.U8(at + 2) << 16;
        }
    }
    return header;
}

// The part of a pixel under a mask, as 0 to 255.
static uint32_t UnderMask(uint32_t pixel, uint32_t mask)
{
    if (mask == 0)
        return 0;
    uint32_t value = pixel & mask;
    while ((mask & 1) == 0) {
        mask >>= 1;
        value >>= 1;
    }
    return static_cast<uint32_t>((uint64_t(value) * 255 + mask / 2) / mask);
}

static uint32_t PixelAt(const Bytes& in, const Header& header, size_t row, uint32_t x)
{
    switch (header.Bits) {
    case 24:
        return in.U8(row + x * 3) | in.U8(row + x * 3 + 1) << 8 | in.U8(row + x * 3 + 2) << 16;
    case 16:
    case 32: {
        const uint32_t pixel = header.Bits == 16 ? in.U16(row + x * 2) : in.U32(row + size_t(x) * 4);
        if (header.RedMask == 0 && header.GreenMask == 0 && header.BlueMask == 0)
            return pixel & 0xFFFFFF;
        return UnderMask(pixel, header.RedMask) << 16 | UnderMask(pixel, header.GreenMask) << 8 |
               UnderMask(pixel, header.BlueMask);
    }
    default: {
        const uint32_t perByte = 8 / header.Bits;
        const uint32_t shift = (perByte - 1 - x % perByte) * header.Bits;
        return header.Palette[in.U8(row + x / perByte) >> shift & ((1u << header.Bits) - 1)];
    }
    }
}

// Runs of equal pixels, and runs written out; pixels that no run reaches keep the first colour.
static void ReadRuns(const Bytes& in, const Header& header, Bitmap& bitmap)
{
    const bool nibbles = header.Compression == RunLength4;
    std::fill(bitmap.Pixels.begin(), bitmap.Pixels.end(), header.Palette[0]);
    int64_t x = 0, y = 0; // y counts from the bottom
    const auto put = [&](uint32_t index) {
        if (x < bitmap.Width && y < bitmap.Height)
            bitmap.At(int(x), int(header.TopDown ? y : bitmap.Height - 1 - y)) = header.Palette[index];
        ++x;
    };
    for (size_t at = header.PixelsAt; y < bitmap.Height && at + 1 < in.Size();) {
        const uint32_t count = in.U8(at), value = in.U8(at + 1);
        at += 2;
        if (count > 0) {
            for (uint32_t i = 0; i < count; ++i)
                put(nibbles ? (i % 2 == 0 ? value >> 4 : value & 15) : value);
        } else if (value == 0) {
            x = 0;
            ++y;
        } else if (value == 1) {
            return;
        } else if (value == 2) {
            x += in.U8(at);
            y += in.U8(at + 1);
            at += 2;
        } else {
            for (uint32_t i = 0; i < value; ++i)
                put(nibbles ? (i % 2 == 0 ? in.U8(at + i / 2) >> 4 : in.U8(at + i / 2) & 15) : in.U8(at + i));
            const size_t length = nibbles ? (value + 1) / 2 : value;
            at += length + length % 2;
        }
    }
}

Bitmap LoadBitmap(const Text& name)
{
    return DecodeBitmap(ReadWholeFile(name));
}

Bitmap DecodeBitmap(std::string_view bytes)
{
    const Bytes in(bytes);
    const Header header = ReadHeader(in);
    Bitmap bitmap;
    bitmap.Width = header.Width;
    bitmap.Height = header.Height;
    const size_t rowBytes = (size_t(header.Width) * header.Bits + 31) / 32 * 4;
    const bool runs = header.Compression == RunLength8 || header.Compression == RunLength4;
    // Before any room is taken: a plain picture has all its rows, the last one perhaps without its padding.
    if (!runs)
        in.U8(header.PixelsAt + rowBytes * size_t(header.Height - 1) + (size_t(header.Width) * header.Bits + 7) / 8 -
              1);
    bitmap.Pixels.resize(size_t(header.Width) * size_t(header.Height));
    if (runs) {
        ReadRuns(in, header, bitmap);
        return bitmap;
    }
    for (int y = 0; y < bitmap.Height; ++y) {
        const size_t row = header.PixelsAt + rowBytes * size_t(header.TopDown ? y : bitmap.Height - 1 - y);
        for (int x = 0; x < bitmap.Width; ++x)
            bitmap.At(x, y) = PixelAt(in, header, row, uint32_t(x));
    }
    return bitmap;
}

std::string EncodeBitmap(const Bitmap& bitmap)
{
    const size_t rowBytes = (size_t(bitmap.Width) * 3 + 3) / 4 * 4;
    const size_t size = rowBytes * size_t(bitmap.Height);
    std::string bytes;
    bytes.reserve(54 + size);
    const auto put = [&bytes](uint32_t value, int count) {
        for (int i = 0; i < count; ++i)
            bytes += static_cast<char>(value >> 8 * i & 255);
    };
    bytes = "BM";
    put(static_cast<uint32_t>(54 + size), 4);
    put(0, 4);
    put(54, 4);
    put(40, 4);
    put(static_cast<uint32_t>(bitmap.Width), 4);
    put(static_cast<uint32_t>(bitmap.Height), 4);
    put(1, 2);
    put(24, 2);
    put(Plain, 4);
    put(static_cast<uint32_t>(size), 4);
    put(pixelsPerMeter, 4);
    put(pixelsPerMeter, 4);
    put(0, 4);
    put(0, 4);
    for (int y = bitmap.Height - 1; y >= 0; --y) {
        for (int x = 0; x < bitmap.Width; ++x)
            put(bitmap.At(x, y), 3);
        bytes.resize((bytes.size() - 54 + 3) / 4 * 4 + 54);
    }
    return bytes;
}

// Each new pixel is the mean of the old ones that lie under it, those at its edges by their share. Shares are
// counted in 1/width and 1/height of an old pixel, so that all sums are whole numbers.
Bitmap Shrunk(const Bitmap& bitmap, int width, int height)
{
    Bitmap small;
    small.Width = width;
    small.Height = height;
    small.Pixels.resize(size_t(width) * size_t(height));
    const int64_t area = int64_t(bitmap.Width) * bitmap.Height;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const int64_t left = int64_t(x) * bitmap.Width, right = left + bitmap.Width;
            const int64_t top = int64_t(y) * bitmap.Height, bottom = top + bitmap.Height;
            int64_t sums[3] = {0, 0, 0};
            for (int64_t oldY = top / height; oldY * height < bottom; ++oldY)
                for (int64_t oldX = left / width; oldX * width < right; ++oldX) {
                    const int64_t wide = std::min((oldX + 1) * width, right) - std::max(oldX * width, left);
                    const int64_t tall = std::min((oldY + 1) * height, bottom) - std::max(oldY * height, top);
                    const uint32_t pixel = bitmap.At(int(oldX), int(oldY));
                    for (int part = 0; part < 3; ++part)
                        sums[part] += int64_t(pixel >> 8 * part & 255) * wide * tall;
                }
            uint32_t pixel = 0;
            for (int part = 0; part < 3; ++part)
                pixel |= static_cast<uint32_t>((sums[part] + area / 2) / area) << 8 * part;
            small.At(x, y) = pixel;
        }
    return small;
}

// A pixel is taken as a stroke laid over white: the share of white in it, its weakest part, takes the colour.
// So greys come out between, and a stroke of a colour of its own keeps it.
Bitmap Tinted(const Bitmap& bitmap, uint32_t color)
{
    Bitmap tinted = bitmap;
    for (uint32_t& pixel : tinted.Pixels) {
        const uint32_t white = std::min({pixel & 255, pixel >> 8 & 255, pixel >> 16 & 255});
        uint32_t mixed = 0;
        for (int part = 0; part < 3; ++part) {
            const uint32_t old = pixel >> 8 * part & 255, ground = color >> 8 * part & 255;
            mixed |= (old - white + (white * ground + 127) / 255) << 8 * part;
        }
        pixel = mixed;
    }
    return tinted;
}
