"""batch_test.py -- stratavue-batch from its command line to its files.

    python3 batch_test.py PROGRAM WORKING_FOLDER
"""
import json
import os
import shutil
import subprocess
import sys
import tempfile
import unittest

PROGRAM, HOME = os.path.abspath(sys.argv[1]), os.path.abspath(sys.argv[2])
SAMPLES = os.path.join(HOME, "samples")


def sample(name):
    return os.path.join(SAMPLES, name)


def listing(path):
    """The pages of a listing, each as its page line and its objects."""
    pages = []
    with open(path, encoding="utf-8") as lines:
        for line in lines:
            item = json.loads(line)
            if "page" in item:
                pages.append((item, []))
            else:
                pages[-1][1].append(item)
    return pages


def texts(page):
    return [item["text"] for item in page[1] if item["kind"] == "text"]


class Batch(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.mkdtemp()
        self.addCleanup(shutil.rmtree, self.folder)
        self.scratch = os.path.join(self.folder, "tmp")
        os.mkdir(self.scratch)

    def path(self, name):
        return os.path.join(self.folder, name)

    def run_batch(self, *words, status=0, cwd=None):
        environment = dict(os.environ, TMPDIR=self.scratch)
        for name in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"):
            environment.pop(name, None)
        done = subprocess.run([PROGRAM, *words], capture_output=True, text=True, env=environment,
                              cwd=cwd or self.folder, timeout=60)
        self.assertEqual(done.returncode, status, done.stderr)
        self.assertEqual(os.listdir(self.scratch), [], "the private folder of the run is gone")
        return done

    def home(self):
        """A working folder of its own, on the stock files."""
        home = self.path("home")
        os.mkdir(home)
        for name in os.listdir(HOME):
            if name.lower().endswith((".hdg", ".txt", ".lay", ".bmp")) and name != "CMakeCache.txt":
                shutil.copy(os.path.join(HOME, name), home)
        os.symlink(os.path.join(HOME, "fills"), os.path.join(home, "fills"))
        return home

    def test_help_is_no_mistake(self):
        done = self.run_batch("--help")
        self.assertIn("stratavue-batch log [--home DIR]", done.stdout)
        self.assertEqual(done.stderr, "")

    def test_305_borings_of_more_than_500_pages_are_one_pdf(self):
        os.mkdir(self.path("many"))
        names = [self.path(f"many/B-{number}.BOR") for number in range(1, 306)]
        for name in names:
            shutil.copy(sample("TC-102.BOR"), name)
        done = self.run_batch("log", "--pdf", "a.pdf", "--list", "a.jsonl", *names)
        self.assertEqual(done.stderr, "")
        with open(self.path("a.jsonl"), encoding="utf-8") as lines:
            heads = [json.loads(line) for line in lines if '"page":' in line]
        self.assertGreater(len(heads), 500)
        self.assertEqual([head["page"] for head in heads], list(range(1, len(heads) + 1)))
        self.assertEqual(heads[-1]["source"], "B-305.BOR")
        info = subprocess.run(["pdfinfo", self.path("a.pdf")], capture_output=True, text=True).stdout
        self.assertIn(f"Pages:           {len(heads)}\n", info)

    def test_an_export_of_too_many_borings_is_told_in_words(self):
        done = self.run_batch("export-irpims", "--out", "out", *[sample("TC-102.BOR")] * 305, status=1)
        self.assertEqual(done.stderr, "305 chosen, 200 possible\n")
        self.assertEqual(os.listdir(self.path("out")), [])

    def test_a_wrong_command_line_ends_with_2_and_one_line(self):
        for words in ([], ["draw"], ["log"], ["log", "--colour", "x.BOR"], ["guide", "--page", "1"]):
            done = self.run_batch(*words, status=2)
            self.assertEqual(done.stdout, "")
            self.assertEqual(done.stderr.count("\n"), 1)

    def test_a_log_goes_to_all_outputs_at_once(self):
        done = self.run_batch("log", "--pdf", "a.pdf", "--png", "png", "--dxf", "dxf", "--list", "a.jsonl", "--date",
                              "1 May 2001", sample("TC-101.BOR"))
        self.assertEqual(done.stderr, "")
        pages = listing(self.path("a.jsonl"))
        self.assertGreater(len(pages), 1)
        self.assertEqual([page[0]["page"] for page in pages], list(range(1, len(pages) + 1)))
        for head, objects in pages:
            self.assertEqual(head["source"], "TC-101.BOR")
            self.assertEqual((head["mode"], head["width"], head["height"]), ("P", 4800, 6300))
            self.assertGreater(len(objects), 100)
        names = [f"TC-101-{number}" for number in range(1, len(pages) + 1)]
        self.assertEqual(sorted(os.listdir(self.path("png"))), [name + ".png" for name in names])
        self.assertEqual(sorted(os.listdir(self.path("dxf"))), [name + ".dxf" for name in names])
        info = subprocess.run(["pdfinfo", self.path("a.pdf")], capture_output=True, text=True).stdout
        self.assertIn(f"Pages:           {len(pages)}\n", info)
        self.assertIn("Title:           TC-101.BOR\n", info)
        words = subprocess.run(["pdftotext", "-layout", self.path("a.pdf"), "-"], capture_output=True, text=True).stdout
        for page in pages:
            for text in texts(page):
                for word in text.split():
                    self.assertIn(word, words)
        self.assertEqual(sorted(os.listdir(self.folder)), ["a.jsonl", "a.pdf", "dxf", "png", "tmp"])

    def test_the_date_and_the_full_path_stand_in_the_date_line(self):
        os.mkdir(self.path("job"))
        shutil.copy(sample("TC-104.BOR"), self.path("job"))
        self.run_batch("log", "--list", "a.jsonl", "--date", "1 May 2001", "job/TC-104.BOR", "--project", SAMPLES)
        line = [text for text in texts(listing(self.path("a.jsonl"))[0]) if "1 May 2001" in text]
        self.assertEqual(len(line), 1)
        self.assertIn(os.path.realpath(self.folder) + "/job/TC-104.BOR", line[0])

    def test_one_page_of_each_boring(self):
        self.run_batch("log", "--page", "2", "--list", "all.jsonl", sample("TC-101.BOR"), sample("TC-104.BOR"))
        pages = listing(self.path("all.jsonl"))
        self.assertEqual([page[0]["source"] for page in pages], ["TC-101.BOR", "TC-104.BOR"])
        self.assertIn("(Page 2 of 3)", " ".join(texts(pages[0])))

    def test_borings_of_several_folders_are_one_run_and_no_picture_replaces_another(self):
        for folder in ("north", "south"):
            os.mkdir(self.path(folder))
            shutil.copy(sample("TC-104.BOR"), self.path(folder))
        self.run_batch("log", "--png", "out", "--dpi", "20", "--list", "a.jsonl", "--project", SAMPLES,
                       "north/TC-104.BOR", "south/TC-104.BOR")
        self.assertEqual([page[0]["page"] for page in listing(self.path("a.jsonl"))], [1, 2])
        self.assertEqual(sorted(os.listdir(self.path("out"))), ["TC-104-1.png", "TC-104-2.png"])

    def test_a_page_drawn_alone_is_named_by_its_number_and_replaces_no_other(self):
        for folder in ("north", "south"):
            os.mkdir(self.path(folder))
        shutil.copy(sample("TC-101.BOR"), self.path("north/TC-101.BOR"))
        shutil.copy(sample("TC-101.BOR"), self.path("south/tc-101.bor"))
        words = ["log", "--png", "out", "--dpi", "20", "--dxf", "out", "--project", SAMPLES]
        self.run_batch(*words, "--page", "2", "north/TC-101.BOR", "south/tc-101.bor", sample("TC-104.BOR"))
        names = ["TC-101-2", "TC-104-1", "tc-101-2-2"]
        self.assertEqual(sorted(os.listdir(self.path("out"))),
                         sorted(name + ending for name in names for ending in (".png", ".dxf")))
        shutil.rmtree(self.path("out"))
        self.run_batch(*words, "--page", "9", "north/TC-101.BOR")
        self.assertEqual(sorted(os.listdir(self.path("out"))), ["TC-101-3.dxf", "TC-101-3.png"])

    def test_files_of_one_name_but_for_case_or_ending_are_all_there(self):
        for name in ("B.BOR", "b.bor", "B.OLD"):
            shutil.copy(sample("TC-104.BOR"), self.path(name))
        self.run_batch("log", "--dxf", "out", "--png", "out", "--dpi", "20", "--project", SAMPLES, "B.BOR", "b.bor",
                       "B.OLD")
        self.assertEqual(sorted(os.listdir(self.path("out"))),
                         ["B-1.dxf", "B-1.png", "B-3.dxf", "B-3.png", "b-2.dxf", "b-2.png"])

    def test_jobs_that_write_to_one_folder_replace_nothing_of_each_other(self):
        files = {"log": "BOR", "intro": "BOR", "section": "CRO", "fence": "FEN", "soil": "SOI"}
        shutil.copy(sample("MW-108.BOR"), self.path("X.BOR"))
        shutil.copy(sample("MW-108.SOI"), self.path("X.SOI"))
        shutil.copy(sample("TC-F1.FEN"), self.path("X.FEN"))
        self.section("X.CRO", ["TC-101.BOR", "TC-102.BOR"])
        for job, ending in files.items():
            self.run_batch(job, "--png", "out", "--dpi", "20", "--dxf", "out", "--project", SAMPLES, "X." + ending)
        self.assertEqual(sorted(os.listdir(self.path("out"))),
                         sorted(name + ending for name in ("X-1", "X-intro-1", "X-section-1", "X-fence-1", "X-soil-1")
                                for ending in (".png", ".dxf")))

    def test_a_file_that_is_not_there_is_told_in_one_line_and_ends_with_1(self):
        done = self.run_batch("log", "--pdf", "a.pdf", "none.BOR", status=1)
        self.assertEqual(done.stderr, "Error 53 in DrawPrintOk.  Please contact Norvane\n")
        self.assertEqual(os.listdir(self.folder), ["tmp"])

    def test_a_pdf_that_cannot_be_written_is_told_once_and_the_listing_is_whole(self):
        done = self.run_batch("log", "--pdf", "none/a.pdf", "--list", "a.jsonl", sample("TC-104.BOR"), status=1)
        self.assertEqual(done.stderr.count("\n"), 1)
        self.assertIn("Error 76 in ", done.stderr)
        self.assertEqual(len(listing(self.path("a.jsonl"))), 1)

    def test_a_listing_that_cannot_be_written_ends_the_run(self):
        done = self.run_batch("log", "--list", "none/a.jsonl", sample("TC-104.BOR"), status=1)
        self.assertEqual(done.stderr, "Run-time error 76\n")

    def test_an_older_pdf_is_replaced_by_name(self):
        with open(self.path("a.pdf"), "w") as old:
            old.write("older")
        self.run_batch("log", "--pdf", "a.pdf", sample("TC-104.BOR"))
        with open(self.path("a.pdf"), "rb") as new:
            self.assertTrue(new.read().startswith(b"%PDF-"))

    def test_nothing_is_written_into_the_working_folder_or_beside_the_files(self):
        home = self.home()
        before = sorted(os.listdir(home)), sorted(os.listdir(SAMPLES))
        done = self.run_batch("log", "--home", home, "--pdf", "a.pdf", sample("TC-104.BOR"))
        self.assertEqual(done.stderr, "")
        self.assertEqual((sorted(os.listdir(home)), sorted(os.listdir(SAMPLES))), before)
        self.assertEqual(sorted(os.listdir(self.folder)), ["a.pdf", "home", "tmp"])

    def test_the_set_up_of_the_working_folder_counts_and_stays(self):
        home = self.home()
        os.rename(os.path.join(home, "us.hdg"), os.path.join(home, "metric.hdg"))
        setup = "\r\n".join(["/nowhere", "0,0", "Arial", "0", "0", "0", "0", "0", "metric.hdg", ""]).encode()
        with open(os.path.join(home, "device.cfg"), "wb") as file:
            file.write(setup)
        self.assertEqual(self.run_batch("log", "--home", home, sample("TC-104.BOR")).stderr, "")
        with open(os.path.join(home, "device.cfg"), "rb") as file:
            self.assertEqual(file.read(), setup)

    def test_the_same_message_for_the_same_file_comes_once(self):
        home = self.home()
        os.remove(os.path.join(home, "us.hdg"))
        done = self.run_batch("log", "--home", home, sample("TC-101.BOR"), status=1)
        self.assertEqual(done.stderr.count("Heading File Not Found: us.hdg\n"), 1)

    def test_a_damaged_boring_ends_the_run_after_its_message(self):
        with open(sample("TC-101.BOR"), "rb") as file:
            lines = file.read().split(b"\r\n")
        with open(self.path("B-1.BOR"), "wb") as file:
            file.write(b"\r\n".join(lines[:70]))
        done = self.run_batch("log", "--pdf", "a.pdf", sample("TC-104.BOR"), "B-1.BOR", status=1)
        self.assertGreaterEqual(done.stderr.count("\n"), 1)
        info = subprocess.run(["pdfinfo", self.path("a.pdf")], capture_output=True, text=True).stdout
        self.assertIn("Pages:           1\n", info)

    def test_several_processes_may_run_in_one_folder_at_once(self):
        words = ["log", "--date", "x", sample("TC-101.BOR"), sample("TC-102.BOR")]
        self.run_batch(*words, "--list", "alone.jsonl", "--pdf", "alone.pdf")
        processes = [subprocess.Popen([PROGRAM, *words, "--list", f"{i}.jsonl", "--pdf", f"{i}.pdf"], cwd=self.folder)
                     for i in range(4)]
        self.assertEqual([process.wait(60) for process in processes], [0] * 4)
        for ending in ("jsonl", "pdf"):
            with open(self.path("alone." + ending), "rb") as file:
                alone = file.read()
            for i in range(4):
                with open(self.path(f"{i}.{ending}"), "rb") as file:
                    self.assertEqual(file.read(), alone)

    def section(self, name, borings, layers="N", page="L"):
        """A cross section of sample borings in the folder of the test, with copies of them beside it."""
        lines = [f" {len(borings)} "]
        for number, boring in enumerate(borings):
            lines += [str(100 * number + 100), boring, "4", "B", "", "0,0", ""]
            if os.path.exists(sample(boring)):
                shutil.copy(sample(boring), self.folder)
        lines += ["", "0", "500", "100", "Feet", "620", "520", "-20", "Feet", "", "Main of " + name, "", "", "A", "A'",
                  layers] + [";"] * 8 + [page, "", "", ""] + [";"] * 22
        with open(self.path(name), "w", encoding="cp1252", newline="") as file:
            file.write("".join(line + "\r\n" for line in lines))
        return name

    def test_cross_sections_go_to_all_outputs_on_a_page_each(self):
        borings = ["TC-101.BOR", "TC-102.BOR", "TC-103.BOR"]
        done = self.run_batch("section", "--pdf", "a.pdf", "--png", "png", "--dpi", "20", "--dxf", "dxf", "--list",
                              "a.jsonl", "--date", "1 May 2001", self.section("A.CRO", borings, "Y"),
                              self.section("B.CRO", borings, "I", "T"))
        self.assertEqual(done.stderr, "")
        pages = listing(self.path("a.jsonl"))
        self.assertEqual([(head["source"], head["mode"]) for head, _ in pages], [("A.CRO", "L"), ("B.CRO", "T")])
        for page, name in zip(pages, ("A", "B")):
            words = texts(page)
            self.assertIn(f" Main of {name}.CRO ", words)
            self.assertIn(" SECTION A-A' ", words)
            self.assertIn("1 May 2001    " + os.path.realpath(self.folder) + f"/{name}.CRO", words)
            for boring in borings:
                self.assertIn(f" {boring[:6]} ", words)
        self.assertEqual(sorted(os.listdir(self.path("png"))), ["A-section-1.png", "B-section-1.png"])
        self.assertEqual(sorted(os.listdir(self.path("dxf"))), ["A-section-1.dxf", "B-section-1.dxf"])
        info = subprocess.run(["pdfinfo", self.path("a.pdf")], capture_output=True, text=True).stdout
        self.assertIn("Pages:           2\n", info)

    def test_a_cross_section_that_is_not_there_is_told_and_the_others_are_drawn(self):
        self.section("A.CRO", ["TC-101.BOR"])
        self.section("C.CRO", ["TC-101.BOR"])
        done = self.run_batch("section", "--list", "a.jsonl", "A.CRO", "B.CRO", "C.CRO", status=1)
        self.assertEqual(done.stderr.count("\n"), 1)
        self.assertTrue(done.stderr.startswith("File Not Found: " + os.path.realpath(self.folder) + "/B.CRO.  "))
        self.assertEqual([page[0]["source"] for page in listing(self.path("a.jsonl"))], ["A.CRO", "C.CRO"])

    def test_a_cross_section_with_a_missing_boring_is_a_page_and_so_is_the_one_behind_it(self):
        self.section("A.CRO", ["TC-101.BOR", "NONE.BOR"])
        self.section("B.CRO", ["TC-101.BOR"])
        done = self.run_batch("section", "--list", "a.jsonl", "A.CRO", "B.CRO", status=1)
        self.assertEqual(done.stderr, "Boring File Not Found: " + os.path.realpath(self.folder) + "/NONE.BOR\n")
        self.assertEqual([page[0]["source"] for page in listing(self.path("a.jsonl"))], ["A.CRO", "B.CRO"])

    def test_a_map_or_a_logo_that_is_no_picture_is_left_out_of_every_output_and_told_by_its_block(self):
        home = self.home()
        with open(os.path.join(home, "logo.txt"), encoding="latin-1", newline="") as file:
            lines = file.read().split("\r\n")
        lines[3:5] = ["1", "TEXT.BMP"]
        with open(os.path.join(home, "logo.txt"), "w", encoding="latin-1", newline="") as file:
            file.write("\r\n".join(lines))
        os.mkdir(self.path("job"))
        for place in (os.path.join(home, "TEXT.BMP"), self.path("job/SITEMAP.BMP"), self.path("job/project.bmp")):
            with open(place, "w") as file:
                file.write("a text under the name of a picture")
        for name in ("TC-101.BOR", "MW-108.BOR", "TC-F1.FEN"):
            shutil.copy(sample(name), self.path("job"))
        words = "Error 481 in %s.  Please contact Norvane"
        for job, file, failing in (("log", "MW-108.BOR", {"drawlogo", "drawmap"}),
                                   ("intro", "MW-108.BOR", {"drawlogo", "drawintromap"}),
                                   ("fence", "TC-F1.FEN", {"drawlogo"})):
            good = "good.jsonl"
            self.run_batch(job, "--project", SAMPLES, "--list", good, sample(file))
            wanted = [[item for item in page[1] if item["kind"] != "text"] for page in listing(self.path(good))]
            for outputs in (["--list", "a.jsonl"], ["--list", "a.jsonl", "--pdf", "a.pdf"],
                            ["--list", "a.jsonl", "--pdf", "a.pdf", "--png", "png", "--dpi", "20", "--dxf", "dxf"]):
                with self.subTest(job=job, outputs=outputs):
                    done = self.run_batch(job, "--home", home, *outputs, "job/" + file, status=1)
                    told = {line for line in done.stderr.splitlines() if line.startswith("Error")}
                    self.assertEqual(told, {words % name for name in failing})
                    pages = listing(self.path("a.jsonl"))
                    self.assertEqual(len(pages), len(wanted))
                    for page, kept in zip(pages, wanted):
                        self.assertEqual([item for item in page[1] if item["kind"] == "picture"], [])
                        if job == "log":
                            self.assertEqual([item for item in page[1] if item["kind"] != "text"],
                                             [item for item in kept if item["kind"] != "picture"])
            info = subprocess.run(["pdfinfo", self.path("a.pdf")], capture_output=True, text=True).stdout
            self.assertIn(f"Pages:           {len(wanted)}\n", info)
            images = subprocess.run(["pdfimages", "-list", self.path("a.pdf")], capture_output=True, text=True).stdout
            self.assertEqual(images.count(" image "), 0, images)
            stem = file[:-4] + ("" if job == "log" else "-" + job)
            for number in range(1, len(wanted) + 1):
                self.assertTrue(os.path.exists(self.path(f"png/{stem}-{number}.png")))
                with open(self.path(f"dxf/{stem}-{number}.dxf"), "rb") as drawing:
                    self.assertFalse(b"\r\n0\r\nIMAGE\r\n5\r\n" in drawing.read())

    def test_intro_pages_are_one_page_a_boring_in_the_arrangement_asked_for(self):
        names = {}
        for arrangement in ("1", "2"):
            done = self.run_batch("intro", "--type", arrangement, "--pdf", "a.pdf", "--list", "a.jsonl",
                                  sample("MW-108.BOR"), sample("TC-101.BOR"))
            self.assertEqual(done.stderr, "")
            pages = listing(self.path("a.jsonl"))
            self.assertEqual([page[0]["source"] for page in pages], ["MW-108.BOR", "TC-101.BOR"])
            info = subprocess.run(["pdfinfo", self.path("a.pdf")], capture_output=True, text=True).stdout
            self.assertIn("Pages:           2\n", info)
            for page in pages:
                self.assertIn(" PROJECT MAP ", texts(page))
                self.assertIn("LEGEND:", texts(page))
            names[arrangement] = [item["x"] for item in pages[0][1] if item.get("text") == "MW-108"]
        self.assertEqual(names, {"1": [420], "2": [2970]})

    def test_fences_are_one_page_each_on_the_sheet_of_their_page_cell(self):
        done = self.run_batch("fence", "--date", "1 May 2001", "--pdf", "f.pdf", "--png", "png", "--dpi", "20", "--dxf",
                              "dxf", "--list", "f.jsonl", sample("TC-F1.FEN"), sample("TC-F2.FEN"), sample("TC-F3.FEN"))
        self.assertEqual(done.stderr, "")
        pages = listing(self.path("f.jsonl"))
        self.assertEqual([page[0]["source"] for page in pages], ["TC-F1.FEN", "TC-F2.FEN", "TC-F3.FEN"])
        for page, number in zip(pages, "123"):
            self.assertIn(f" Fence Diagram {number} ", texts(page))
            self.assertIn("1 May 2001    " + sample(f"TC-F{number}.FEN"), texts(page))
        self.assertEqual(sorted(os.listdir(self.path("png"))), [f"TC-F{n}-fence-1.png" for n in "123"])
        self.assertEqual(sorted(os.listdir(self.path("dxf"))), [f"TC-F{n}-fence-1.dxf" for n in "123"])
        info = subprocess.run(["pdfinfo", "-l", "3", self.path("f.pdf")], capture_output=True, text=True).stdout
        sizes = [line.split(":")[1].split("(")[0].split() for line in info.splitlines()
                 if line.startswith("Page ") and " size:" in line]
        self.assertEqual([(size[0], size[2]) for size in sizes], [("792", "612"), ("1224", "792"), ("1224", "792")])

    def test_a_fence_or_a_boring_of_it_that_is_not_there_is_told_and_the_other_fences_are_drawn(self):
        for name in ("TC-F1.FEN", "TC-101.BOR"):
            shutil.copy(sample(name), self.folder)
        gone, alone = self.path("GONE.FEN"), self.path("TC-F1.FEN")
        done = self.run_batch("fence", "--project", self.folder, "--list", "f.jsonl", gone, alone, sample("TC-F2.FEN"),
                              alone, status=1)
        hint = "Possible solution: Use 'Project: Select Project' to select your project before opening files."
        boring = "Boring File Not Found: " + self.path("TC-102.bor")
        self.assertEqual(done.stderr.splitlines(), [f"File Not Found: {gone}.  {hint}", boring,
                                                    "Boring File Not Found: " + self.path("MW-109.bor")])
        pages = listing(self.path("f.jsonl"))
        self.assertEqual([page[0]["source"] for page in pages], ["TC-F1.FEN", "TC-F2.FEN", "TC-F1.FEN"])
        self.assertIn(" TC-101 ", texts(pages[0]))
        self.assertNotIn(" TC-102 ", texts(pages[0]))

    def test_soil_tables_are_one_page_each(self):
        done = self.run_batch("soil", "--pdf", "a.pdf", "--png", "png", "--dpi", "20", "--list", "a.jsonl", "--date",
                              "1 May 2001", sample("MW-108.SOI"), sample("SB-111.SOI"))
        self.assertEqual(done.stderr, "")
        pages = listing(self.path("a.jsonl"))
        self.assertEqual([page[0]["source"] for page in pages], ["MW-108.SOI", "SB-111.SOI"])
        self.assertEqual([page[0]["mode"] for page in pages], ["L", "L"])
        self.assertIn("Sample Source: MW-108", texts(pages[0]))
        self.assertEqual(texts(pages[1])[-1], "1 May 2001   " + sample("SB-111.SOI"))
        bars = [item for item in pages[1][1] if item["kind"] == "polygon" and "F01" in item["brush"].get("fill", "")]
        self.assertGreater(len(bars), 20)
        self.assertEqual(sorted(os.listdir(self.path("png"))), ["MW-108-soil-1.png", "SB-111-soil-1.png"])
        info = subprocess.run(["pdfinfo", self.path("a.pdf")], capture_output=True, text=True).stdout
        self.assertIn("Pages:           2\n", info)

    def test_a_soil_table_or_its_boring_that_is_not_there_is_told_and_the_others_are_drawn(self):
        with open(sample("MW-108.SOI"), "rb") as file:
            lines = file.read().split(b"\r\n")
        with open(self.path("A.SOI"), "wb") as file:
            file.write(b"\r\n".join([b"NO-1"] + lines[1:]))
        done = self.run_batch("soil", "--list", "a.jsonl", "none.SOI", "A.SOI", sample("SB-111.SOI"), status=1)
        folder = os.path.realpath(self.folder)
        self.assertEqual(done.stderr.splitlines(), [
            f"File Not Found: {folder}/none.SOI.  Possible solution: Use 'Project: Select Project' to select your "
            "project before opening files.",
            f"Boring File Not Found: {folder}/NO-1.bor",
            f"Boring File Not Found: {folder}/SB-111.BOR"])
        self.assertEqual([page[0]["source"] for page in listing(self.path("a.jsonl"))], ["A.SOI", "SB-111.SOI"])

    def gis_lines(self, name):
        with open(self.path(name), "rb") as file:
            data = file.read()
        self.assertTrue(data.endswith(b"\r\n"))
        return data.decode("cp1252").split("\r\n")[:-1]

    def write(self, name, *lines):
        with open(self.path(name), "wb") as file:
            file.write("".join(line + "\r\n" for line in lines).encode("cp1252"))

    def test_borings_are_added_to_a_new_gis_table(self):
        done = self.run_batch("gis-add", "--gis", "SITE", sample("MW-108.BOR"), sample("TC-101.BOR"))
        self.assertEqual(done.stderr, "")
        self.assertEqual(self.gis_lines("SITE.GIS"),
                         [" 0 ", " 2 ", "MW-108", "2930", "1160", "415.8", "MW-108.BOR",
                          "TC-101", "2410", "1180", "412.6", "TC-101.BOR", ""])
        self.assertEqual(sorted(os.listdir(self.folder)), ["SITE.GIS", "tmp"])

    def test_borings_are_added_below_the_rows_of_a_gis_table_by_its_layers(self):
        self.write("site.gis", " 3 ", "GM", "", "AR", "GRAY", "CL", "", " 1 ", "B-1", "1", "2", "3", "b-1", "4", "X",
                   "5-6", "kept")
        done = self.run_batch("gis-add", "--gis", "SITE", sample("MW-108.BOR"), sample("MW-109.BOR"))
        self.assertEqual(done.stderr, "")
        self.assertEqual(self.gis_lines("site.gis"),
                         [" 3 ", "GM", "", "AR", "GRAY", "CL", "", " 3 ", "B-1", "1", "2", "3", "b-1", "4", "X", "5-6",
                          "MW-108", "2930", "1160", "415.8", "MW-108.BOR", "0.7", "4.9", "4.9",
                          "MW-109", "2960", "1205", "416.2", "MW-109.BOR", "0", "5.4", "5.4", "kept"])

    def test_borings_that_cannot_be_read_are_told_and_have_their_row(self):
        self.write("SITE.GIS", " 1 ", "AR", "", " 0 ", "")
        self.write("OLD.BOR", "4.6")
        self.write("OLD2.BOR", "4.6")
        done = self.run_batch("gis-add", "--gis", "SITE.GIS", "OLD.BOR", "OLD2.BOR", "none.BOR", status=1)
        self.assertEqual(done.stderr.splitlines(), ["This boring file has an invalid format."] * 2 +
                         ["Error 53 in OpenBoringGIS.  Please contact Norvane"])
        self.assertEqual(self.gis_lines("SITE.GIS"), [" 1 ", "AR", "", " 3 ", "", "", "", "", "OLD.BOR", "0",
                                                      "", "", "", "", "OLD2.BOR", "0", "", "", "", "", "none.BOR", "0",
                                                      ""])

    def test_a_gis_table_that_cannot_be_read_is_left_as_it_is(self):
        self.write("SITE.GIS", " 1 ", "AR", "", " 5 ", "B-1")
        done = self.run_batch("gis-add", "--gis", "SITE.GIS", sample("MW-108.BOR"), status=1)
        self.assertEqual(done.stderr, "Error 62 in OpenGISFile.  Please contact Norvane\n")
        self.assertEqual(self.gis_lines("SITE.GIS"), [" 1 ", "AR", "", " 5 ", "B-1"])
        done = self.run_batch("gis-export", "--evs", "e.txt", "SITE.GIS", status=1)
        self.assertEqual(done.stderr, "Error 62 in OpenGISFile.  Please contact Norvane\n")
        self.assertFalse(os.path.exists(self.path("e.txt")))

    def test_more_than_200_borings_are_refused_and_nothing_is_written(self):
        row = ["B", "", "", "", ""]
        self.write("SITE.GIS", " 0 ", " 200 ", *row * 200, "")
        done = self.run_batch("gis-add", "--gis", "SITE.GIS", sample("MW-108.BOR"), status=1)
        self.assertEqual(done.stderr, "Run-time error 9\n")
        self.assertEqual(self.gis_lines("SITE.GIS"), [" 0 ", " 200 ", *row * 200, ""])

    def test_a_gis_table_goes_out_to_both_programs(self):
        done = self.run_batch("gis-export", "--arcview", "a.txt", sample("WIREWICK.GIS"))
        self.assertEqual(done.stderr, "Done Creating ArcView Export File.\n")
        lines = self.gis_lines("a.txt")
        self.assertEqual(len(lines), 42)
        self.assertEqual(lines[0], "MW-108,2930,1160,4.9,AR")
        self.assertEqual(lines[8], "MW-109,2960,1205,16.6,CL")
        done = self.run_batch("gis-export", "--evs", "e.txt", sample("WIREWICK.GIS"))
        self.assertEqual(done.stderr, "Done Creating EVS Export File.\n")
        self.assertEqual(self.gis_lines("e.txt")[:4],
                         ["Easting/X   Northing/Y   Surf_Elev.   @@AR   @@CL   @@SP   @@GW   @@GT   @@SH   Boring",
                          "-1", " 7   7", "2930   1160   415.8   4.9   15.2   32.2   35   X-35   X-35   MW-108"])

    def test_a_gis_table_that_is_not_there_and_an_export_that_cannot_be_written_are_told(self):
        done = self.run_batch("gis-export", "--evs", "e.txt", "none", status=1)
        self.assertEqual(done.stderr, f"GIS File Not Found: {os.path.realpath(self.folder)}/none.gis\n")
        done = self.run_batch("gis-export", "--evs", "none/e.txt", sample("WIREWICK.GIS"), status=1)
        self.assertEqual(done.stderr, "Error 76 in ExportGIS2ArcView.  Please contact Norvane\n")
        self.assertEqual(os.listdir(self.folder), ["tmp"])

    def test_the_guide_is_one_page_with_all_patterns(self):
        done = self.run_batch("guide", "--pdf", "g.pdf", "--png", "png", "--list", "g.jsonl")
        self.assertEqual(done.stderr, "")
        pages = listing(self.path("g.jsonl"))
        self.assertEqual(len(pages), 1)
        fills = {item["brush"]["fill"] for item in pages[0][1] if item["kind"] == "polygon"}
        self.assertEqual(len(fills), 65)
        self.assertEqual(os.listdir(self.path("png")), ["fillpatt-1.png"])
        with open(self.path("g.pdf"), "rb") as file:
            # All but the blank one.
            self.assertEqual(file.read().count(b"/PatternType 1"), 65)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
