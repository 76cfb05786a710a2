// roundtrip_test.cpp -- every file of the sample project through the Open and Save of its tool: from the second save on
// it stays as it is, byte for byte. STRATAVUE_PROJECTS=FOLDER does the same with all projects beneath a folder.
#include "windows/driver.h"

#include "boring/boringboxes.h"
#include "editors/borinput.h"
#include "session/files.h"
#include "session/session.h"

#include <QAction>
#include <QMainWindow>
#include <algorithm>
#include <cstdlib>
#include <functional>
#include <map>

namespace fs = std::filesystem;

static Text name; // what is opened
static std::vector<Text> told;

static void Trigger(QWidget* window, const char* entry)
{
    Find<QAction>(window, entry)->trigger();
}

// Opened and saved, twice. Counts the files that the first save has changed.
static void OpenAndSaveTwice(const fs::path& file, const std::function<void()>& open, const std::function<void()>& save,
                             int& changed)
{
    name = file.string();
    CAPTURE(name);
    told.clear();
    const std::string before = ReadWholeFile(name);
    open();
    save();
    const std::string first = ReadWholeFile(name);
    open();
    save();
    const std::string second = ReadWholeFile(name);
    for (const Text& words : told)
        INFO(words);
    CHECK(first.size() > 10);
    CHECK((second == first));
    changed += first != before;
    if (first != before || !told.empty())
        MESSAGE(Text(name + (first != before ? " changed by the first save" : "") +
                     (told.empty() ? Text() : ": " + told.front())));
    if (!std::getenv("STRATAVUE_PROJECTS")) // the samples are good examples
        CHECK(told.empty());
}

static std::vector<fs::path> FilesOf(const fs::path& folder, const Text& ending)
{
    std::vector<fs::path> files;
    for (const auto& file : fs::recursive_directory_iterator(folder))
        if (file.is_regular_file() &&
            QString::fromStdString(file.path().extension()).compare(ending.c_str(), Qt::CaseInsensitive) == 0)
            files.push_back(file.path());
    std::sort(files.begin(), files.end());
    return files;
}

TEST_CASE("every file of a project goes through Open and Save of its tool and is the same from the second save on")
{
    QMainWindow* log = LogWindow();
    fs::path folder = Scratch("samples");
    if (const char* projects = std::getenv("STRATAVUE_PROJECTS")) {
        folder = Scratch("projects");
        fs::copy(projects, folder, fs::copy_options::recursive);
        for (const auto& file : fs::recursive_directory_iterator(folder))
            fs::permissions(file.path(), fs::perms::owner_write, fs::perm_options::add);
    }
    Platform.MsgBox = [](const Text& words, Buttons buttons, Icon) {
        told.push_back(words);
        return int(buttons == OkOnly ? Ok : Yes);
    };
    Platform.ShowChooser = [] { DialogResult = name; };
    int count = 0, changed = 0;
    for (const fs::path& file : FilesOf(folder, ".bor")) {
        OpenAndSaveTwice(
            file, [] { frmBorinput::OpenNamed(name); }, [log] { Trigger(log, "mnuSave"); }, changed);
        ++count;
    }
    struct Tool {
        const char* entry;
        const char* window;
        const char* ending;
    };
    for (const Tool& one : {Tool{"mnuvcross", "frmCross", ".cro"}, Tool{"mnuvfence", "frmFence", ".fen"},
                            Tool{"mnuvsoil", "frmSoil", ".soi"}, Tool{"mnuvGIS", "frmGIS", ".gis"}}) {
        Then(one.window, [&](QWidget* tool) {
            for (const fs::path& file : FilesOf(folder, one.ending)) {
                OpenAndSaveTwice(
                    file, [tool] { Trigger(tool, "mnuOpen"); }, [tool] { Trigger(tool, "mnuSave"); }, changed);
                ++count;
            }
            FileChanged = 0;
            tool->close();
        });
        Trigger(log, one.entry);
        CheckAllDone();
    }
    CHECK(count >= 20);
    MESSAGE(count << " files, " << changed << " of them changed by the first save");
}
