"""batchconvert_test.py -- the conversions of stratavue-batch, from the command line to the borings and their pages.

    python3 batchconvert_test.py PROGRAM WORKING_FOLDER SOURCE_DIR
"""
import filecmp
import os
import shutil
import subprocess
import sys
import tempfile
import unittest

PROGRAM, HOME = os.path.abspath(sys.argv[1]), os.path.abspath(sys.argv[2])
DATA = os.path.join(os.path.abspath(sys.argv[3]), "tests", "convert", "data")


class Convert(unittest.TestCase):
    def setUp(self):
        # No dot in the path: a converted boring is named by what stands before the first one.
        self.folder = tempfile.mkdtemp(prefix="stratavue-convert-")
        self.addCleanup(shutil.rmtree, self.folder)
        for form in ("txt", "general", "prt", "log", "irpims"):
            shutil.copytree(os.path.join(DATA, form), self.path(form))
            shutil.rmtree(self.path(form + "/kept"))

    def path(self, name):
        return os.path.join(self.folder, name)

    def run_batch(self, *words, status=0, cwd=None):
        done = subprocess.run([PROGRAM, *words], capture_output=True, text=True, cwd=cwd or self.folder, timeout=120)
        self.assertEqual(done.returncode, status, done.stderr)
        self.assertEqual(done.stdout, "")
        return done.stderr

    def check_kept(self, form, names):
        """The converted borings are the kept ones, and are drawn without a message."""
        for name in names:
            made = self.path(form + "/" + name)
            self.assertTrue(filecmp.cmp(made, os.path.join(DATA, form, "kept", name), shallow=False), name)
            self.assertEqual(self.run_batch("log", "--list", "page.jsonl", made), "")
            with open(self.path("page.jsonl"), encoding="utf-8") as page:
                self.assertGreater(len(page.readlines()), 100)

    def test_text_tables_of_a_folder(self):
        told = self.run_batch("convert-txt", "txt")
        self.assertTrue(told.startswith("This conversion utility will open and convert the following files: "))
        self.assertTrue(told.endswith("\nAll .TXT Files Converted\n"))
        self.check_kept("txt", ["B-1.bor", "B-2.bor", "B-3.bor"])

    def test_a_missing_table_ends_with_1(self):
        os.remove(self.path("txt/lith.txt"))
        told = self.run_batch("convert-txt", self.path("txt"), status=1)
        self.assertTrue(told.endswith("\nFile Not Found: " + self.path("txt/lith.txt") + "\n"))

    def test_text_tables_by_a_map(self):
        told = self.run_batch("convert-general", "--map", "general/comma.GCV", "general")
        self.assertEqual(told, f"New Boring File Created:  {self.path('general/GB-7.bor')}\n")
        self.check_kept("general", ["GB-7.bor"])
        self.run_batch("convert-general", "--map", "general/fixed.GCV", "--name", "fixed")
        self.check_kept("general", ["fixed.bor"])

    def test_a_boring_that_is_there_stays(self):
        with open(self.path("general/GB-7.bor"), "w") as older:
            older.write("older")
        told = self.run_batch("convert-general", "--map", "general/comma.GCV", "general", status=1)
        self.assertEqual(told.splitlines(), [
            f"The file, {self.path('general/GB-7.bor')} already exists.  Do you wish to overwrite it?",
            "Please enter a different filename"])
        with open(self.path("general/GB-7.bor")) as older:
            self.assertEqual(older.read(), "older")

    def test_a_map_that_is_not_there_ends_with_1_and_converts_nothing(self):
        told = self.run_batch("convert-general", "--map", "none.GCV", "general", status=1)
        self.assertEqual(told, "Error 53 in OpenGTGSConversionFile.  Please contact Norvane\n")

    def test_the_project_folder_takes_the_new_boring(self):
        os.mkdir(self.path("project"))
        shutil.copy(self.path("general/template.BOR"), self.path("project"))
        self.run_batch("convert-general", "--map", "general/comma.GCV", "--project", "project", "general")
        self.assertIn("GB-7.bor", os.listdir(self.path("project")))

    def test_print_files(self):
        told = self.run_batch("convert-prt", *(f"prt/{name}.PRT" for name in ("ordinary", "pages", "early", "heading")))
        self.assertEqual(told, "All .PRT Files Converted\n")
        self.check_kept("prt", ["ordinary.bor", "pages.bor", "early.bor", "heading.bor"])

    def test_a_foreign_file_is_told_and_ends_with_1(self):
        told = self.run_batch("convert-prt", "prt/foreign.PRT", "prt/ordinary.PRT", status=1)
        self.assertEqual(told, f"Invalid Format for GTGS File: {self.path('prt/foreign.PRT')}\n"
                               "All .PRT Files Converted\n")
        self.check_kept("prt", ["foreign.bor", "ordinary.bor"])

    def test_dots_of_the_command_line_are_no_part_of_the_new_name(self):
        self.run_batch("convert-prt", "./ordinary.PRT", "../prt/pages.PRT", cwd=self.path("prt"))
        self.check_kept("prt", ["ordinary.bor", "pages.bor"])

    def test_a_boring_among_the_files_to_convert_is_refused_and_stays(self):
        template = ("--template", self.path("log/template.BOR"))
        for job, options, names in (("convert-prt", (), ["prt/ordinary.PRT", "prt/B.BOR", "prt/pages.PRT"]),
                                    ("convert-log", template, ["log/B.BOR", "log/thirds.LOG", "log/nopage.LOG"])):
            boring = next(name for name in names if name.endswith(".BOR"))
            shutil.copy(self.path("log/template.BOR"), self.path(boring))
            told = self.run_batch(job, *options, *names, status=1)
            self.assertEqual(told.splitlines(), [
                f"This file would be replaced by its own conversion and is left as it is: {self.path(boring)}",
                f"All .{job[-3:].upper()} Files Converted"])
            self.assertTrue(filecmp.cmp(self.path(boring), self.path("log/template.BOR"), shallow=False))
            self.check_kept(job[-3:], [os.path.basename(name)[:-3] + "bor" for name in names if name != boring])

    def test_winlog_files(self):
        names = ("ordinary", "short", "thirds", "nopage")
        told = self.run_batch("convert-log", "--template", "log/template.BOR", *(f"log/{name}.LOG" for name in names))
        self.assertEqual(told, "All .LOG Files Converted\n")
        self.check_kept("log", [name + ".bor" for name in names])
        self.run_batch("convert-log", "log/ordinary.LOG")

    def test_the_same_failure_is_told_once_for_each_file(self):
        with open(self.path("foreign.BOR"), "w") as foreign:
            foreign.write("4.6\r\n")
        told = self.run_batch("convert-log", "--template", "foreign.BOR", "log/ordinary.LOG", "log/short.LOG", status=1)
        self.assertEqual(told.splitlines(), ["This boring file has an invalid format."] * 2 +
                         ["All .LOG Files Converted"])
        for name in ("B-1.bor", "B-3.bor"):
            os.mkdir(self.path("txt/" + name))
        told = self.run_batch("convert-txt", "txt", status=1)
        self.assertEqual(told.splitlines()[1:], ["Error 75 in WriteConvertedBoring.  Please contact Norvane"] * 2 +
                         ["All .TXT Files Converted"])
        # A file that is given twice is one file.
        told = self.run_batch("convert-log", "--template", "foreign.BOR", "log/short.LOG", "log/short.LOG", status=1)
        self.assertEqual(told.splitlines(), ["This boring file has an invalid format.", "All .LOG Files Converted"])

    def test_a_file_that_stops_early_ends_the_run(self):
        told = self.run_batch("convert-log", "log/early.LOG", "log/short.LOG", status=1)
        self.assertEqual(told, "Error 62 in ConvertWinLog.  Please contact Norvane\n")
        self.assertNotIn("short.bor", os.listdir(self.path("log")))

    def test_the_tables_of_the_export(self):
        told = self.run_batch("export-irpims", "--out", "out", *(f"irpims/B-{n}.BOR" for n in (1, 2, 3)))
        self.assertEqual(told, "Created TIMBORE.TXT, TIMLITH.TXT, TIMCONS.TXT\n")
        self.assertEqual(sorted(os.listdir(self.path("out"))), ["timbore.txt", "timcons.txt", "timlith.txt"])
        for name in os.listdir(self.path("out")):
            self.assertTrue(filecmp.cmp(self.path("out/" + name), os.path.join(DATA, "irpims", "kept", name),
                                        shallow=False), name)

    def test_five_hundred_files_are_one_run(self):
        names = []
        for number in range(500):
            names.append(self.path(f"prt/P{number}.PRT"))
            shutil.copy(self.path("prt/ordinary.PRT"), names[-1])
        self.assertEqual(self.run_batch("convert-prt", *names), "All .PRT Files Converted\n")
        self.assertEqual(len([name for name in os.listdir(self.path("prt")) if name.endswith(".bor")]), 500)
        os.remove(names[150])
        told = self.run_batch("convert-prt", *names, status=1)
        self.assertEqual(told, "Error 53 in ConvertGTGS2BOR.  Please contact Norvane\n")

    def test_a_wrong_command_line_ends_with_2(self):
        for words, wrong in ((["convert-txt"], "no folder given for convert-txt"),
                             (["convert-txt", "a", "b"], "convert-txt takes one folder"),
                             (["convert-general", "general"], "convert-general takes --map FILE.GCV"),
                             (["export-irpims", "irpims/B-1.BOR"], "export-irpims takes --out DIR"),
                             (["convert-prt", "--pdf", "x", "a.PRT"], "unknown option for convert-prt: --pdf"),
                             (["convert-log", "--template"], "nothing behind --template")):
            self.assertEqual(self.run_batch(*words, status=2),
                             f"stratavue-batch: {wrong} (see stratavue-batch --help)\n")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
