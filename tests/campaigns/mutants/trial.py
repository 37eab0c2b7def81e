"""A copy of the sources in which one change at a time is built and tested."""
import os
import pathlib
import re
import shutil
import subprocess
import time

# What a compiler tells of a source that nobody would write so. It is not what notices.
QUIET = "".join(f'#pragma GCC diagnostic ignored "-W{name}"\n' for name in (
    "parentheses", "type-limits", "unused-variable", "unused-but-set-variable", "unused-parameter", "unused-function",
    "conversion", "sign-conversion", "sign-compare", "empty-body", "return-type", "implicit-fallthrough", "pedantic",
    "overflow", "bool-compare", "int-in-bool-context", "array-bounds", "maybe-uninitialized"))


def first_failure(done):
    """Which test of a program that has ended failed first."""
    names = re.findall(r"\[  FAILED  \] ([\w/]+\.[\w/]+)", done.stdout)
    return names[0] if names else f"ended with {done.returncode}"


class Trial:
    """Builds and runs in a copy of its own, so that a campaign that is cut off leaves nothing broken."""

    def __init__(self, root, windows=False, jobs=2):
        self.root, self.windows, self.jobs = root, windows, jobs
        self.copy = root / "build" / "mutants" / "source"
        self.build = self.copy / "build" / ("windows" if windows else "dev")
        self.flags = []
        self.limits = {}
        self.environment = {**os.environ, "TZ": "Europe/Stockholm", "LC_ALL": "C.UTF-8",
                            "CCACHE_BASEDIR": str(self.copy), "CCACHE_NOHASHDIR": "1"}

    def refresh(self):
        """Brings the copy to what the sources are now; what is the same keeps its time and is not built again."""
        listed = subprocess.run(["git", "ls-files", "-co", "--exclude-standard", "-z"], cwd=self.root, check=True,
                                capture_output=True, text=True).stdout.split("\0")
        wanted = {name for name in listed if name and (self.root / name).is_file()}
        for path in [path for path in self.copy.rglob("*") if path.is_file() or path.is_symlink()]:
            name = path.relative_to(self.copy)
            if name.parts[0] != "build" and str(name) not in wanted:
                path.unlink()
        for name in wanted:
            source, target = self.root / name, self.copy / name
            if not target.is_file() or target.read_bytes() != source.read_bytes():
                target.parent.mkdir(parents=True, exist_ok=True)
                shutil.copyfile(source, target)
                shutil.copymode(source, target)

    def prepare(self):
        """Brings copy and build folder up to date, and sets what an interrupted campaign left broken right."""
        self.refresh()
        launcher = "-DCMAKE_CXX_COMPILER_LAUNCHER=" + ("ccache" if shutil.which("ccache") else "")
        linker = "-DCMAKE_EXE_LINKER_FLAGS=" + ("-fuse-ld=lld" if shutil.which("ld.lld") else "")
        windows = "-DVIGREL_WITH_QT=" + ("ON" if self.windows else "OFF")
        self.must(["cmake", "--preset", "dev", "-B", self.build, windows, launcher, linker, *self.flags,
                   "-DCMAKE_GTEST_DISCOVER_TESTS_DISCOVERY_MODE=PRE_TEST"])

    def learn(self, program):
        """Builds and runs a program whole, so that it is known to pass, and in what time."""
        self.must(["ninja", "-C", self.build, f"-j{self.jobs}", program])
        begun = time.monotonic()
        failed = self.run(program, 600)
        if failed:
            raise SystemExit(f"mutants: {program} fails without a change: {failed}")
        self.limits[program] = 10 + 5 * (time.monotonic() - begun)

    def must(self, command):
        done = subprocess.run([str(word) for word in command], cwd=self.copy, env=self.environment,
                              capture_output=True, text=True)
        if done.returncode != 0:
            raise SystemExit(f"mutants: {' '.join(map(str, command))} failed:\n{done.stdout[-3000:]}{done.stderr[-3000:]}")

    def run(self, program, seconds):
        """What failed first; empty when nothing did."""
        command = [self.build / "bin" / program, "--gtest_brief=1", "--gtest_fail_fast"]
        try:
            done = subprocess.run(command, cwd=self.build, env=self.environment, timeout=seconds,
                                  stdout=subprocess.PIPE, stderr=subprocess.STDOUT, errors="replace")
        except subprocess.TimeoutExpired:
            return f"{program}: too slow"
        if done.returncode == 0:
            return ""
        return f"{program}: {first_failure(done)}"

    def built(self, program):
        """Whether the program could be built. The log tells why not."""
        done = subprocess.run(["ninja", "-C", self.build, f"-j{self.jobs}", program], env=self.environment,
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT, errors="replace")
        self.log = done.stdout
        return done.returncode == 0

    def outcome(self, name, text, programs):
        """What becomes of the file of that name when it holds that text: "refused" by the compiler, "noticed" by a test, or
        "survived"; and by which test."""
        target = self.copy / name
        whole, broken = target.read_bytes(), QUIET.encode() + text.encode(errors="surrogateescape")
        try:
            for program in programs:
                if program not in self.limits:
                    target.write_bytes(whole)
                    self.learn(program)
                if target.read_bytes() != broken:
                    target.write_bytes(broken)
                if not self.built(program):
                    return "refused", ""
                failed = self.run(program, self.limits[program])
                if failed:
                    return "noticed", failed
            return "survived", ""
        finally:
            target.write_bytes(whole)
