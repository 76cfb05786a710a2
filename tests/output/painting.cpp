// painting.cpp -- a page of tests, and its picture.
#include "output/painting.h"

#include "canvas/bitmap.h"
#include "canvas/metaugl.h"
#include "painter/headless.h"
#include "session/deviceconfig.h"
#include "session/files.h"

#include <QPainter>

void StartTestPage(int width, int height)
{
    StartWithoutScreen();
    DropChangedPictures(); // of the test before, in the same folder
    std::filesystem::create_directories(Scratch("fills"));
    DeviceConfig.SystemFiles[FillFolder] = Scratch("fills/");
    canvasstart("P");
    ClearPage(width, height);
}

void WriteTestPattern(const char* name, int left, int top)
{
    Bitmap bitmap{150, 150, std::vector<uint32_t>(150 * 150, 0xFFFFFF)};
    for (int y = top; y < top + 30; ++y)
        for (int x = left; x < left + 30; ++x)
            bitmap.At(x, y) = 0;
    // In the place of an older one, as an editor saves: another file, however soon it comes.
    WriteWholeFile(Scratch(Text("fills/") + name), EncodeBitmap(bitmap), Durability::Scratch);
}

QImage Painted(double scale, PatternForm form)
{
    QImage image(int(PageList.ExtentWidth * scale), int(PageList.ExtentHeight * scale), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    PaintPage(painter, scale, form);
    return image;
}

bool Dark(const QImage& image, int x, int y)
{
    return qGray(image.pixel(x, y)) < 128;
}

std::vector<int> Runs(const QImage& image, int x, int y, int dx, int dy)
{
    std::vector<int> runs;
    bool dark = true;
    for (; image.rect().contains(x, y); x += dx, y += dy) {
        if (runs.empty() && !Dark(image, x, y))
            continue;
        if (runs.empty() || Dark(image, x, y) != dark) {
            dark = Dark(image, x, y);
            runs.push_back(0);
        }
        ++runs.back();
    }
    return runs;
}
