// bitmap_test.cpp -- Windows bitmaps: every form read, one written, shrinking and tinting.
#include "canvas/bitmap.h"

#include "testing.h"

#include "session/failure.h"

static std::string Little(uint32_t value, int count)
{
    std::string bytes;
    for (int i = 0; i < count; ++i)
        bytes += static_cast<char>(value >> 8 * i & 255);
    return bytes;
}

// A file of the given form; palette and pixels as bytes.
static std::string File(int width, int height, int bits, int compression, const std::string& palette,
                        const std::string& pixels)
{
    const uint32_t at = 54 + uint32_t(palette.size());
    return "BM" + Little(at + uint32_t(pixels.size()), 4) + Little(0, 4) + Little(at, 4) + Little(40, 4) +
           Little(uint32_t(width), 4) + Little(uint32_t(height), 4) + Little(1, 2) + Little(uint32_t(bits), 2) +
           Little(uint32_t(compression), 4) + std::string(20, '\0') + palette + pixels;
}

static const std::string blackWhite("\0\0\0\0\xFF\xFF\xFF\0", 8);

static int DecodeFailure(const std::string& bytes)
{
    try {
        DecodeBitmap(bytes);
        return 0;
    } catch (const RunTimeError& error) {
        return error.Number;
    }
}

TEST_CASE("a bitmap of one bit is read from its lowest row, each row filled up to four bytes")
{
    const Bitmap bitmap =
        DecodeBitmap(File(3, 2, 1, 0, blackWhite, std::string("\xA0\0\0\0", 4) + std::string("\x40\0\0\0", 4)));
    CHECK(bitmap.Width == 3);
    CHECK(bitmap.Height == 2);
    CHECK(bitmap.Pixels == std::vector<uint32_t>{0, 0xFFFFFF, 0, 0xFFFFFF, 0, 0xFFFFFF});
}

TEST_CASE("a bitmap with a negative height is read from its top row")
{
    const Bitmap bitmap =
        DecodeBitmap(File(3, -2, 1, 0, blackWhite, std::string("\xA0\0\0\0", 4) + std::string("\x40\0\0\0", 4)));
    CHECK(bitmap.Height == 2);
    CHECK(bitmap.Pixels == std::vector<uint32_t>{0xFFFFFF, 0, 0xFFFFFF, 0, 0xFFFFFF, 0});
}

TEST_CASE("bitmaps of 4, 8, 16, 24 and 32 bits are read")
{
    std::string palette16(64, '\0');
    palette16.replace(4, 3, "\xFF\xFF\xFF");
    palette16.replace(8, 3, "\x10\x20\x30");
    CHECK(DecodeBitmap(File(3, 1, 4, 0, palette16, std::string("\x12\x00\0\0", 4))).Pixels ==
          std::vector<uint32_t>{0xFFFFFF, 0x302010, 0});
    std::string palette256(1024, '\0');
    palette256.replace(4, 3, "\x10\x20\x30");
    CHECK(DecodeBitmap(File(2, 1, 8, 0, palette256, std::string("\x01\x00\0\0", 4))).Pixels ==
          std::vector<uint32_t>{0x302010, 0});
    CHECK(DecodeBitmap(File(2, 1, 16, 0, "", Little(0x7C00, 2) + Little(0x001F, 2))).Pixels ==
          std::vector<uint32_t>{0xFF0000, 0x0000FF});
    CHECK(DecodeBitmap(File(1, 1, 24, 0, "", std::string("\x30\x20\x10\0", 4))).At(0, 0) == 0x102030);
    CHECK(DecodeBitmap(File(1, 1, 32, 0, "", std::string("\x30\x20\x10\x7F", 4))).At(0, 0) == 0x102030);
}

TEST_CASE("a bitmap with colour masks is read through them")
{
    const std::string masks = Little(0xF800, 4) + Little(0x07E0, 4) + Little(0x001F, 4);
    CHECK(DecodeBitmap(File(2, 1, 16, 3, masks, Little(0xF800, 2) + Little(0x07E0, 2))).Pixels ==
          std::vector<uint32_t>{0xFF0000, 0x00FF00});
}

TEST_CASE("a bitmap packed in runs is read, with runs, written pixels, steps and ends of rows")
{
    std::string palette(1024, '\0');
    palette.replace(4, 3, "\xFF\xFF\xFF");
    // Lower row: two white, then three written pixels; then a step of 1 in the next row and one white.
    const std::string runs("\x02\x01\x00\x03\x00\x01\x00\x00\x00\x00\x00\x02\x01\x00\x01\x01\x00\x01", 18);
    CHECK(DecodeBitmap(File(5, 2, 8, 1, palette, runs)).Pixels ==
          std::vector<uint32_t>{0, 0xFFFFFF, 0, 0, 0, 0xFFFFFF, 0xFFFFFF, 0, 0xFFFFFF, 0});
    const std::string palette16(palette, 0, 64);
    const std::string nibbles("\x03\x10\x00\x01", 4);
    CHECK(DecodeBitmap(File(3, 1, 4, 2, palette16, nibbles)).Pixels == std::vector<uint32_t>{0xFFFFFF, 0, 0xFFFFFF});
}

TEST_CASE("a run past the edge of the picture is cut off")
{
    std::string palette(1024, '\0');
    palette.replace(4, 3, "\xFF\xFF\xFF");
    const std::string runs("\xFF\x01\x00\x02\xFF\xFF\xFF\x01", 8);
    CHECK(DecodeBitmap(File(2, 2, 8, 1, palette, runs)).Pixels == std::vector<uint32_t>{0, 0, 0xFFFFFF, 0xFFFFFF});
}

TEST_CASE("what is no bitmap, or is cut anywhere, or claims a size beyond its bytes, is no picture")
{
    const std::string good = File(3, 2, 24, 0, "", std::string(24, '\x55'));
    CHECK(DecodeFailure(good) == 0);
    for (size_t length = 0; length < good.size() - 3; ++length)
        CHECK(DecodeFailure(good.substr(0, length)) == InvalidPicture);
    CHECK(DecodeFailure("GIF89a" + std::string(100, 'x')) == InvalidPicture);
    CHECK(DecodeFailure(File(0, 2, 24, 0, "", std::string(24, 'x'))) == InvalidPicture);
    CHECK(DecodeFailure(File(2000000000, 2000000000, 24, 0, "", std::string(24, 'x'))) == InvalidPicture);
    CHECK(DecodeFailure(File(5000, 5000, 24, 0, "", std::string(24, 'x'))) == InvalidPicture);
    CHECK(DecodeFailure(File(3, INT32_MIN, 24, 0, "", std::string(24, 'x'))) == InvalidPicture);
    CHECK(DecodeFailure(File(3, 2, 7, 0, "", std::string(24, 'x'))) == InvalidPicture);
    CHECK(DecodeFailure(File(3, 2, 24, 1, "", std::string(24, 'x'))) == InvalidPicture);
}

TEST_CASE("a bitmap missing on disk is failure 53")
{
    CHECK(FailureOf([] { LoadBitmap(Scratch("none.bmp")); }) == FileNotFound);
}

TEST_CASE("a bitmap that was written reads back the same, at 600 pixels to the inch")
{
    Bitmap bitmap;
    bitmap.Width = 3;
    bitmap.Height = 2;
    bitmap.Pixels = {0x000000, 0xFFFFFF, 0x123456, 0xFF0000, 0x00FF00, 0x0000FF};
    const std::string bytes = EncodeBitmap(bitmap);
    CHECK(bytes.size() == 54 + 2 * 12);
    CHECK(bytes.substr(2, 4) == Little(78, 4));
    CHECK(bytes.substr(38, 4) == Little(23622, 4));
    CHECK(DecodeBitmap(bytes).Pixels == bitmap.Pixels);
}

TEST_CASE("shrinking takes the mean of the area under each pixel")
{
    Bitmap bitmap;
    bitmap.Width = 4;
    bitmap.Height = 2;
    bitmap.Pixels = {0, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0, 0, 0xFFFFFF, 0xFFFFFF};
    const Bitmap half = Shrunk(bitmap, 2, 1);
    CHECK(half.Pixels == std::vector<uint32_t>{0x404040, 0xFFFFFF});
    // Three over two: the middle pixel counts by half on both sides.
    bitmap.Width = 3;
    bitmap.Height = 1;
    bitmap.Pixels = {0, 0xFFFFFF, 0xFFFFFF};
    CHECK(Shrunk(bitmap, 2, 1).Pixels == std::vector<uint32_t>{0x555555, 0xFFFFFF});
}

TEST_CASE("a pattern smaller than the screen form is drawn out")
{
    Bitmap bitmap;
    bitmap.Width = bitmap.Height = 1;
    bitmap.Pixels = {0x808080};
    CHECK(Shrunk(bitmap, 25, 25).Pixels == std::vector<uint32_t>(625, 0x808080));
}

TEST_CASE("a tint colours the ground, leaves strokes as they are, and grey comes out between")
{
    Bitmap bitmap;
    bitmap.Width = 4;
    bitmap.Height = 1;
    bitmap.Pixels = {0xFFFFFF, 0x000000, 0x808080, 0xFF0000};
    CHECK(Tinted(bitmap, 0xFF8000).Pixels == std::vector<uint32_t>{0xFF8000, 0x000000, 0x804000, 0xFF0000});
}

TEST_CASE("a damaged bitmap is read or refused, whatever bytes are wrong")
{
    Bitmap bitmap;
    bitmap.Width = bitmap.Height = 9;
    bitmap.Pixels.assign(81, 0x123456);
    const std::string runs("\x05\x01\x00\x03\x00\x01\x00\x00\x00\x00\x00\x02\x01\x00\x01\x01\x00\x01", 18);
    const std::string whole[] = {EncodeBitmap(bitmap), File(9, 9, 8, 1, std::string(1024, '\x7F'), runs),
                                 File(9, 9, 4, 2, std::string(64, '\x7F'), runs),
                                 File(9, 9, 1, 0, blackWhite, std::string(36, '\x55')),
                                 File(9, 9, 16, 3, std::string(12, '\x0F'), std::string(180, '\x55'))};
    uint32_t random = 1;
    const auto next = [&random](size_t bound) {
        random = random * 1664525 + 1013904223;
        return size_t(random >> 8) % bound;
    };
    int read = 0, refused = 0;
    for (int round = 0; round < 2000; ++round) {
        std::string bytes = whole[next(5)];
        for (size_t changes = 1 + next(4); changes > 0; --changes)
            bytes[next(round % 2 ? 54 : bytes.size())] = static_cast<char>(next(256));
        if (next(4) == 0)
            bytes.resize(next(bytes.size()));
        const int failure = DecodeFailure(bytes);
        CHECK((failure == 0 || failure == InvalidPicture));
        ++(failure == 0 ? read : refused);
    }
    CHECK(read > 100);
    CHECK(refused > 100);
}
