"""jobs_test.py -- a run of many files makes the same of them in one process and in several.

    python3 jobs_test.py PROGRAM WORKING_FOLDER
"""
import os
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import unittest

PROGRAM, HOME = os.path.abspath(sys.argv[1]), os.path.abspath(sys.argv[2])
SAMPLES = os.path.join(HOME, "samples")
BORINGS = [name for name in sorted(os.listdir(SAMPLES)) if name.endswith(".BOR")]
CONVERTED = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "convert", "data")


def environment(scratch):
    words = dict(os.environ, TMPDIR=scratch)
    for name in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"):
        words.pop(name, None)
    return words


def contents(folder):
    """Every file below the folder, by its path in it."""
    files = {}
    for where, _, names in os.walk(folder):
        for name in names:
            path = os.path.join(where, name)
            with open(path, "rb") as file:
                files[os.path.relpath(path, folder)] = file.read()
    return files


def parent_of(process):
    try:
        with open(f"/proc/{process}/stat", encoding="latin-1") as stat:
            return int(stat.read().rsplit(")", 1)[1].split()[1])
    except (OSError, ValueError):
        return 0


def workers_of(process):
    return [int(name) for name in os.listdir("/proc") if name.isdigit() and parent_of(name) == process]


class Jobs(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.mkdtemp()
        self.addCleanup(shutil.rmtree, self.folder)
        self.scratch = os.path.join(self.folder, "tmp")
        self.project = os.path.join(self.folder, "project")
        os.mkdir(self.scratch)
        shutil.copytree(SAMPLES, self.project)

    def path(self, name):
        return os.path.join(self.project, name)

    def write(self, name, lines):
        with open(self.path(name), "w", encoding="cp1252", newline="") as file:
            file.write("".join(line + "\r\n" for line in lines))

    def changed(self, source, name, **lines):
        """A copy of a sample with other lines, by their numbers from 1: _12="text"."""
        with open(self.path(source), encoding="cp1252", newline="") as file:
            text = file.read().split("\r\n")
        for number, line in lines.items():
            text[int(number[1:]) - 1] = line
        with open(self.path(name), "w", encoding="cp1252", newline="") as file:
            file.write("\r\n".join(text))
        return name

    def run_batch(self, job, jobs, *words):
        """What a run of a project of its own tells, ends with and leaves, and how many workers it had."""
        project = self.project + "-run"
        shutil.copytree(self.project, project)
        try:
            done = subprocess.run([PROGRAM, job, "--home", HOME, "--jobs", str(jobs), *words], capture_output=True,
                                  env=environment(self.scratch), cwd=project, timeout=120)
            self.assertEqual(os.listdir(self.scratch), [], "the private folder of the run is gone")
            return done.returncode, done.stdout, done.stderr, contents(project)
        finally:
            shutil.rmtree(project)

    def same(self, job, *words, status=0):
        """The same run in one, two and four processes; what it left."""
        one = self.run_batch(job, 1, *words)
        self.assertEqual(one[0], status, one[2])
        for jobs in (2, 4):
            several = self.run_batch(job, jobs, *words)
            for part in range(3):
                self.assertEqual(several[part], one[part], f"{jobs} jobs")
            self.assertEqual(sorted(several[3]), sorted(one[3]), f"{jobs} jobs")
            for name, written in several[3].items():
                self.assertEqual(written, one[3][name], f"{name} of {jobs} jobs")
        return one

    def draw(self, *words, status=0):
        return self.same("log", "--date", "x", "--png", "png", "--dpi", "30", "--dxf", "dxf", "--list", "a.jsonl",
                         *words, status=status)

    def test_pictures_drawings_and_listings_are_the_same(self):
        files = self.draw(*BORINGS)[3]
        self.assertGreater(len([name for name in files if name.startswith("png/")]), 20)

    def test_the_run_is_done_by_as_many_processes_as_are_asked_for(self):
        run = subprocess.Popen([PROGRAM, "log", "--home", HOME, "--jobs", "3", "--png", "png", "--dpi", "100", *BORINGS],
                               env=environment(self.scratch), cwd=self.project, stderr=subprocess.DEVNULL)
        most = 0
        while run.poll() is None:
            most = max(most, len(workers_of(run.pid)))
            time.sleep(0.01)
        self.assertEqual(most, 3)
        self.assertEqual(run.returncode, 0)

    def test_a_page_of_each_boring_and_files_of_one_name_are_named_as_in_one_process(self):
        for folder in ("north", "south", "east"):
            os.mkdir(self.path(folder))
            for name in ("TC-101.BOR", "TC-104.BOR"):
                shutil.copy(self.path(name), self.path(folder))
        names = [f"{folder}/{name}" for folder in ("north", "south", "east") for name in ("TC-101.BOR", "TC-104.BOR")]
        self.draw("--project", ".", *names)
        files = self.draw("--project", ".", "--page", "2", *names, *names)[3]
        self.assertIn("png/TC-101-2-6.png", files)

    def test_intro_pages_are_the_same(self):
        self.same("intro", "--type", "2", "--date", "x", "--png", "png", "--dpi", "30", "--list", "a.jsonl", *BORINGS)

    def test_messages_come_in_the_order_of_the_files_and_once_for_each(self):
        for number in range(12):
            self.changed("TC-104.BOR", f"B-{number}.BOR", **({"_3": "none"} if number % 3 else {}))
            self.missing_layout(f"L-{number}.BOR") if number % 4 == 1 else shutil.copy(
                self.path("TC-101.BOR"), self.path(f"L-{number}.BOR"))
        names = sorted(name for name in os.listdir(self.project) if name[:2] in ("B-", "L-"))
        told = self.draw(*names, status=1)[2].decode()
        self.assertEqual(told.count("Layout File Not Found"), 3)
        self.draw(*names[::-1], *names, status=1)

    def missing_layout(self, name, source="TC-101.BOR"):
        with open(self.path(source), encoding="cp1252", newline="") as file:
            lines = file.read().split("\r\n")
        parts = int(lines[70])
        lines[70 + 2 * parts + 1] = "nowhere.lay"
        with open(self.path(name), "w", encoding="cp1252", newline="") as file:
            file.write("\r\n".join(lines))

    def test_title_blocks_that_stay_in_force_reach_over_the_shares(self):
        for first in (1, 4, 6):
            for number in range(8):
                source = "TC-102.BOR" if number < first else "TC-101.BOR"
                if number == first:
                    shutil.copy(self.path("TC-102.BOR"), self.path(f"B-{number}.BOR"))
                else:
                    self.missing_layout(f"B-{number}.BOR", source)
            self.draw(*[f"B-{number}.BOR" for number in range(8)], status=1)

    def test_a_boring_that_ends_the_run_ends_it_in_the_shares_behind_it_too(self):
        with open(self.path("TC-101.BOR"), "rb") as file:
            lines = file.read().split(b"\r\n")
        with open(self.path("BAD.BOR"), "wb") as file:
            file.write(b"\r\n".join(lines[:70]))
        os.mkdir(self.path("png"))
        with open(self.path("png/TC-106-1.png"), "wb") as file:
            file.write(b"older")
        for at in (1, 3, 6):
            files = self.draw(*BORINGS[:at], "BAD.BOR", *BORINGS[at:], status=1)[3]
            self.assertEqual(files["png/TC-106-1.png"], b"older")

    def test_a_file_that_is_not_there_ends_the_run_before_its_first_page(self):
        told = self.draw(*BORINGS, "none.BOR", status=1)
        self.assertEqual(told[2], b"Error 53 in DrawPrintOk.  Please contact Norvane\n")

    def test_earlier_forms_are_passed_over(self):
        for number in range(6):
            self.write(f"OLD-{number}.BOR", ["4.6"] + ["0"] * 80)
        for at in (0, 2, 5):
            self.draw(*BORINGS[:at], *[f"OLD-{number}.BOR" for number in range(6)], *BORINGS[at:], status=1)

    def test_a_run_of_more_files_than_fit_at_once_is_the_same(self):
        names = [f"B-{number}.BOR" for number in range(1, 221)]
        for name in names:
            shutil.copy(self.path("TC-104.BOR"), self.path(name))
        self.same("log", "--date", "x", "--list", "a.jsonl", *names)
        self.missing_layout("B-3.BOR", "TC-104.BOR")
        self.missing_layout("B-205.BOR", "TC-104.BOR")
        self.same("log", "--date", "x", "--list", "a.jsonl", *names, status=1)

    def test_an_output_that_cannot_be_written_is_told_as_by_one_process(self):
        os.makedirs(self.path("png/TC-104-1.png"))
        self.draw(*BORINGS, status=1)

    def test_check_lists_are_the_same(self):
        tools = [name for name in sorted(os.listdir(SAMPLES)) if name[-4:] in (".CRO", ".FEN", ".SOI", ".GIS")]
        self.missing_layout("NO-LAYOUT.BOR")
        self.write("BAD.BOR", ["4.6"])
        self.write("BAD.CRO", [""])
        wrong = ["BAD.BOR", "none.BOR", "README.md", "BAD.CRO", "NO-LAYOUT.BOR"]
        for order in (BORINGS + tools, tools + BORINGS):
            self.same("check", *order)
        for order in (wrong + BORINGS + tools, BORINGS + wrong + tools, wrong * 3):
            self.same("check", *order, status=1)
        with open(self.path("project.cfg"), "w", encoding="cp1252") as file:
            file.write("check.off = contacts\n")
        self.same("check", *BORINGS)

    def foreign(self, form, count):
        """Files of that form under new names, with a remark of their own."""
        folder = os.path.join(CONVERTED, form)
        sources = [name + "." + form.upper() for name in ("ordinary", "early" if form == "prt" else "thirds")]
        names = [f"F-{number}.{form.upper()}" for number in range(count)]
        for number, name in enumerate(names):
            with open(os.path.join(folder, sources[number % len(sources)]), "rb") as file:
                lines = file.read().split(b"\r\n")
            lines[2] += b" %d" % number
            with open(self.path(name), "wb") as file:
                file.write(b"\r\n".join(lines))
        return names

    def test_conversions_are_the_same(self):
        prints = self.foreign("prt", 9)
        files = self.same("convert-prt", *prints)[3]
        self.assertTrue(all(name.replace("PRT", "bor") in files for name in prints))
        logs = self.foreign("log", 9)
        self.same("convert-log", "--template", "TC-101.BOR", *logs)
        files = self.same("convert-log", *logs)[3]
        self.assertTrue(all(name.replace("LOG", "bor") in files for name in logs))

    def test_conversions_that_fail_are_told_and_end_the_run_as_in_one_process(self):
        logs = self.foreign("log", 9)
        self.write("F-4.LOG", ["nothing of the kind"])
        told = self.same("convert-log", *logs, status=1)[2].decode().splitlines()
        self.assertEqual(len(told), 2)
        for at in (1, 4, 8):
            self.same("convert-log", *logs[:at], "none.LOG", *logs[at:], status=1)
        self.write("CUT.LOG", ["[GENERAL]"])
        files = self.same("convert-log", *logs[:2], "CUT.LOG", *logs[2:], status=1)[3]
        self.assertNotIn("F-8.bor", files)
        os.mkdir(self.path("F-6.bor"))
        self.same("convert-log", *logs, status=1)

    def test_conversions_to_one_boring_and_of_what_another_has_written_are_the_same(self):
        names = self.foreign("prt", 6)
        shutil.copy(self.path("F-3.PRT"), self.path("f-1.2.PRT"))
        self.same("convert-prt", *names, "f-1.2.PRT", "F-0.PRT")
        shutil.copy(self.path("F-3.PRT"), self.path("F-5.bor"))
        self.same("convert-prt", *names, "F-5.bor", status=1)

    def test_a_conversion_of_more_files_than_fit_at_once_is_the_same(self):
        names = self.foreign("prt", 210)
        self.same("convert-prt", *names)
        self.write("F-207.PRT", ["nothing of the kind"])
        self.same("convert-prt", *names, status=1)

    def start(self, *words):
        for number in range(16):
            shutil.copy(self.path("TC-101.BOR"), self.path(f"M-{number:02}.BOR"))
        run = subprocess.Popen([PROGRAM, "log", "--home", HOME, "--jobs", "2", "--png", "png", "--dpi", "150", *words,
                                *[f"M-{number:02}.BOR" for number in range(16)]], env=environment(self.scratch),
                               cwd=self.project, stderr=subprocess.PIPE, text=True, start_new_session=True)
        self.addCleanup(run.stderr.close)
        end = time.monotonic() + 60
        while len(workers_of(run.pid)) < 2 and time.monotonic() < end:
            time.sleep(0.01)
        workers = sorted(workers_of(run.pid))
        self.assertEqual(len(workers), 2)
        return run, workers

    def test_a_process_that_dies_is_told_with_its_files_and_the_others_are_done(self):
        run, workers = self.start("--list", "a.jsonl")
        time.sleep(0.5)
        os.kill(workers[0], signal.SIGKILL)
        told = run.communicate(timeout=120)[1].splitlines()
        self.assertEqual(run.returncode, 1)
        self.assertGreater(len(told), 0)
        for line in told:
            self.assertRegex(line, r"^The process of this file has died, and the file is not done: .*/M-0[0-7].BOR$")
        self.assertIn("/M-07.BOR", told[-1])
        pictures = os.listdir(self.path("png"))
        for number in range(8, 16):
            self.assertIn(f"M-{number:02}-1.png", pictures)
        self.assertFalse([name for name in pictures if not name.endswith(".png")])
        self.assertEqual(os.listdir(self.scratch), [])
        with open(self.path("a.jsonl"), encoding="utf-8") as lines:
            numbers = [int(line[9:line.index(",")]) for line in lines if line.startswith('{"page": ')]
        self.assertEqual(numbers, list(range(1, len(numbers) + 1)))

    def test_an_interrupt_ends_all_processes_and_leaves_nothing_half_written(self):
        for number in (signal.SIGINT, signal.SIGTERM):
            run, workers = self.start("--list", "a.jsonl")
            time.sleep(0.3)
            os.kill(run.pid, number)
            self.assertEqual(run.wait(30), -number)
            for worker in workers:
                self.assertFalse(os.path.exists(f"/proc/{worker}"))
            self.assertEqual(os.listdir(self.scratch), [])
            self.assertEqual(os.listdir(self.path("png")), [])
            self.assertFalse([name for name in os.listdir(self.project) if "jsonl" in name])

    def test_processes_end_when_the_one_that_has_started_them_is_killed(self):
        run, workers = self.start()
        time.sleep(0.3)
        os.kill(run.pid, signal.SIGKILL)
        run.wait(30)
        end = time.monotonic() + 30
        while any(os.path.exists(f"/proc/{worker}") and parent_of(worker) != 0 for worker in workers) \
                and time.monotonic() < end:
            time.sleep(0.05)
        for worker in workers:
            self.assertFalse(os.path.exists(f"/proc/{worker}/exe"))
        self.assertEqual(os.listdir(self.path("png")), [])

    def test_jobs_take_a_number(self):
        for word in ("0", "x", "-1", "1000"):
            done = subprocess.run([PROGRAM, "log", "--jobs", word, "x.BOR"], capture_output=True, text=True, timeout=60)
            self.assertEqual(done.returncode, 2)
            self.assertIn("--jobs takes a number from 1 to 256, not " + word, done.stderr)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
