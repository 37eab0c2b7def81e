#!/usr/bin/env python3
"""Tells which sides of the decisions in a folder's sources were taken, from what llvm-cov exports on standard input.

    llvm-cov export ... | tests/campaigns/branch_rates.py FOLDER...

Prints each side that was not taken, the share of each file, and that of each folder; ends with 1 when a folder is below
97 %, or has a source that no test program takes. What stands in tests/campaigns/open-branches.txt doesn't count, and is
printed with its reason; an entry whose side was taken, or that no decision has any more, ends it with 1 too.
"""
import collections
import json
import os
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
WISHED = 97.0
HEAD = re.compile(r"(src/\S+): (true|false): (.*)")

# One side of a decision: where it stands, its text in one line, which side. A case of a switch is a decision too.
Side = collections.namedtuple("Side", "file line column text side")


def listed(text):
    """What may stay open: {(file, side, text of the condition): reason}."""
    found, key = {}, None
    for line in text.splitlines():
        head = HEAD.fullmatch(line)
        if head:
            key = (head[1], head[2], head[3])
            found[key] = ""
        elif line.startswith("    ") and key:
            found[key] = (found[key] + " " + line.strip()).strip()
    return found


def condition(lines, branch):
    """The text of a decision, in one line."""
    first, left, last, right = branch[:4]
    if first == last:
        return lines[first - 1][left - 1:right - 1]
    parts = [lines[first - 1][left - 1:], *lines[first:last - 1], lines[last - 1][:right - 1]]
    return " ".join(part.strip() for part in parts)


def sides(exported, root=ROOT):
    """How often each side was taken: {Side: times}. A template's instances, and a file's programs, count together."""
    taken, sources = collections.Counter(), {}
    for function in exported["data"][0]["functions"]:
        for branch in function["branches"]:
            # A compiler cache names sources from the build folder on.
            path = pathlib.Path(os.path.normpath(function["filenames"][branch[6]]))
            if root not in path.parents:
                continue
            file = str(path.relative_to(root))
            if file not in sources:
                sources[file] = path.read_bytes().decode().splitlines()
            text = condition(sources[file], branch)
            taken[Side(file, branch[0], branch[1], text, "true")] += branch[4]
            taken[Side(file, branch[0], branch[1], text, "false")] += branch[5]
    return taken


def unseen(folder, exported, root=ROOT):
    """Sources of a folder that no test program has."""
    names = {os.path.normpath(name) for function in exported["data"][0]["functions"] for name in function["filenames"]}
    found = sorted((root / "src" / folder).glob("*.cpp"))
    return [str(path.relative_to(root)) for path in found if str(path) not in names]


def share(taken):
    """(sides taken, sides) of some sides."""
    return sum(1 for times in taken.values() if times), len(taken)


def rate(hit, of):
    return 100 * hit / of if of else 100.0


def row(name, hit, of):
    return f"{name:48} {hit:5} of {of:5} {rate(hit, of):6.1f} %"


def report(folder, taken, known):
    """The lines of a folder, and whether it is open too far."""
    mine = {side: times for side, times in taken.items() if side.file.startswith(f"src/{folder}/")}
    excused = {side for side, times in mine.items() if not times and (side.file, side.side, side.text) in known}
    counted = {side: times for side, times in mine.items() if side not in excused}
    lines = [f"{side.file}:{side.line}: never {side.side}: {side.text}" for side in sorted(counted) if not counted[side]]
    for file in sorted({side.file for side in counted}):
        lines.append(row(file, *share({side: times for side, times in counted.items() if side.file == file})))
    hit, of = share(counted)
    lines.append(row(f"{folder}, {len(excused)} left out by the list", hit, of))
    return lines, rate(hit, of) < WISHED


def needless(folders, taken, known):
    """Entries of the list that name no open side."""
    still = {(side.file, side.side, side.text) for side, times in taken.items() if not times}
    return [key for key in known if key[0].split("/")[1] in folders and key not in still]


def main(folders):
    known = listed((ROOT / "tests" / "campaigns" / "open-branches.txt").read_text())
    exported, failed = json.load(sys.stdin), False
    taken = sides(exported)
    for folder in folders:
        lines, low = report(folder, taken, known)
        print(f"== {folder}", *lines, sep="\n")
        without = unseen(folder, exported)
        print(*(f"{file} is in no test program" for file in without), sep="\n", end="\n" if without else "")
        failed = failed or low or bool(without)
    print("== left out")
    for (file, side, text), reason in known.items():
        if file.split("/")[1] in folders:
            print(f"{file}: never {side}: {text}\n    {reason}")
    for key in needless(folders, taken, known):
        print("open-branches.txt names what is not open: " + ": ".join(key))
        failed = True
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
