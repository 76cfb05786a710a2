"""adding.py -- what the tests of an addition share: files of the build compiled apart with changes, and linked before the
libraries. The sources stay as they are.
"""
import json
import os
import re
import shlex
import subprocess


def compile_command(build, file):
    """The command of the build for a file of it, with room for another file and object."""
    with open(os.path.join(build, "compile_commands.json")) as commands:
        for entry in json.load(commands):
            if entry["file"].endswith(file):
                words = shlex.split(entry["command"])
                return [word for word in words if word not in (entry["file"], "-c")]
    raise SystemExit("no such file in the build: " + file)


def objects_of(build, folder, but):
    """The objects that the build makes in a folder of its own: not what an earlier one has left there."""
    with open(os.path.join(build, "compile_commands.json")) as commands:
        words = [shlex.split(entry["command"]) for entry in json.load(commands)]
    outputs = [line[line.index("-o") + 1] for line in words if "-o" in line]
    return [os.path.join(build, name) for name in outputs
            if name.startswith(folder) and not os.path.basename(name).startswith(but)]


def compiled(build, model, file, include, extra=()):
    """Compiles a file like the model of the build, the changed headers before the others."""
    words = compile_command(build, model)
    out = words.index("-o")
    del words[out:out + 2]
    first = next(i for i, word in enumerate(words) if word.startswith("-"))
    target = os.path.splitext(file)[0] + ".o"
    subprocess.run([*words[:first], "-I" + include, *words[first:], *extra, "-o", target, "-c", file], check=True)
    return target


def replaced(text, pattern, line):
    changed, count = re.subn(pattern, lambda found: found.group(0) + line, text, count=1, flags=re.M)
    assert count == 1, "the place for the line was not found: " + pattern
    return changed


def changed(source, folder, name, *lines):
    """A file of the sources with lines of its own, in a folder that is looked into before them."""
    with open(os.path.join(source, "src", name)) as file:
        text = file.read()
    for pattern, line in lines:
        text = replaced(text, pattern, line)
    return written(os.path.join(folder, "src", name), text)


def written(file, text):
    os.makedirs(os.path.dirname(file), exist_ok=True)
    with open(file, "w") as out:
        out.write(text)
    return file


def linked(build, program, model, parts):
    """Links like the program of that file: with the compiler and the checks of the build."""
    words = compile_command(build, model)
    compiler = words[1] if os.path.basename(words[0]) == "ccache" else words[0]
    checks = [word for word in words if word.startswith("-fsanitize")]
    subprocess.run([compiler, *checks, "-o", program, *parts], check=True)
    return program
