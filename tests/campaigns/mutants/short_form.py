#!/usr/bin/env python3
"""The short form of the campaign of mutants, for every test run: what it makes of a small source, that its lists fit the
sources as they are, and one change that a real compiler and a real test see."""
import pathlib
import subprocess
import sys
import tempfile
import unittest
import unittest.mock

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent))
import changes  # noqa: E402
import mutants  # noqa: E402
import together  # noqa: E402
import trial  # noqa: E402


def made(source):
    """What the changes of a source are called, in order."""
    return [change.name for change in changes.changes(source)]


def inside(*lines):
    """A function with these lines."""
    return "void F() {\n" + "\n".join("    " + line for line in lines) + "\n}\n"


class Places(unittest.TestCase):
    def test_a_comparison_is_turned_and_moved_to_its_boundary(self):
        self.assertEqual(made(inside("return a < b;")), ["boundary: return a [< -> <=] b;", "comparison: return a [< -> >=] b;"])
        self.assertEqual(made(inside("return a == b;")), ["comparison: return a [== -> !=] b;"])

    def test_templates_and_references_are_no_comparisons(self):
        self.assertEqual(made("std::vector<int> F(const T& a, T&& b);\n"), [])
        self.assertEqual(made("template <class T>\nT F();\n"), [])

    def test_conditions_are_joined_the_other_way(self):
        self.assertEqual(made(inside("return a && b;")), ["logic: return a [&& -> ||] b;"])

    def test_a_guard_is_taken_out(self):
        self.assertEqual(made(inside("if (a) return;")),
                         ["negation: if ([a -> not]) return;", "guard: if ([a -> false]) return;"])

    def test_a_condition_that_leads_on_is_met_always_too(self):
        self.assertEqual(made(inside("if (a) b = c;")),
                         ["negation: if ([a -> not]) b = c;", "guard: if ([a -> false]) b = c;",
                          "guard: if ([a -> true]) b = c;", "assignment: if (a) [b = c; -> ]"])

    def test_a_condition_that_names_a_value_is_left_alone(self):
        self.assertEqual(made(inside("if (const auto a = B()) return;")), [])

    def test_a_not_is_taken_out(self):
        self.assertEqual(made(inside("return !a;")), ["negation: return [! -> ]a;"])

    def test_numbers_grow_and_a_one_shrinks(self):
        self.assertEqual(made(inside("return a[1];")), ["constant: return a[[1 -> 0]];", "constant: return a[[1 -> 2]];"])
        self.assertEqual(made("constexpr int kA = 0x1F;\n"), ["default: constexpr int kA = [0x1F -> 0x20];"])
        self.assertEqual(made("constexpr double kA = 1'000.5;\n"), ["default: constexpr double kA = [1'000.5 -> 1001.5];"])

    def test_a_pure_method_stays_pure(self):
        self.assertEqual(made("struct cA {\n    virtual int B() const = 0;\n    virtual void C() = 0;\n};\n"), [])

    def test_a_default_is_told_from_a_constant(self):
        self.assertEqual(made("struct cA {\n    bool m_B = true;\n};\n"), ["default: bool m_B = [true -> false];"])
        self.assertEqual(made(inside("b = true;")), ["assignment: [b = true; -> ]", "constant: b = [true -> false];"])

    def test_a_call_is_left_out_and_a_declaration_is_not(self):
        self.assertEqual(made(inside("m_B.C(d);")), ["call: [m_B.C(d); -> ]"])
        self.assertEqual(made(inside("const int b = C();", "cD d(b);")), [])

    def test_a_statement_that_is_left_out_is_still_compiled(self):
        change, = changes.changes(inside("B(c);"))
        self.assertIn("{ if (false) B(c); }", change.made(inside("B(c);")))

    def test_statements_change_places_where_the_order_can_count(self):
        names = made(inside("B();", "c = d;", "e = f;", "g = e;"))
        self.assertEqual([name for name in names if name.startswith("order")],
                         ["order: [B(); c = d; -> c = d; B();]", "order: [e = f; g = e; -> g = e; e = f;]"])
        self.assertIn("order: [a = file.B(); c = file.D(); -> c = file.D(); a = file.B();]",
                      made(inside("a = file.B();", "c = file.D();")))

    def test_a_jump_and_a_bound_are_the_other_one(self):
        self.assertEqual(made(inside("continue;")), ["jump: [continue -> break];"])
        self.assertEqual(made(inside("return std::max(a, b);")), ["bound: return std::[max -> min](a, b);"])

    def test_the_values_of_a_choice_are_exchanged(self):
        self.assertEqual(made(inside("return a ? b : c;")), ["negation: return a ? [b : c -> c : b];"])

    def test_what_is_no_code_is_left_alone(self):
        self.assertEqual(made('#include "a < b"\n// a == 1\n/* a == 1\n a == 1 */\nstatic_assert(1 == 1);\n#if A == 1 && \\\n B == 1\n#endif\n'), [])
        self.assertEqual(made(inside('return "a == 1" R"(1 < 2)";', "return '1';")), [])

    def test_a_lambda_has_statements_of_its_own(self):
        self.assertEqual(made(inside("A([&] { b.C(); });")), ["call: [A([&] { b.C(); }); -> ]", "call: A([&] { [b.C(); -> ] });"])

    def test_a_name_stays_when_lines_move_and_two_of_one_name_are_told_apart(self):
        self.assertEqual(made("\n\n" + inside("return !a;")), made(inside("return !a;")))
        self.assertEqual(made(inside("return !a;", "return !a;"))[1], "negation: return [! -> ]a; #2")


class Lists(unittest.TestCase):
    def test_every_change_that_is_said_to_be_equivalent_is_there_and_has_a_reason(self):
        names = {name for folder in (*mutants.LOGIC, *mutants.WINDOWS) for name, _, _ in mutants.places(folder)}
        for name, reason in mutants.equivalents().items():
            self.assertIn(name, names)
            self.assertGreater(len(reason.split()), 2, name)

    def test_reasons_are_read_line_by_line(self):
        self.assertEqual(mutants.equivalents("# x\n\nsrc/a: b\n    One\n    two.\n\nsrc/c: d\nsrc/e: f\n    Three.\n"),
                         {"src/a: b": " One two.", "src/c: d": " Three.", "src/e: f": " Three."})

    def test_the_folders_that_use_one_stand_in_the_table(self):
        self.assertEqual(mutants.users("link"), ["link", "core"])
        self.assertEqual(mutants.users("schedule"), ["schedule", "definitions"])
        self.assertEqual(mutants.programs_of("link"), ["link_tests", "core_tests"])

    def test_windows_are_found_in_folders_of_folders_and_tested_by_their_own_programs(self):
        self.assertIn("src/receiver_ui/popups/popup_stack.cpp", {file for _, file, _ in mutants.places("receiver_ui")})
        self.assertEqual(mutants.programs_of("receiver_ui"), ["receiver_ui_tests", "x11_tests", "tray_bus_tests"])

    def test_places_are_chosen_alike_for_a_seed(self):
        wish = type("Wish", (), {"number": 5, "seed": 3})
        first = mutants.chosen("link", wish, None)
        self.assertEqual(len(first), 5)
        more = type("Wish", (), {"number": 9, "seed": 3})
        self.assertLess({name for name, _, _ in first}, {name for name, _, _ in mutants.chosen("link", more, None)})


class Trials(unittest.TestCase):
    """A project of one source and one test program, of plain files: what a change comes to."""

    SOURCE = inside("return;").replace("void F() {", "bool IsBelow(int a, int b) {").replace("return;", "return a < b;")
    TEST = 'bool IsBelow(int, int);\nint main() { return IsBelow(1, 2) && !IsBelow(2, 1) ? 0 : 1; }\n'
    NINJA = ("rule link\n  command = c++ -O0 -Werror -Wall $in -o $out\n"
             "build tests: phony bin/tests\nbuild bin/tests: link ../../src/a.cpp ../../src/test.cpp\n")

    def test_a_turned_comparison_is_noticed_and_a_boundary_survives(self):
        with tempfile.TemporaryDirectory() as folder:
            bench = trial.Trial(pathlib.Path(folder))
            (bench.copy / "src").mkdir(parents=True)
            bench.build.mkdir(parents=True)
            (bench.copy / "src" / "a.cpp").write_text(self.SOURCE)
            (bench.copy / "src" / "test.cpp").write_text(self.TEST)
            (bench.build / "build.ninja").write_text(self.NINJA)
            bench.limits["tests"] = 20
            outcomes = {change.kind: bench.outcome("src/a.cpp", change.made(self.SOURCE), ["tests"])[0]
                        for change in changes.changes(self.SOURCE)}
            self.assertEqual(outcomes, {"boundary": "survived", "comparison": "noticed"})
            self.assertEqual(bench.outcome("src/a.cpp", "nothing", ["tests"])[0], "refused")
            self.assertEqual((bench.copy / "src" / "a.cpp").read_text(), self.SOURCE)


class AllInOneProgram(unittest.TestCase):
    """A project of one source and one test program, whose changes are built together."""

    SOURCE = ("constexpr int kLimit = 3;\nconstexpr int kSize = 2;\nint room[kSize];\n"
              "constexpr bool IsOdd(int a) {\n    return a == 1;\n}\n"
              "bool IsBelow(int a, int b) {\n    return a < b;\n}\n"
              "int Limited(int a) {\n    if (a > kLimit) a = kLimit;\n    return a;\n}\n"
              "int Unused(int a) {\n    return -a - 5;\n}\n")
    TEST = ('#include <gtest/gtest.h>\nbool IsBelow(int, int);\nint Limited(int);\n'
            'TEST(A, IsBelow) { EXPECT_TRUE(IsBelow(1, 2)); EXPECT_FALSE(IsBelow(2, 1)); }\n'
            'TEST(A, Limits) { EXPECT_EQ(Limited(9), 3); EXPECT_EQ(Limited(1), 1); }\n')
    NINJA = ("rule link\n  command = c++ -O0 -w $in -o $out -lgtest -lgtest_main -lpthread\n"
             "build tests: phony bin/tests\nbuild bin/tests: link ../../src/a.cpp ../../src/test.cpp\n")

    def test_each_is_chosen_alone_and_what_has_to_be_a_constant_is_left_out(self):
        with tempfile.TemporaryDirectory() as folder:
            bench = together.Together(pathlib.Path(folder))
            bench.prepare = lambda: None
            for where in (bench.root, bench.copy):
                (where / "src").mkdir(parents=True)
                (where / "src" / "a.cpp").write_text(self.SOURCE)
                (where / "src" / "test.cpp").write_text(self.TEST)
            bench.build.mkdir(parents=True)
            (bench.build / "build.ninja").write_text(self.NINJA)
            places = [(change.name, "src/a.cpp", change) for change in changes.changes(self.SOURCE)]
            built = bench.build_all(places, ["tests"])
            left_out = [name for number, (name, *_) in enumerate(places, 1) if number not in built]
            self.assertEqual(left_out, ["default: constexpr int kSize = [2 -> 3];", "comparison: return a [== -> !=] 1;",
                                        "constant: return a == [1 -> 0];", "constant: return a == [1 -> 2];"])
            bench.learn_all(["tests"])
            found = {places[number - 1][0]: (outcome, by)
                     for number, outcome, by in bench.outcomes(dict.fromkeys(built, ["tests"]))}
            below, limits = ("noticed", "tests: A.IsBelow"), ("noticed", "tests: A.Limits")
            self.assertEqual(found["comparison: return a [< -> >=] b;"], below)
            self.assertEqual(found["boundary: return a [< -> <=] b;"], ("survived", ""))
            self.assertEqual(found["default: constexpr int kLimit = [3 -> 4];"], limits)
            self.assertEqual(found["guard: if ([a > kLimit -> true]) a = kLimit;"], limits)
            self.assertEqual(found["boundary: if (a [> -> >=] kLimit) a = kLimit;"], ("survived", ""))
            self.assertEqual(found["constant: return -a - [5 -> 6];"], ("survived", ""))
            self.assertEqual(bench.tests["tests", "A.IsBelow"][1] & bench.tests["tests", "A.Limits"][1], set())
            with unittest.mock.patch("together.SLOW", -1):
                bench.learn_all(["tests"])
            self.assertEqual(bench.tests, {}, "what takes too long is left out")


class Help(unittest.TestCase):
    def test_tells_every_option(self):
        said = subprocess.run([sys.executable, str(mutants.HERE / "mutants.py"), "--help"], check=True,
                              capture_output=True, text=True).stdout
        for option in ("--number", "--seed", "--since", "--again", "--life", "--list", "--report", "--together", "--jobs"):
            self.assertIn(option, said)


if __name__ == "__main__":
    unittest.main()
