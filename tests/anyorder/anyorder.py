"""anyorder.py -- a test program in other orders than its own: no test may need another one, or be harmed by it.

    python3 anyorder.py PROGRAM [--seeds N] [--first N] [--alone] [--relink N BUILD_DIR] [-- OPTION...]

The tests run in the order of each seed, 1 to N; --first begins with another seed. --alone then runs each test in a
process of its own. --relink links the program N times more with its object files, and those of the libraries of this
project, in another order each time, so that the start values of the files come to be in another order too; a build
by Ninja is needed. What stands behind -- goes to the program. The exit status is 1 where anything failed.
"""
import argparse
import os
import random
import re
import shlex
import subprocess
import sys

split = sys.argv.index("--") if "--" in sys.argv else len(sys.argv)
reader = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
reader.add_argument("program")
reader.add_argument("--seeds", type=int, default=20)
reader.add_argument("--first", type=int, default=1)
reader.add_argument("--alone", action="store_true")
reader.add_argument("--relink", nargs=2, metavar=("N", "BUILD_DIR"), default=("0", "."))
asked = reader.parse_args(sys.argv[1:split])
options = sys.argv[split + 1:]
failures = []


def run(what, program, *more):
    """Runs the tests; tells of those that fail, and why."""
    done = subprocess.run([program, "-nc", *options, *more], stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    if done.returncode == 0:
        return
    words = done.stdout.decode("latin-1")
    parts = re.split(r"^=+$", words, flags=re.M)
    failures.append(what)
    print(f"{what}: status {done.returncode}")
    for part in parts:
        if re.search(r"ERROR|FATAL|CRASHED|AddressSanitizer", part):
            print(part.strip()[:3000] + "\n")
    if len(parts) < 3:
        print(words[-2000:])
    sys.stdout.flush()


def alone(program):
    listed = subprocess.run([program, "-nc", "-ltc", *options], capture_output=True, text=True, check=True).stdout
    count = len([line for line in listed.splitlines() if not re.match(r"\[doctest\]|=+$", line)])
    for test in range(1, count + 1):
        run(f"test {test} alone", program, f"-f={test}", f"-l={test}")
    print(f"{count} tests alone")


def relink(program, seed, build):
    """Links the program with all object files in another order. Returns its name, or None where that fails."""
    target = os.path.relpath(os.path.abspath(program), build)
    commands = subprocess.run(["ninja", "-C", build, "-t", "commands", target], capture_output=True, text=True,
                              check=True).stdout.splitlines()
    ours = re.compile(r"(^|/)libstratavue_\w+\.a$")
    words = [word for word in shlex.split(commands[-1]) if word not in (":", "&&")]
    objects = {word for word in words if word.endswith(".o")}
    for library in filter(ours.search, words):
        for command in commands[:-1]:
            if f" {library} " in command and "-c " not in command:
                objects |= {word for word in shlex.split(command) if word.endswith(".o")}
    objects = sorted(objects)
    random.Random(seed).shuffle(objects)
    rest = [word for word in words if not word.endswith(".o") and not ours.search(word)]
    at = rest.index("-o")
    rest[at + 1] = target + ".relinked"
    done = subprocess.run(rest[:at] + objects + rest[at:], cwd=build, stderr=subprocess.PIPE, text=True)
    if done.returncode == 0:
        return os.path.join(build, rest[at + 1])
    failures.append("linking")
    print(done.stderr[-2000:])
    return None


for seed in range(asked.first, asked.first + asked.seeds):
    run(f"seed {seed}", asked.program, "-ob=rand", f"-rs={seed}")
print(f"{asked.seeds} orders")
if asked.alone:
    alone(asked.program)
times, build = int(asked.relink[0]), os.path.abspath(asked.relink[1])
for seed in range(1, times + 1):
    linked = relink(asked.program, seed, build)
    if linked:
        run(f"linked in the order {seed}", linked, "-ob=rand", f"-rs={seed}")
        os.remove(linked)
print(f"{times} orders of linking, {len(failures)} failures")
sys.exit(1 if failures else 0)
