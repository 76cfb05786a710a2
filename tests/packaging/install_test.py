"""install_test.py -- an installation: what is in it, and that its programs work from it.

    python3 install_test.py CMAKE BUILD_DIR
"""
import configparser
import glob
import os
import re
import shutil
import subprocess
import sys
import tempfile
import time
import unittest
import xml.etree.ElementTree as xml

CMAKE, BUILD = sys.argv[1], os.path.abspath(sys.argv[2])
SOURCE = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))


def said(*words, **options):
    done = subprocess.run(words, capture_output=True, text=True, timeout=60, **options)
    return done.returncode, done.stdout + done.stderr


class Install(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.mkdtemp()
        cls.root = os.path.join(cls.folder, "usr")
        status, words = said(CMAKE, "--install", BUILD, "--prefix", cls.root)
        assert status == 0, words
        cls.stock = set()
        folder = os.path.join(cls.root, "share/stratavue")
        for where, _, names in os.walk(folder):
            cls.stock.update(os.path.relpath(os.path.join(where, name), folder) for name in names)

    @classmethod
    def tearDownClass(cls):
        shutil.rmtree(cls.folder)

    def setUp(self):
        self.home = tempfile.mkdtemp(dir=self.folder)
        self.environment = {"PATH": os.environ["PATH"], "HOME": self.home, "QT_QPA_PLATFORM": "offscreen",
                            "LSAN_OPTIONS": os.environ.get("LSAN_OPTIONS", "")}
        self.user = os.path.join(self.home, ".local/share/Stratavue")

    def shared(self, *names):
        return os.path.join(self.root, "share", *names)

    def page(self, name):
        """A manual page as plain words."""
        status, text = said("gzip", "-dc", self.shared("man/man1", name + ".1.gz"))
        self.assertEqual(status, 0, text)
        return text, re.sub(r"\\f[A-Z]|\\", "", text.replace(r"\~", " "))

    def batch(self, *words):
        return said(os.path.join(self.root, "bin/stratavue-batch"), *words, env=self.environment, cwd=self.home)

    def start(self):
        """Starts the desktop program, ends it when it is up, and gives what it left in its folder by then."""
        program = subprocess.Popen([os.path.join(self.root, "bin/stratavue")], env=self.environment, cwd=self.home,
                                   stderr=subprocess.DEVNULL)
        try:
            for _ in range(600):
                if os.path.exists(os.path.join(self.user, "device.cfg")) or program.poll() is not None:
                    break
                time.sleep(0.05)
            self.assertIsNone(program.poll(), "the program is up")
            return sorted(os.listdir(self.user))
        finally:
            program.kill()
            program.wait()

    def test_the_stock_files_are_those_of_the_build_and_nothing_that_a_program_left_there(self):
        for name in ("us.hdg", "prompt.txt", "desitem.txt", "logo.txt", "LOGO.BMP", "PORTRAIT.LAY", "fills/F0.BMP",
                     "fills/F85.BMP", "fills/F501.BMP", "samples/TC-101.BOR", "samples/SITEMAP.BMP"):
            self.assertIn(name, self.stock)
        for name in self.stock:
            self.assertTrue(name.lower().endswith((".hdg", ".txt", ".lay", ".bmp", ".bor", ".cro", ".fen", ".soi",
                                                   ".gis", ".gcv", ".prt", ".log", ".dat")), name)
            self.assertNotRegex(name, r"fills/.*_|device\.cfg|first\.txt")
        for name in os.listdir(os.path.join(BUILD, "samples")):
            if name.endswith(".BOR"):
                with open(os.path.join(BUILD, "samples", name), "rb") as made:
                    with open(self.shared("stratavue/samples", name), "rb") as copy:
                        self.assertEqual(made.read(), copy.read(), name)

    def test_the_first_start_makes_the_working_folder_in_the_users_data_folder(self):
        names = self.start()
        for name in ("device.cfg", "stock.lst", "us.hdg", "LOGO.BMP", "fills", "samples"):
            self.assertIn(name, names)
        self.assertGreaterEqual(len(glob.glob(os.path.join(self.user, "fills/F*.BMP"))), 88)
        self.assertEqual(sorted(os.listdir(os.path.join(self.root, "bin"))), ["stratavue", "stratavue-batch"])
        with open(os.path.join(self.user, "device.cfg"), encoding="ascii") as lines:
            self.assertEqual(lines.readline().rstrip(), self.user)

    def test_the_data_folder_may_be_elsewhere(self):
        self.environment["XDG_DATA_HOME"] = os.path.join(self.home, "elsewhere")
        self.user = os.path.join(self.home, "elsewhere/Stratavue")
        self.assertIn("us.hdg", self.start())
        self.assertFalse(os.path.exists(os.path.join(self.home, ".local")))

    def test_a_sample_is_drawn_before_any_start_and_nothing_is_left_in_the_home(self):
        status, words = self.batch("log", "--list", "a.jsonl", "--pdf", "a.pdf",
                                   self.shared("stratavue/samples/TC-101.BOR"))
        self.assertEqual((status, words), (0, ""))
        self.assertEqual(sorted(os.listdir(self.home)), ["a.jsonl", "a.pdf"])
        status, words = said(os.path.join(BUILD, "stratavue-batch"), "log", "--list", os.path.join(self.home, "b.jsonl"),
                             self.shared("stratavue/samples/TC-101.BOR"), env=self.environment)
        self.assertEqual((status, words), (0, ""))
        self.assertEqual(self.objects("a.jsonl"), self.objects("b.jsonl"))

    def objects(self, name):
        with open(os.path.join(self.home, name), encoding="utf-8") as lines:
            return re.sub(r'"[^"]*/fills/', '"', lines.read())

    def test_after_the_first_start_the_users_files_are_the_ones_that_are_drawn_with(self):
        self.start()
        with open(os.path.join(self.user, "us.hdg"), "rb") as file:
            words = file.read().split(b"\r\n")
        words[1] = b"of the user"
        with open(os.path.join(self.user, "us.hdg"), "wb") as file:
            file.write(b"\r\n".join(words))
        self.batch("log", "--list", "mine.jsonl", os.path.join(self.user, "samples/TC-101.BOR"))
        self.batch("log", "--home", self.shared("stratavue"), "--list", "stock.jsonl",
                   os.path.join(self.user, "samples/TC-101.BOR"))
        self.assertIn("of the user", self.objects("mine.jsonl"))
        self.assertNotIn("of the user", self.objects("stock.jsonl"))

    def test_the_manual_page_has_the_jobs_and_the_options_of_the_help_and_no_others(self):
        status, usage = self.batch("--help")
        self.assertEqual(status, 0)
        _, page = self.page("stratavue-batch")
        jobs = re.findall(r"^  stratavue-batch (\S+)", usage, flags=re.M)
        self.assertGreaterEqual(len(jobs), 3)
        synopsis, rest = page.split(".SH DESCRIPTION")
        listed, rest = rest.split(".SH JOBS")[1].split(".SH OPTIONS")
        options = rest.split(".SH EXIT STATUS")[0]
        self.assertEqual(re.findall(r"^\.SY stratavue-batch\n\.B (\S+)", synopsis, flags=re.M), jobs)
        self.assertEqual(re.findall(r"^\.B (\S+)", listed, flags=re.M), jobs)
        for job in jobs:
            known = re.search(rf"^  stratavue-batch {job} ?(.*)", usage, flags=re.M)[1]
            told = re.search(rf"^\.B {job}\n(.*?)\.YS", synopsis, flags=re.M | re.S)[1]
            self.assertEqual(" ".join(told.split()), known)
            self.assertIn(re.search(rf"^  {job} +(.*)", usage, flags=re.M)[1], listed)
        wanted = re.findall(r"^  (--\S+ \S+)", usage, flags=re.M)
        self.assertGreaterEqual(len(wanted), 9)
        self.assertEqual(re.findall(r"^(--\S+ \S+)$", options, flags=re.M), wanted)
        for words in re.findall(r"^  --\S+ \S+ +(.*)", usage, flags=re.M):
            self.assertIn(words, options)

    def test_the_manual_pages_are_well_formed(self):
        if not shutil.which("mandoc"):
            self.skipTest("mandoc is not installed")
        for name in ("stratavue", "stratavue-batch"):
            text, _ = self.page(name)
            self.assertNotIn("@", text)
            status, words = said("mandoc", "-Tlint", "-Wwarning", input=text)
            self.assertEqual((status, words), (0, ""))

    def test_the_menu_entry_names_a_program_an_icon_and_a_file_type_that_are_installed(self):
        entry = configparser.ConfigParser(interpolation=None)
        entry.optionxform = str
        entry.read(self.shared("applications/stratavue.desktop"), encoding="utf-8")
        entry = entry["Desktop Entry"]
        self.assertEqual(entry["Exec"], "stratavue %f")
        self.assertTrue(os.path.exists(os.path.join(self.root, "bin", entry["TryExec"])))
        self.assertTrue(os.path.exists(self.shared("icons/hicolor/scalable/apps", entry["Icon"] + ".svg")))
        types = xml.parse(self.shared("mime/packages/stratavue.xml")).getroot()
        named = [part.get("type") for part in types if part.tag.endswith("mime-type")]
        self.assertEqual([kind for kind in entry["MimeType"].split(";") if kind], named)
        if shutil.which("desktop-file-validate"):
            self.assertEqual(said("desktop-file-validate", self.shared("applications/stratavue.desktop")), (0, ""))

    def test_the_icon_is_there_in_the_sizes_of_its_folders(self):
        if not shutil.which("rsvg-convert"):
            self.skipTest("rsvg-convert is not installed")
        for size in (16, 24, 32, 48, 64, 128, 256):
            with open(self.shared(f"icons/hicolor/{size}x{size}/apps/stratavue.png"), "rb") as file:
                head = file.read(24)
            self.assertEqual(head[:8], b"\x89PNG\r\n\x1a\n")
            self.assertEqual(head[16:24], size.to_bytes(4, "big") * 2)

    def test_a_boring_is_known_by_its_ending_in_any_case(self):
        if not shutil.which("update-mime-database"):
            self.skipTest("shared-mime-info is not installed")
        self.assertEqual(said("update-mime-database", self.shared("mime"))[0], 0)
        with open(self.shared("mime/globs2"), encoding="utf-8") as globs:
            self.assertIn("50:application/x-stratavue-boring:*.bor\n", globs.read())

    def test_the_data_for_software_catalogues_is_valid(self):
        (name,) = os.listdir(self.shared("metainfo"))
        component = xml.parse(self.shared("metainfo", name)).getroot()
        self.assertEqual(component.findtext("id") + ".metainfo.xml", name)
        for binary in component.iter("binary"):
            self.assertTrue(os.path.exists(os.path.join(self.root, "bin", binary.text)))
        if shutil.which("appstreamcli"):
            status, words = said("appstreamcli", "validate", "--no-net", self.shared("metainfo", name))
            self.assertEqual(status, 0, words)

    def test_the_terms_of_use_are_installed_as_LICENSE_states_them(self):
        with open(self.shared("doc/stratavue/copyright"), encoding="utf-8") as lines:
            told = " ".join(lines.read().split())
        with open(os.path.join(SOURCE, "LICENSE"), encoding="utf-8") as lines:
            name, owner, _, terms = lines.read().split("\n")[:4]
        self.assertIn("Upstream-Name: " + name, told)
        self.assertIn("Files: * " + owner.replace("Copyright", "Copyright:") + " License: proprietary " + terms, told)

    def test_no_library_and_no_font_of_others_is_installed_and_the_terms_of_both_are_told(self):
        names = [name for _, _, names in os.walk(self.root) for name in names]
        self.assertGreater(len(names), 100)
        self.assertEqual([name for name in names if re.search(r"\.(so|a|ttf|otf|pfb|woff)\b", name, re.I)], [])
        with open(self.shared("doc/stratavue/copyright"), encoding="utf-8") as lines:
            told = " ".join(lines.read().split())
        for words in ("/usr/share/common-licenses/LGPL-3", "SIL Open Font License, version 1.1"):
            self.assertIn(words, told)
        needed = set()
        for name in os.listdir(os.path.join(self.root, "bin")):
            _, words = said("objdump", "-p", os.path.join(self.root, "bin", name))
            needed.update(re.findall(r"NEEDED +libQt6(\w+)", words))
        self.assertIn("Core", needed)
        self.assertEqual(sorted(needed), sorted(re.search(r"Qt 6 \(([^)]*)\)", told)[1].split(", ")))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
