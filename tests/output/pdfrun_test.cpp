// pdfrun_test.cpp -- the PDF of a run: its pages, words, patterns and entries, and what becomes of an older file.
#include "painter/pdfrun.h"

#include "output/painting.h"

#include "canvas/metaugl.h"
#include "session/failure.h"
#include "session/files.h"

#include <csignal>
#include <cstdio>
#include <sys/resource.h>

static void WritePdf(const Text& name, int pages, const Text& title, void (*draw)(int page))
{
    PdfRun run(Scratch(name), title);
    for (int page = 1; page <= pages; ++page) {
        StartTestPage(4800, 6300);
        draw(page);
        run.AddPage();
    }
    run.Close();
}

static void AddWords(const Text& words, int x, int y, double angle = 0)
{
    PageObject& object = AddObject(ObjectKind::Text, x, y, x, y);
    object.String = words;
    object.TextAngle = angle;
}

static void AddPatterned(const Text& name, int x, int y)
{
    PageObject& object = AddObject(ObjectKind::Polygon, x, y, x, y);
    object.Vertices = {{x, y}, {x + 400, y}, {x + 400, y + 300}, {x, y + 300}};
    object.Brush = BrushStyle::Picture;
    object.BrushPicture = Scratch("fills/" + name + "_sc.BMP");
    object.Fill = Scratch("fills/" + name + ".bmp");
}

static int Count(const std::string& bytes, std::string_view words)
{
    int count = 0;
    for (size_t at = bytes.find(words); at != std::string::npos; at = bytes.find(words, at + 1))
        ++count;
    return count;
}

// What a command of the PDF tools prints.
static std::string Output(const std::string& command)
{
    std::string text;
    FILE* pipe = ::popen((command + " 2>&1").c_str(), "r");
    REQUIRE(pipe);
    char buffer[4096];
    while (const size_t count = std::fread(buffer, 1, sizeof buffer, pipe))
        text.append(buffer, count);
    CHECK(::pclose(pipe) == 0);
    return text;
}

TEST_CASE("a PDF holds searchable words in an embedded font, at every angle")
{
    WritePdf("a.pdf", 1, "", [](int) {
        AddWords("Silty SAND, medium dense", 600, 600);
        AddWords("Formation", 900, 3000, 90);
        AddWords("25\xB0 dip", 600, 1200);
        AddObject(ObjectKind::Text, 600, 1800, 600, 1800).Bold = true;
        PageList.Objects.back().String = "Boring B-1";
    });
    const std::string words = Output("pdftotext -layout " + Scratch("a.pdf") + " -");
    CHECK(words.find("Silty SAND, medium dense") != std::string::npos);
    CHECK(words.find("Formation") != std::string::npos);
    CHECK(words.find("25\xC2\xB0 dip") != std::string::npos);
    CHECK(words.find("Boring B-1") != std::string::npos);
    const std::string fonts = Output("pdffonts " + Scratch("a.pdf"));
    CHECK(fonts.find("LiberationSans ") != std::string::npos);
    CHECK(fonts.find("LiberationSans-Bold") != std::string::npos);
    CHECK(Count(fonts, "yes no  yes") == 2); // embedded, with its letters
}

TEST_CASE("the paper of each page is its sheet with a quarter inch on each side")
{
    PdfRun run(Scratch("a.pdf"), "");
    StartTestPage(4800, 6300);
    run.AddPage();
    StartTestPage(6300, 4800);
    run.AddPage();
    StartTestPage(9900, 6300);
    run.AddPage();
    run.Close();
    const std::string info = Output("pdfinfo -f 1 -l 3 " + Scratch("a.pdf"));
    CHECK(info.find("Page    1 size:  612 x 792 pts (letter)") != std::string::npos);
    CHECK(info.find("Page    2 size:  792 x 612 pts (letter)") != std::string::npos);
    CHECK(info.find("Page    3 size:  1224 x 792 pts") != std::string::npos);
}

TEST_CASE("a pattern is one tile picture for the whole run, and one tiling pattern for all its areas on a page")
{
    StartTestPage(4800, 6300);
    WriteTestPattern("F41.BMP", 60, 60);
    WriteTestPattern("F42.BMP", 30, 30);
    WritePdf("a.pdf", 3, "", [](int) {
        for (int i = 0; i < 20; ++i) {
            AddPatterned("F41", 100, 100 + i * 300);
            AddPatterned("F42", 600, 100 + i * 300);
            AddWords("between", 2000, 100 + i * 300);
        }
    });
    const std::string bytes = ReadScratch("a.pdf");
    CHECK(Count(bytes, "/PatternType 1") == 6);
    CHECK(Count(bytes, "/PaintType 1") == 6);
    // The picture and its mask, at 600 dots to the inch, once each.
    CHECK(Count(bytes, "/Subtype /Image") == 4);
    CHECK(Count(bytes, "/Width 150") == 4);
    CHECK(Count(bytes, "/DCTDecode") == 0);
}

TEST_CASE("a pattern on paper has one dot to a device unit and stands on the page's grid")
{
    StartTestPage(4800, 6300);
    WriteTestPattern("F43.BMP", 60, 90);
    WritePdf("a.pdf", 1, "", [](int) { AddPatterned("F43", 330, 310); });
    Output("pdftoppm -r 600 -x 0 -y 0 -W 1200 -H 1200 -png -singlefile " + Scratch("a.pdf") + " " + Scratch("a"));
    const QImage image(QString::fromStdString(Scratch("a.png")));
    REQUIRE(image.width() == 1200);
    int wrong = 0;
    for (int y = 320; y < 600; ++y)
        for (int x = 340; x < 720; ++x) {
            const int u = x % 150, v = y % 150;
            if (std::abs(u - 60) > 1 && std::abs(u - 90) > 1 && std::abs(v - 90) > 1 && std::abs(v - 120) > 1)
                wrong += Dark(image, x + 150, y + 150) != (u >= 60 && u < 90 && v >= 90 && v < 120);
        }
    CHECK(wrong == 0);
}

TEST_CASE("the tip of an acute wedge has no thorn on paper")
{
    WritePdf("a.pdf", 1, "", [](int) {
        PageObject& object = AddObject(ObjectKind::Polygon, 0, 0, 0, 0);
        object.Vertices = {{200, 200}, {600, 160}, {600, 240}};
        object.Brush = BrushStyle::Hollow;
        object.PenWidth = 20;
    });
    Output("pdftoppm -r 600 -x 0 -y 0 -W 900 -H 600 -png -singlefile " + Scratch("a.pdf") + " " + Scratch("a"));
    const QImage image(QString::fromStdString(Scratch("a.png")));
    REQUIRE(image.width() == 900);
    CHECK(Dark(image, 150 + 192, 150 + 200));
    CHECK(!Dark(image, 150 + 187, 150 + 200));
}

TEST_CASE("a PDF tells its title and that this program wrote it")
{
    WritePdf("a.pdf", 1, "B-1 (M\xFCller) \\ 2.BOR", [](int) { AddWords("x", 600, 600); });
    const std::string info = Output("pdfinfo -enc UTF-8 " + Scratch("a.pdf"));
    CHECK(info.find("Title:           B-1 (M\xC3\xBCller) \\ 2.BOR\n") != std::string::npos);
    CHECK(info.find("Creator:         Stratavue\n") != std::string::npos);
    CHECK(info.find("Producer:        Stratavue 1.0\n") != std::string::npos);
    CHECK(WrittenByUs(Scratch("a.pdf")));
    WriteScratch("b.pdf", "%PDF-1.4\n1 0 obj <</Producer (Another 1.0)>> endobj\n");
    CHECK(!WrittenByUs(Scratch("b.pdf")));
    WriteScratch("c.pdf", "/Producer (Stratavue 1.0)");
    CHECK(!WrittenByUs(Scratch("c.pdf")));
    CHECK(!WrittenByUs(Scratch("none.pdf")));
}

TEST_CASE("the same pages give the same bytes")
{
    const auto draw = [](int page) { AddWords("Page " + PlainNumber(page), 600, 600); };
    WritePdf("a.pdf", 2, "B-1", draw);
    WritePdf("b.pdf", 2, "B-1", draw);
    CHECK(ReadScratch("a.pdf") == ReadScratch("b.pdf"));
}

TEST_CASE("a run that is not closed leaves the older file and nothing else")
{
    WriteScratch("a.pdf", "older");
    {
        PdfRun run(Scratch("a.pdf"), "");
        StartTestPage(4800, 6300);
        run.AddPage();
        CHECK(ReadScratch("a.pdf") == "older");
    }
    CHECK(ReadScratch("a.pdf") == "older");
    int files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(ScratchFolder()))
        files += entry.is_regular_file();
    CHECK(files == 1);
}

TEST_CASE("a PDF in a folder that is not there fails with 76")
{
    CHECK(FailureOf([] { PdfRun run(Scratch("none/a.pdf"), ""); }) == PathNotFound);
}

TEST_CASE("a print run goes beside its source; only the same command on the same file takes its place again")
{
    const Text print = "Print run of B-1.BOR (log)", exported = "Export to PDF of B-1.BOR (log)";
    const auto beside = [](const Text& mark) { return PdfBeside(Scratch("B-1.BOR"), mark); };
    const auto write = [](const Text& name, const Text& mark) {
        PdfRun run(Scratch(name), "B-1.BOR", mark);
        StartTestPage(4800, 6300);
        run.AddPage();
        run.Close();
    };
    CHECK(beside(print) == Scratch("B-1.pdf"));
    CHECK(PdfBeside(Scratch("v1.2/B-1"), print) == Scratch("v1.2/B-1.pdf"));
    write("B-1.pdf", exported);
    CHECK(beside(exported) == Scratch("B-1.pdf"));
    CHECK(beside(print) == Scratch("B-1-2.pdf"));
    write("B-1-2.pdf", print);
    CHECK(beside(print) == Scratch("B-1-2.pdf"));
    CHECK(beside("Print run of B-1.BOR and 3 more (log)") == Scratch("B-1-3.pdf"));
    CHECK(beside("Print run of B-1.BOR (intro)") == Scratch("B-1-3.pdf"));
    WriteScratch("B-1.pdf", "a scan of the signed log");
    CHECK(beside(exported) == Scratch("B-1-3.pdf"));
    // One without a mark, as the batch program and older versions write them, is nobody's to replace.
    write("B-1-3.pdf", "");
    CHECK(beside(exported) == Scratch("B-1-4.pdf"));
}

TEST_CASE("a mark is read back whatever letters the file's name has, and is the PDF's subject")
{
    for (const Text& name : {Text("B-1 (M\xFCller) \\ 2.BOR"), Text(120, '('), Text(180, '\xE4')}) {
        const Text mark = "Print run of " + name + " (log)";
        {
            PdfRun run(Scratch("a.pdf"), name, mark);
            StartTestPage(4800, 6300);
            run.AddPage();
            run.Close();
        }
        CHECK(PdfBeside(Scratch("a.BOR"), mark) == Scratch("a.pdf"));
        CHECK(PdfBeside(Scratch("a.BOR"), mark + " ") == Scratch("a-2.pdf"));
        const std::string info = Output("pdfinfo -enc UTF-8 " + Scratch("a.pdf"));
        CHECK(info.find("Subject:         " + ToUtf8(mark) + "\n") != std::string::npos);
    }
}

TEST_CASE("a PDF that the disk has no room for is failure 61, and leaves nothing beside it")
{
    // A limit on the size of files stands for the full disk: the write comes back short in the same way.
    rlimit limit;
    REQUIRE(::getrlimit(RLIMIT_FSIZE, &limit) == 0);
    const rlim_t before = limit.rlim_cur;
    ::signal(SIGXFSZ, SIG_IGN);
    limit.rlim_cur = 1000;
    REQUIRE(::setrlimit(RLIMIT_FSIZE, &limit) == 0);
    const int failure = FailureOf([] { WritePdf("full.pdf", 40, "Full", [](int) { AddWords("words", 300, 300); }); });
    limit.rlim_cur = before;
    REQUIRE(::setrlimit(RLIMIT_FSIZE, &limit) == 0);
    CHECK(failure != 0);
    CHECK(FilesIn(ScratchFolder(), "").empty());
}
