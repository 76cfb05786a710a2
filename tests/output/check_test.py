"""check_test.py -- the check lists of stratavue-batch: their lines, their status and what a project leaves out.

    python3 check_test.py PROGRAM WORKING_FOLDER
"""
import os
import shutil
import subprocess
import sys
import tempfile
import unittest

PROGRAM, HOME = os.path.abspath(sys.argv[1]), os.path.abspath(sys.argv[2])
SAMPLES = os.path.join(HOME, "samples")


class Check(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.mkdtemp()
        self.addCleanup(shutil.rmtree, self.folder)

    def path(self, name):
        return os.path.join(self.folder, name)

    def copy(self, *names):
        for name in names:
            shutil.copy(os.path.join(SAMPLES, name), self.folder)

    def contents(self):
        files = {}
        for name in os.listdir(self.folder):
            with open(self.path(name), "rb") as file:
                files[name] = file.read()
        return files

    def check(self, *words, status=0):
        environment = dict(os.environ)
        for name in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"):
            environment.pop(name, None)
        done = subprocess.run([PROGRAM, "check", "--home", HOME, *words], capture_output=True, text=True,
                              env=environment, cwd=self.folder, timeout=60)
        self.assertEqual(done.returncode, status, done.stdout + done.stderr)
        self.assertEqual(done.stderr, "")
        return done.stdout.splitlines()

    def test_a_table_with_nothing_to_flag_prints_nothing(self):
        self.copy("TC-S2.GIS", "TC-102.BOR", "MW-108.BOR", "MW-109.BOR", "MW-110.BOR", "TC-S2.CRO")
        before = self.contents()
        self.assertEqual(self.check("TC-S2.GIS", "TC-S2.CRO"), [])
        self.assertEqual(self.contents(), before, "a check writes nothing")

    def test_each_entry_is_a_line_with_file_weight_and_place_and_an_error_ends_with_1(self):
        self.copy("TC-S2.GIS", "TC-102.BOR", "MW-108.BOR", "MW-109.BOR", "TC-S2.CRO")
        self.assertEqual(self.check("TC-S2.GIS", "TC-S2.CRO", status=1), [
            "TC-S2.GIS: Warning: GIS Information, row 4, Filename: Row 4, MW-110: the boring file MW-110.BOR is not found "
            "in the project folder.",
            "TC-S2.CRO: Error: Boring Information, row 4, Boring File: The boring file MW-110.BOR is not found: no boring "
            "of the section is drawn."])
        self.assertEqual(len(self.check("TC-S2.GIS")), 1)  # a warning alone is no failure

    def test_every_tool_has_its_list(self):
        self.copy("TC-F1.FEN", "MW-108.SOI", "TC-103.BOR")
        lines = self.check("TC-F1.FEN", "MW-108.SOI", status=1)
        self.assertEqual(len([line for line in lines if line.startswith("TC-F1.FEN: Error: Boring Information")]), 6)
        self.assertEqual([line for line in lines if line.startswith("MW-108.SOI")], [
            "MW-108.SOI: Error: Report Information, Boring File: The boring file MW-108.bor is not found: the table is "
            "empty."])
        # The end of the scale lies above the last contact.
        with open(self.path("TC-103.BOR"), "rb") as file:
            rows = file.read().split(b"\r\n")
        rows[63] = b"1"
        with open(self.path("TC-103.BOR"), "wb") as file:
            file.write(b"\r\n".join(rows))
        done = subprocess.run([PROGRAM, "check", "--home", HOME, "TC-103.BOR"], capture_output=True, text=True,
                              cwd=self.folder, timeout=60)
        self.assertIn("The 'Scale: End Depth' value must be greater or equal to the depth of the last contact.",
                      done.stdout)
        self.assertIn("TC-103.BOR: ", done.stdout)

    def test_files_that_cannot_be_read_are_errors_and_the_others_are_checked(self):
        self.copy("TC-S2.GIS")
        for name, data in (("OLD.BOR", b"4.6\r\n"), ("SHORT.CRO", b" 3 \r\n0\r\n"), ("A.TXT", b"")):
            with open(self.path(name), "wb") as file:
                file.write(data)
        lines = self.check("none.FEN", "OLD.BOR", "SHORT.CRO", "A.TXT", "TC-S2.GIS", status=1)
        self.assertEqual(lines[:4], [
            "none.FEN: Error: The file is not found or cannot be read.",
            "OLD.BOR: Error: This boring file has an invalid format.",
            "SHORT.CRO: Error: Error 62 in OpenCrossFile.  Please contact Norvane",
            "A.TXT: Error: A check reads .BOR, .CRO, .FEN, .SOI and .GIS files."])
        self.assertEqual(len(lines), 4 + 4)  # four borings that are not there

    def test_each_file_has_the_project_of_its_own_folder_unless_one_is_named(self):
        self.copy("TC-S2.GIS")
        inner = self.path("site")
        os.mkdir(inner)
        for name in ("TC-S2.GIS", "TC-102.BOR", "MW-108.BOR", "MW-109.BOR", "MW-110.BOR"):
            shutil.copy(os.path.join(SAMPLES, name), inner)
        self.assertEqual(len(self.check("TC-S2.GIS", "site/TC-S2.GIS", "TC-S2.GIS")), 8)
        self.assertEqual(self.check("--project", "site", "TC-S2.GIS", "site/TC-S2.GIS"), [])

    def test_kinds_that_the_project_has_switched_off_are_left_out_and_counted_at_the_end(self):
        self.copy("TC-S2.GIS", "TC-S2.CRO")
        self.assertEqual(len(self.check("TC-S2.GIS", "TC-S2.CRO", status=1)), 8)
        with open(self.path("project.cfg"), "wb") as file:
            file.write(b"# ours\r\ncheck.off = gis-boring, named-boring\r\n")
        self.assertEqual(self.check("TC-S2.GIS", "TC-S2.CRO"),
                         ["8 more are not shown, by the project's choice (--all shows them)."])
        self.assertEqual(len(self.check("--all", "TC-S2.GIS", "TC-S2.CRO", status=1)), 8)

    def test_a_check_without_files_and_other_jobs_options_are_wrong_command_lines(self):
        for words in (["check"], ["check", "--pdf", "a.pdf", "x.BOR"], ["log", "--all", "x.BOR"]):
            done = subprocess.run([PROGRAM, *words], capture_output=True, text=True, cwd=self.folder, timeout=60)
            self.assertEqual(done.returncode, 2)
            self.assertEqual(done.stdout, "")
            self.assertEqual(done.stderr.count("\n"), 1)

    def test_the_samples_have_no_error(self):
        files = sorted(os.path.join(SAMPLES, name) for name in os.listdir(SAMPLES)
                       if name.lower().endswith((".cro", ".fen", ".soi", ".gis")))
        self.assertGreater(len(files), 8)
        kinds = ("draws blank", "The legend has no row for what is drawn")
        for line in self.check(*files):
            self.assertTrue(any(words in line for words in kinds), line)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
