"""campaign.py -- the random events in the windows, the full campaign, in pieces.

    python3 campaign.py BUILD_DIR LOG_DIR [--log N] [--tools N] [--piece N] [--jobs N] [--minutes N]

--log rounds in the log tool, of 25 sequences of 30 events each, and --tools rounds in the other tools, of 300 events
each. A piece is so many rounds in a process of its own, --jobs of them at a time, and is stopped after so many
minutes. LOG_DIR keeps what each piece tells and the rounds that it played; a piece that the same program has passed
is not played again, so that a campaign that was stopped goes on where it was. The exit status is 1 where a piece
failed; its log tells the round, and

    STRATAVUE_WILD_FROM=ROUND STRATAVUE_WILD=1 BUILD_DIR/tests/windowtests -tc="random clicks*"

("random events*" for the tools) plays that round alone.
"""
import argparse
import concurrent.futures
import hashlib
import os
import subprocess
import sys
import time

reader = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
reader.add_argument("build")
reader.add_argument("logs")
reader.add_argument("--log", type=int, default=400)
reader.add_argument("--tools", type=int, default=200)
reader.add_argument("--piece", type=int, default=10)
reader.add_argument("--jobs", type=int, default=os.cpu_count())
reader.add_argument("--minutes", type=float, default=60)
asked = reader.parse_args()
program = os.path.join(os.path.abspath(asked.build), "tests", "windowtests")
leaks = os.path.join(os.path.dirname(os.path.dirname(os.path.abspath(__file__))), "leaks.txt")
tests = {"log": "random clicks*", "tools": "random events*"}
with open(program, "rb") as whole:
    version = hashlib.sha256(whole.read()).hexdigest()
os.makedirs(asked.logs, exist_ok=True)


def play(tool, first, count):
    """Plays a piece. Returns its name, whether it passed, the seconds it took, and the rounds that were played."""
    name = f"{tool}-{first:04}-{count}"
    told, rounds = (os.path.join(asked.logs, name + ending) for ending in (".txt", ".rounds"))
    passed = os.path.join(asked.logs, name + ".passed")
    if os.path.exists(passed):
        with open(passed, encoding="ascii") as by:
            if by.read() == version:
                return name, True, 0, count
    if os.path.exists(rounds):
        os.remove(rounds)
    surroundings = dict(os.environ, STRATAVUE_WILD=str(count), STRATAVUE_WILD_FROM=str(first),
                        STRATAVUE_WILD_LOG=rounds)
    surroundings.setdefault("LSAN_OPTIONS", f"suppressions={leaks}:print_suppressions=0")
    began = time.monotonic()
    with open(told, "wb") as out:
        try:
            status = subprocess.run([program, "-nc", "-tc=" + tests[tool]], env=surroundings, stdout=out,
                                    stderr=subprocess.STDOUT, timeout=asked.minutes * 60).returncode
        except subprocess.TimeoutExpired:
            status = "stopped"
            out.write(b"\nstopped: it took too long\n")
    played = 0
    if os.path.exists(rounds):
        with open(rounds, encoding="utf-8") as lines:
            played = sum(line.endswith("is over\n") for line in lines)
    if status == 0 and played == count:
        with open(passed, "w", encoding="ascii") as by:
            by.write(version)
    return name, status == 0 and played == count, time.monotonic() - began, played


pieces = [(tool, first, min(asked.piece, rounds - first)) for tool, rounds in (("log", asked.log), ("tools", asked.tools))
          for first in range(0, rounds, asked.piece)]
failed, played = [], {"log": 0, "tools": 0}
with concurrent.futures.ThreadPoolExecutor(asked.jobs) as pool:
    for (tool, _, _), (name, good, seconds, rounds) in zip(pieces, pool.map(lambda piece: play(*piece), pieces)):
        played[tool] += rounds
        print(f"{name}: {'passed' if good else 'FAILED'}, {seconds:.0f} s", flush=True)
        if not good:
            failed.append(name)
print(f"{played['log']} rounds of the log tool ({played['log'] * 25} sequences of 30 events), {played['tools']} rounds of "
      f"the others ({played['tools'] * 300} events), {len(failed)} pieces failed")
sys.exit(1 if failed else 0)
