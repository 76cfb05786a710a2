#!/usr/bin/env python3
"""samepages.py -- a boring's pages are the same alone, in one run of all, the other way round, and page by page.

    python3 samepages.py PROGRAM [--home DIR] FOLDER...

PROGRAM is a stratavue-batch, and each FOLDER a project: all of its borings (*.BOR) are drawn as listings of their
objects by `log --list`, with the layouts of the folder, and compared byte by byte. Left out of the comparison is the
first line of a page alone, which tells its number in the run. A boring that draws no page by itself (an earlier form,
a file that breaks off) has none to compare and is named. Prints the counts of each folder and every page that
differs; ends with 1 if one does. Nothing is written into the folders.

The pages of Preview and of the page beside the boxes are compared by samepages_test.cpp, over the samples.
"""
import argparse
import os
import subprocess
import sys
import tempfile

MOST_FILES, MOST_PAGES = 200, 500  # of one run


def draw(program, options, files, *more):
    """The pages of a run, each as the bytes of its objects."""
    with tempfile.TemporaryDirectory() as folder:
        listing = os.path.join(folder, "pages.jsonl")
        subprocess.run([program, "log", *options, "--date", "1 Jan 2000", "--list", listing, *more, *files],
                       stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=False,
                       timeout=600)
        if not os.path.exists(listing):
            return []
        with open(listing, "rb") as lines:
            pages = []
            for line in lines:
                if line.startswith(b'{"page":'):
                    pages.append([])
                else:
                    pages[-1].append(line)
    return [b"".join(page) for page in pages]


def runs(files, alone):
    """The files in runs that are not too long."""
    run, pages = [], 0
    for file in files:
        if run and (len(run) == MOST_FILES or pages + len(alone[file]) > MOST_PAGES):
            yield run
            run, pages = [], 0
        run.append(file)
        pages += len(alone[file])
    if run:
        yield run


def differing(words, drawn, expected, names):
    """Tells the pages that differ, and returns how many."""
    wrong = [name for name, a, b in zip(names, drawn, expected) if a != b]
    for name in wrong:
        print(f"  {name}: another page {words}")
    if len(drawn) != len(expected):
        print(f"  {len(drawn)} pages {words}, {len(expected)} alone")
        return len(wrong) + 1
    return len(wrong)


def check(program, options, folder):
    files = sorted(os.path.join(folder, name) for name in os.listdir(folder) if name.upper().endswith(".BOR"))
    alone = {file: draw(program, options, [file]) for file in files}
    for file in files:
        if not alone[file]:
            print(f"  {file}: no page")
    files = [file for file in files if alone[file]]
    wrong = 0
    for words, order in (("in a run of all", files), ("in reverse order", files[::-1])):
        for run in runs(order, alone):
            names = [f"{file}, page {n + 1}" for file in run for n in range(len(alone[file]))]
            expected = [page for file in run for page in alone[file]]
            wrong += differing(words, draw(program, options, run), expected, names)
    for file in files:
        for n, page in enumerate(alone[file], 1):
            drawn = draw(program, options, [file], "--page", str(n))
            wrong += differing(f"by --page {n}", drawn, [page], [f"{file}, page {n}"])
    pages = sum(len(alone[file]) for file in files)
    print(f"{folder}: {len(files)} borings, {pages} pages, {pages - len(files)} of them later ones, {wrong} differ")
    return wrong, len(files)


def main():
    parser = argparse.ArgumentParser(description="compares the pages of borings however they are asked for")
    parser.add_argument("program")
    parser.add_argument("--home", help="working folder of the runs")
    parser.add_argument("folders", nargs="+", metavar="FOLDER")
    asked = parser.parse_args()
    options = ["--home", os.path.abspath(asked.home)] if asked.home else []
    counts = [check(os.path.abspath(asked.program), options, os.path.abspath(folder)) for folder in asked.folders]
    sys.exit(1 if any(wrong for wrong, _ in counts) or not any(files for _, files in counts) else 0)


if __name__ == "__main__":
    main()
