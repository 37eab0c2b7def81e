#!/usr/bin/env python3
"""Breaks one place of the logic at a time and looks whether a test notices.

    tests/campaigns/mutants/mutants.py [FOLDER...] [--number N] [--seed S] [--since COMMIT] [--again] [--life]
        [--together] [--list | --report]

A place is a comparison or its boundary, a constant, a default, the order of two statements, a call or an assignment, a
condition, a "!", an operator. They are broken in a copy of the sources (build/mutants): all of a folder are built into one
program, in which a variable chooses the broken one, and what can't be chosen there is built one by one. The tests of the
folder and of those that use it that come by the place run, until one fails; but for those that take more than ten seconds
alone. A change that makes them five times as slow, and ten seconds more, is noticed too. What survived is listed, and told
apart from what tests/campaigns/mutants/equivalent.txt names with the reason why it changes nothing.

FOLDER       folders of src: of the logic, all of it unless told, or of the windows: windows, receiver_ui, editor_ui
--number N   so many places of each folder, chosen at random; all of them unless told
--seed S     another choice of places (1)
--since C    only places on lines that differ from the commit C
--again      try those again that survived, and those that were tried before their file changed
--life       let survivors face the whole lives of a station too, which takes half a minute each
--list       only list the places
--report     only tell what became of those that were tried so far
--together   leave those that have to be built one by one
--jobs N     compilers, or tests, at once (2)

What was tried is kept in build/mutants/tried.json, so that a campaign that is cut off goes on where it stopped.
"""
import argparse
import collections
import datetime
import hashlib
import json
import pathlib
import random
import re
import subprocess
import sys

sys.dont_write_bytecode = True
import changes  # noqa: E402
import together  # noqa: E402
import trial  # noqa: E402

ROOT = pathlib.Path(__file__).resolve().parents[3]
HERE = pathlib.Path(__file__).resolve().parent
LOGIC = ("common", "categories", "events", "signals", "link", "core", "schedule", "definitions", "tool_support")
# The folders with windows, and the programs that test each.
WINDOWS = {"windows": ["windows_tests", "receiver_ui_tests", "editor_ui_tests"],
           "receiver_ui": ["receiver_ui_tests", "x11_tests", "tray_bus_tests"], "editor_ui": ["editor_ui_tests"]}
# Programs that test what stands on a folder of the logic, besides the folder's own.
TOOLS = {"definitions": ["inspect_tests"], "events": ["inspect_tests"], "core": ["receiver_check_tests"],
         "tool_support": ["inspect_tests", "receiver_check_tests"], "categories": ["receiver_check_tests"]}


def users(folder, page=None):
    """The folders that include one, itself first: by the table of allowed includes."""
    page = page or (ROOT / "docs" / "ARCHITECTURE.md").read_text()
    table = page.split("<!-- edges:begin -->")[1].split("<!-- edges:end -->")[0]
    edges = {row[0].strip(): row[1].split() for row in re.findall(r"^\| (\S+) \|(.*?)\|$", table, re.M)}
    return [folder] + [name for name in LOGIC if name != folder and folder in edges.get(name, [])]


def programs_of(folder):
    if folder in WINDOWS:
        return WINDOWS[folder]
    programs = [f"{name}_tests" for name in users(folder)]
    return programs + [name for name in TOOLS.get(folder, []) if name not in programs]


def changed_lines(commit):
    """The lines of each file that differ from a commit."""
    said = subprocess.run(["git", "diff", "-U0", commit, "--", "src"], cwd=ROOT, check=True, capture_output=True,
                          text=True).stdout
    lines, name = collections.defaultdict(set), ""
    for line in said.splitlines():
        if line.startswith("+++ b/"):
            name = line[6:]
        found = re.match(r"@@ -\S+ \+(\d+)(?:,(\d+))? @@", line)
        if found:
            first, count = int(found.group(1)), int(found.group(2) or 1)
            lines[name].update(range(first, first + count))
    return lines


def equivalents(text=None):
    """What changes nothing: the name of a place, and why. Names in a row have their reason together."""
    text = (HERE / "equivalent.txt").read_text() if text is None else text
    found, names, told = {}, [], False
    for line in text.splitlines():
        if line.startswith("src/"):
            names = ([] if told else names) + [line]
            told = False
            found[line] = ""
        elif line.startswith("    "):
            told = True
            for name in names:
                found[name] += line[3:]
    return found


def places(folder):
    """(name, file, change) of every place of a folder."""
    for path in sorted([*(ROOT / "src" / folder).rglob("*.cpp"), *(ROOT / "src" / folder).rglob("*.h")]):
        file = str(path.relative_to(ROOT))
        for change in changes.changes(path.read_text()):
            yield f"{file}: {change.name}", file, change


class Tried:
    """What became of each place, by its name and the content of its file."""

    def __init__(self):
        self.path = ROOT / "build" / "mutants" / "tried.json"
        self.known = json.loads(self.path.read_text()) if self.path.exists() else {}

    @staticmethod
    def stamp(file):
        return hashlib.sha256((ROOT / file).read_bytes()).hexdigest()[:16]

    def outcome(self, name, file, again):
        entry = self.known.get(name)
        if not entry or (again and (entry["outcome"] == "survived" or entry["file"] != self.stamp(file))):
            return None
        return entry["outcome"]

    def note(self, name, file, outcome, by):
        self.known[name] = {"outcome": outcome, "by": by, "file": self.stamp(file)}
        self.path.parent.mkdir(parents=True, exist_ok=True)
        beside = self.path.with_suffix(".new")
        beside.write_text(json.dumps(self.known, indent=1))
        beside.rename(self.path)


def chosen(folder, wish, lines):
    found = [place for place in places(folder) if lines is None or place[2].line in lines[place[1]]]
    if wish.number is not None:
        # A larger number adds to what a smaller one chose.
        random.Random(f"{wish.seed} {folder}").shuffle(found)
        found = found[:wish.number]
    return sorted(found, key=lambda place: (place[1], place[2].start))


def try_all(folders, wish, tried, known):
    lines = changed_lines(wish.since) if wish.since else None
    work = {folder: chosen(folder, wish, lines) for folder in folders}
    untried = {folder: [place for place in work[folder] if place[0] not in known and
                        tried.outcome(place[0], place[1], wish.again) is None] for folder in folders}
    for windows in (False, True):
        wanted = [(folder, *place) for folder in folders if (folder in WINDOWS) == windows for place in untried[folder]]
        for number, (place, outcome, by) in enumerate(outcomes(wanted, windows, wish), 1):
            folder, name, file, change = place
            tried.note(name, file, outcome, by)
            print(f"{number}/{len(wanted)} {outcome:8} {file}:{change.line}: {change.name} {by}", flush=True)
    return work


def outcomes(wanted, windows, wish):
    """(place, outcome, by) of each: many are built into one program, few and what can't be chosen at run time one by one."""
    programs = {folder: programs_of(folder) + (["life_tests"] if wish.life else []) for folder, *_ in wanted}
    one_by_one = wanted
    if len(wanted) > 12:
        # All places of the folders, so that the program stays the same while more of them are tried.
        every = [(folder, *place) for folder in programs for place in places(folder)]
        needed = list(dict.fromkeys(name for names in programs.values() for name in names))
        bench = together.Together(ROOT, windows, wish.jobs)
        built = bench.build_all([place[1:] for place in every], needed)
        print(f"{len(built)} of {len(every)} places are in one program", flush=True)
        bench.learn_all(needed)
        names = {place[1] for place in wanted}
        chosen_now = {number: programs[every[number - 1][0]] for number in sorted(built) if every[number - 1][1] in names}
        for number, outcome, by in bench.outcomes(chosen_now):
            yield every[number - 1], outcome, by
        there = {every[number - 1][1] for number in chosen_now}
        one_by_one = [place for place in wanted if place[1] not in there]
    if one_by_one and not wish.together:
        bench = trial.Trial(ROOT, windows, wish.jobs)
        bench.prepare()
        for place in one_by_one:
            folder, _, file, change = place
            yield place, *bench.outcome(file, change.made((ROOT / file).read_text()), programs[folder])


def report(work, tried, known):
    print(f"\n{datetime.date.today()}\n| folder | places | tried | refused | equivalent | noticed | survived | rate |\n"
          "|---|---|---|---|---|---|---|---|")
    left = []
    for folder, found in work.items():
        outcomes = collections.Counter(
            "equivalent" if name in known else tried.outcome(name, file, False) for name, file, _ in found)
        judged = outcomes["noticed"] + outcomes["survived"]
        rate = f"{100 * outcomes['noticed'] / judged:.1f} %" if judged else "-"
        print(f"| {folder} | {sum(1 for _ in places(folder))} | {len(found)} | {outcomes['refused']} | "
              f"{outcomes['equivalent']} | {outcomes['noticed']} | {outcomes['survived']} | {rate} |")
        left += [f"{file}:{change.line}: {change.name}" for name, file, change in found
                 if name not in known and tried.outcome(name, file, False) == "survived"]
    print("\nSurvived:" if left else "\nNothing survived.")
    print("\n".join(left))
    return left


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter,
                                     usage=argparse.SUPPRESS)
    parser.add_argument("folders", nargs="*", choices=[[], *LOGIC, *WINDOWS], metavar="FOLDER", help=argparse.SUPPRESS)
    for option, kind in (("--number", int), ("--seed", int), ("--since", str), ("--jobs", int)):
        parser.add_argument(option, type=kind, help=argparse.SUPPRESS)
    for option in ("--again", "--list", "--life", "--report", "--together"):
        parser.add_argument(option, action="store_true", help=argparse.SUPPRESS)
    parser.set_defaults(seed=1, jobs=2)
    wish = parser.parse_args()
    folders, known = wish.folders or list(LOGIC), equivalents()
    if wish.list:
        lines = changed_lines(wish.since) if wish.since else None
        for folder in folders:
            for name, file, change in chosen(folder, wish, lines):
                print(f"{file}:{change.line}: {change.name}" + (" (equivalent)" if name in known else ""))
        return 0
    tried = Tried()
    if wish.report:
        work = {folder: [place for place in places(folder) if place[0] in known or place[0] in tried.known]
                for folder in folders}
    else:
        work = try_all(folders, wish, tried, known)
    return 1 if report(work, tried, known) else 0


if __name__ == "__main__":
    sys.exit(main())
