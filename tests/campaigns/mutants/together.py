"""Many changes of a folder in one program: a variable of the environment chooses the one that is broken.

A function that has changes holds itself once whole and once for each of them. What a change costs is then no compilation
but the tests that come by its function, the quick ones first; which do is learnt before, by running each alone.
"""
import collections
import concurrent.futures
import hashlib
import json
import re
import subprocess
import tempfile
import threading
import time

import changes
import trial

SWITCH = """#ifndef VIGREL_MUTANTS
#define VIGREL_MUTANTS
#include <cstdlib>
#include <fcntl.h>
#include <sys/mman.h>
namespace vigrelMutants {
inline int Chosen() {
    static const int chosen = std::getenv("VIGREL_MUTANT") ? std::atoi(std::getenv("VIGREL_MUTANT")) : 0;
    return chosen;
}
inline unsigned char* Marks() {
    static unsigned char* const marks = [] {
        const char* const name = std::getenv("VIGREL_MUTANT_MARKS");
        const int file = name ? ::open(name, O_RDWR | O_CLOEXEC) : -1;
        void* const at = file < 0 ? MAP_FAILED : ::mmap(nullptr, 1 << 16, PROT_WRITE, MAP_SHARED, file, 0);
        return at == MAP_FAILED ? nullptr : static_cast<unsigned char*>(at);
    }();
    return marks;
}
inline int At(int function) {
    if (unsigned char* const marks = Marks()) marks[function] = 1;
    return Chosen();
}
}
#endif
"""
MARKS = 1 << 16
# What survives faces every test that comes by; one of a minute would make a campaign of a thousand last a day.
SLOW = 10
ERROR = re.compile(r"^\S*?(src/[^:\s]+):(\d+):\d+: (?:fatal )?error: ", re.M)
# What a compiler shows of a source, and the names that it quotes.
SHOWN = re.compile(r"^ +\d+ \| .*$|\W'[^']+'|‘[^’]+’", re.M)
# A constant that is to differ from run to run is none for the compiler.
CONSTANT = re.compile(r"\b(?:(static)|inline)?\s*constexpr\b")


class Places:
    """The changes of one file, each with a number, in the functions that hold them or beside these."""

    def __init__(self, source, numbered):
        self.source = source
        code = changes.blanked(source)
        _, bodies = changes.statements(code)
        outer, last = [], -1
        for opened, closed in sorted(bodies):
            if opened > last:
                outer.append((opened, closed))
                last = closed
        self.inside, self.beside = collections.defaultdict(list), collections.defaultdict(list)
        self.left = set()
        for number, change in numbered:
            body = next((body for body in outer if body[0] < change.start and change.end <= body[1]), None)
            if body:
                self.inside[body].append((number, change))
            elif re.fullmatch(r"true|false|[\d'.]+|0x[\dA-Fa-f']+", source[change.start:change.end]):
                self.beside[(change.start, change.end)].append((number, change))
            else:
                self.left.add(number)
        self.code = code

    def text(self, dropped, first_function):
        """The file with all that is not dropped, which changes stand on which line of it, and the functions' numbers."""
        pieces, replaced = [], []
        functions, number = {}, first_function
        for (start, end), found in self.beside.items():
            found = [(which, change) for which, change in found if which not in dropped]
            if not found:
                continue
            choice = "".join(f"vigrelMutants::Chosen() == {which} ? {change.text} : " for which, change in found)
            replaced.append((start, end, f"({choice}{self.source[start:end]})", {which for which, _ in found}))
            constant = None
            for constant in CONSTANT.finditer(self.code, self.code.rfind(";", 0, start) + 1, start):
                pass
            if constant and not any(piece[0] == constant.start() for piece in replaced):
                word = "static inline const" if constant.group(1) else "inline const"
                replaced.append((*constant.span(), word, set()))
        for (opened, closed), found in self.inside.items():
            found = [(which, change) for which, change in found if which not in dropped]
            if not found:
                continue
            for which, _ in found:
                functions[which] = number
            replaced.append((opened + 1, opened + 1, f" switch (vigrelMutants::At({number})) {{\n",
                             {which for which, _ in found}))
            for which, change in found:
                body = self.source[opened:change.start] + change.text + self.source[change.end:closed + 1]
                replaced.append((opened + 1, opened + 1, f"case {which}: {body} break;\n", {which}))
            replaced.append((opened + 1, opened + 1, "default: {\n", {which for which, _ in found}))
            replaced.append((closed, closed, "} }", {which for which, _ in found}))
            number += 1
        position = 0
        for start, end, text, whose in sorted(replaced, key=lambda piece: piece[0]):
            pieces += [(self.source[position:start], set()), (text, whose)]
            position = end
        pieces.append((self.source[position:], set()))
        whole, lines = SWITCH, collections.defaultdict(set)
        line = whole.count("\n") + 1
        for text, whose in pieces:
            for offset in range(text.count("\n") + 1):
                if whose and (offset == 0 or text.split("\n")[offset].strip()):
                    lines[line + offset] |= whose
            line += text.count("\n")
            whole += text
        return whole, lines, functions, number

    def declared(self, number):
        """The name that a change beside the functions gives another value."""
        for (start, _), found in self.beside.items():
            if any(which == number for which, _ in found):
                begin = self.code.rfind(";", 0, start) + 1
                names = re.findall(r"\b(\w+)\s*(?:\[[^\]]*\])?\s*[={(]", self.code[begin:start])
                return names[0] if names else ""
        return ""


class Together(trial.Trial):
    """Builds all changes of a folder at once, in a copy of its own."""

    def __init__(self, root, windows=False, jobs=2):
        super().__init__(root, windows, jobs)
        self.copy = root / "build" / "mutants" / "together"
        self.build = self.copy / "build" / ("windows" if windows else "dev")
        self.flags = ["-DCMAKE_CXX_FLAGS_DEBUG=-O0", "-DCMAKE_CXX_FLAGS=-w", "-DVIGREL_WERROR=OFF"]

    def build_all(self, places, programs):
        """Builds the programs with all places (name, file, change), and says by number which are in it."""
        self.prepare()
        files = collections.defaultdict(list)
        for number, (_, file, change) in enumerate(places, 1):
            files[file].append((number, change))
        held = {file: Places((self.root / file).read_text(), numbered) for file, numbered in files.items()}
        # What can't be built together is known from the last time, as long as all is as it was.
        known = self.copy.parent / "together.json"
        stamp = hashlib.sha256("".join([SWITCH, *files, *(name for name, *_ in places)]).encode()).hexdigest()
        kept = json.loads(known.read_text()) if known.exists() else {}
        dropped = set().union(*(one.left for one in held.values()), kept.get(stamp, []))
        targets, rounds = self.libraries() or programs, 0
        while True:
            lines, self.functions, first = {}, {}, 0
            for file, one in held.items():
                text, lines[file], functions, first = one.text(dropped, first)
                self.functions |= functions
                if (self.copy / file).read_text() != text:
                    (self.copy / file).write_text(text)
            if first >= MARKS:
                raise SystemExit("mutants: too many functions for one program")
            done = subprocess.run(["ninja", "-C", self.build, f"-j{self.jobs}", "-k0", *targets], env=self.environment,
                                  stdout=subprocess.PIPE, stderr=subprocess.STDOUT, errors="replace")
            if done.returncode == 0 and targets == programs:
                break
            if done.returncode == 0:
                targets = programs
                continue
            guilty = set()
            for file, line in ERROR.findall(done.stdout):
                guilty |= lines.get(file, {}).get(int(line), set())
            guilty -= dropped
            rounds += 1
            if not guilty or rounds > 9:
                # A constant that has to be one elsewhere. After a few are found, all that are left are taken for such.
                beside = {which for one in held.values() for found in one.beside.values() for which, _ in found} - dropped
                named = set(re.findall(r"\w+", " ".join(SHOWN.findall(done.stdout))))
                by_name = {which for which in beside for one in held.values() if one.declared(which) in named}
                guilty |= by_name if by_name and rounds < 9 else beside
            if not guilty:
                raise SystemExit("mutants: can't be built together:\n" + "\n".join(re.findall(r".*error: .*", done.stdout)[:20]))
            dropped |= guilty
            print(f"{len(dropped)} of {len(places)} can't be chosen at run time", flush=True)
        known.write_text(json.dumps({stamp: sorted(dropped)}))
        return set(range(1, len(places) + 1)) - dropped

    def libraries(self):
        """What the sources come to without tests. What is no constant any more shows there, before all tests are compiled."""
        said = subprocess.run(["ninja", "-C", self.build, "-t", "targets", "all"], env=self.environment, check=True,
                              capture_output=True, text=True).stdout
        return re.findall(r"^(src/\S+\.a):", said, re.M)

    def started(self, program, names, seconds, **more):
        """What these tests said, or None when they took too long."""
        command = ["prlimit", "--core=0", f"--as={8 << 30}", self.build / "bin" / program, "--gtest_brief=1", "--gtest_fail_fast", "--gtest_filter=" + ":".join(names)]
        try:
            return subprocess.run(command, cwd=self.build, env={**self.environment, **more}, timeout=seconds,
                                  stdout=subprocess.PIPE, stderr=subprocess.STDOUT, errors="replace")
        except subprocess.TimeoutExpired:
            return None

    def learn_all(self, programs):
        """Runs each test alone: what functions it comes by, and how long it takes."""
        self.tests = {}
        keep = threading.local()

        def one(entry):
            program, name = entry
            if not hasattr(keep, "marks"):
                keep.marks = tempfile.NamedTemporaryFile(prefix="mutants-")
            keep.marks.seek(0)
            keep.marks.write(bytes(MARKS))
            keep.marks.flush()
            begun = time.monotonic()
            done = self.started(program, [name], 600, VIGREL_MUTANT_MARKS=keep.marks.name)
            seconds = time.monotonic() - begun
            keep.marks.seek(0)
            marked = {at for at, byte in enumerate(keep.marks.read()) if byte}
            return entry, seconds, marked, done is not None and done.returncode == 0
        entries = [(program, name) for program in programs for name in self.listed(program)]
        failed, slow = [], []
        with concurrent.futures.ThreadPoolExecutor(self.jobs) as pool:
            for entry, seconds, marked, passed in pool.map(one, entries):
                if not passed:
                    failed.append("/".join(entry))
                elif seconds > SLOW:
                    slow.append("/".join(entry))
                else:
                    self.tests[entry] = (seconds, marked)
        # What a program takes to start is not the tests' time.
        start = min((seconds for seconds, _ in self.tests.values()), default=0)
        self.tests = {entry: (seconds - start, marked) for entry, (seconds, marked) in self.tests.items()}
        if failed:
            print(f"left out, since they fail without a change: {', '.join(failed)}", flush=True)
        if slow:
            print(f"left out, since they take more than {SLOW} s alone: {', '.join(slow)}", flush=True)
        if len(failed) > 10:
            raise SystemExit("mutants: too many tests fail without a change")

    def listed(self, program):
        said = subprocess.run([self.build / "bin" / program, "--gtest_list_tests"], cwd=self.build, env=self.environment,
                              check=True, capture_output=True, text=True, errors="replace").stdout
        suite, names = "", []
        for line in said.splitlines():
            word = line.split("#")[0].rstrip()
            if line.startswith("  "):
                names.append(suite + word.strip())
            elif word.endswith("."):
                suite = word
        return names

    def verdict(self, number, programs):
        """"noticed" by a test, and by which, or "survived"."""
        function = self.functions.get(number)
        for program in programs:
            found = sorted((seconds, name) for (where, name), (seconds, marked) in self.tests.items()
                           if where == program and (function is None or function in marked))
            # The quick ones first; no command line gets too long.
            ends = [0, *(end for end in (8, 64, 400) if end < len(found)), len(found)]
            ends += range(ends[-2] + 800, len(found), 800) if len(found) > 1200 else []
            for begin, end in zip(sorted(ends), sorted(ends)[1:]):
                part = found[begin:end]
                limit = 10 + 5 * sum(seconds for seconds, _ in part)
                done = self.started(program, [name for _, name in part], limit, VIGREL_MUTANT=str(number))
                if done is None:
                    return "noticed", f"{program}: too slow"
                if done.returncode != 0:
                    return "noticed", f"{program}: {trial.first_failure(done)}"
        return "survived", ""

    def outcomes(self, programs):
        """(number, outcome, by) of each number whose programs are given, as they come."""
        with concurrent.futures.ThreadPoolExecutor(self.jobs) as pool:
            tasks = {pool.submit(self.verdict, number, names): number for number, names in programs.items()}
            for task in concurrent.futures.as_completed(tasks):
                yield tasks[task], *task.result()
