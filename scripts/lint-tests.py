#!/usr/bin/env python3
"""Lets clang-tidy read tests, bench and fuzz: lint-tests.py [BUILD FOLDER [PROGRAM...]]

What costs is the headers that each file includes, not the file. So the files of a program are read together, as one
source that includes them. A file that names something as another one does can't be, and is read alone. Needs a built
preset (build/dev unless told), for what the toolkit generates. With names, only those programs: build/dev link_tests.
"""
import concurrent.futures
import json
import os
import pathlib
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
BUILD = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else ROOT / "build" / "dev").resolve()
WORK = ROOT / "build" / "lint"
ONLY = sys.argv[2:]
FOLDERS = ("tests", "bench", "fuzz")
# The files are included on purpose; a test's vectors need not be fast, and its numbers are small.
CHECKS = ("--checks=-bugprone-suspicious-include,-performance-inefficient-vector-operation,"
          "-bugprone-implicit-widening-of-multiplication-result")
# The compiler's own warnings are the compiler's to tell, file by file: of files that are read together, the names of one
# would be said to hide those of another.
QUIET = "--extra-arg=-w"


def programs():
    """The commands of each program or library, by its name; a file that several have counts once."""
    found, seen = {}, set()
    for entry in json.loads((BUILD / "compile_commands.json").read_text()):
        source = pathlib.Path(entry["file"])
        if source in seen or not any(source.is_relative_to(ROOT / folder) for folder in FOLDERS):
            continue
        seen.add(source)
        target = entry["command"].split(" -o ")[1].split(".dir/")[0].split("/")[-1]
        if not ONLY or target in ONLY:
            found.setdefault(target, []).append(entry)
    return found


def tidy(name, entries):
    """What clang-tidy says of these files together; empty when nothing."""
    folder = WORK / name
    folder.mkdir(parents=True, exist_ok=True)
    source = folder / (name + ".cpp")
    source.write_text("".join(f'#include "{entry["file"]}"\n' for entry in entries))
    first = entries[0]
    command = first["command"].replace(first["file"], str(source))
    database = [{"directory": first["directory"], "command": command, "file": str(source)}]
    (folder / "compile_commands.json").write_text(json.dumps(database))
    run = subprocess.run(["clang-tidy", "-quiet", "-p", folder, CHECKS, QUIET, source],
                         capture_output=True, text=True)
    return "" if run.returncode == 0 else run.stdout + run.stderr


def misfits(said, entries):
    """Those of the files that can't be read with the others: they name something as another one does."""
    lines = said.splitlines()
    for told in ([line for line in lines if "[clang-diagnostic-error]" in line], lines):
        found = [entry for entry in entries if any(line.startswith(entry["file"] + ":") for line in told)]
        if found:
            return found
    return entries


def read(name, entries):
    said = tidy(name, entries)
    if "[clang-diagnostic-error]" not in said or len(entries) == 1:
        return said
    alone = misfits(said, entries)
    together = [entry for entry in entries if entry not in alone]
    said = "".join(read(f"{name}-{pathlib.Path(entry['file']).stem}", [entry]) for entry in alone)
    return said + (read(name, together) if together else "")


def main():
    wrong = False
    with concurrent.futures.ThreadPoolExecutor(int(os.environ.get("LINT_JOBS", os.cpu_count()))) as threads:
        for said in threads.map(lambda program: read(*program), programs().items()):
            print(said, end="", flush=True)
            wrong = wrong or bool(said)
    return int(wrong)


sys.exit(main())
