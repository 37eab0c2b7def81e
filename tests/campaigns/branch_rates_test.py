#!/usr/bin/env python3
"""What is told of the branches that the tests take, and that the list of those that stay open fits the sources."""
import pathlib
import sys
import tempfile
import unittest

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent))
import branch_rates  # noqa: E402

SOURCE = "bool F(int a) {\n    return a > 1 &&\n           a < 5;\n}\n"


def exported(path, *branches):
    """What llvm-cov exports of one function: (first line, column, last line, column, times true, times false)."""
    return {"filenames": [str(path)], "branches": [[*branch, 0, 0, 4] for branch in branches]}


class Rates(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = pathlib.Path(folder.name)
        self.path = self.root / "src" / "link" / "a.cpp"
        self.path.parent.mkdir(parents=True)
        self.path.write_text(SOURCE)

    def sides(self, *functions):
        return branch_rates.sides({"data": [{"functions": functions}]}, self.root)

    def test_each_condition_has_two_sides(self):
        taken = self.sides(exported(self.path, (2, 12, 2, 17, 3, 0), (3, 12, 3, 17, 1, 2)))
        self.assertEqual({(side.text, side.side): times for side, times in taken.items()},
                         {("a > 1", "true"): 3, ("a > 1", "false"): 0, ("a < 5", "true"): 1, ("a < 5", "false"): 2})
        self.assertEqual(branch_rates.share(taken), (3, 4))

    def test_a_condition_of_several_lines_is_told_in_one(self):
        side, _ = self.sides(exported(self.path, (2, 12, 3, 17, 0, 0)))
        self.assertEqual((side.line, side.text), (2, "a > 1 && a < 5"))

    def test_instances_of_a_template_count_together(self):
        taken = self.sides(exported(self.path, (2, 12, 2, 17, 3, 0)), exported(self.path, (2, 12, 2, 17, 0, 4)))
        self.assertEqual(branch_rates.share(taken), (2, 2))

    def test_sources_of_others_do_not_count(self):
        self.assertEqual(self.sides(exported("/usr/include/c++/12/vector", (2, 12, 2, 17, 3, 0))), {})

    def test_a_folder_below_the_wished_share_is_told(self):
        taken = self.sides(exported(self.path, (2, 12, 2, 17, 3, 0)))
        lines, low = branch_rates.report("link", taken, {})
        self.assertTrue(low)
        self.assertEqual(lines[0], "src/link/a.cpp:2: never false: a > 1")
        self.assertIn("1 of     2   50.0 %", lines[-1])

    def test_what_is_listed_does_not_count(self):
        taken = self.sides(exported(self.path, (2, 12, 2, 17, 3, 0)))
        lines, low = branch_rates.report("link", taken, {("src/link/a.cpp", "false", "a > 1"): "Why."})
        self.assertFalse(low)
        self.assertIn("1 left out", lines[-1])
        self.assertIn("100.0 %", lines[-1])

    def test_a_folder_that_nobody_knows_has_no_branches(self):
        self.assertIn("0 of     0", branch_rates.report("core", self.sides(), {})[0][-1])

    def test_a_source_that_no_program_has_is_told(self):
        program = {"data": [{"functions": [exported(self.path)]}]}
        self.assertEqual(branch_rates.unseen("link", program, self.root), [])
        (self.path.parent / "b.cpp").write_text(SOURCE)
        self.assertEqual(branch_rates.unseen("link", program, self.root), ["src/link/b.cpp"])

    def test_an_entry_whose_side_was_taken_is_needless(self):
        taken = self.sides(exported(self.path, (2, 12, 2, 17, 3, 0)))
        open_side, taken_side = ("src/link/a.cpp", "false", "a > 1"), ("src/link/a.cpp", "true", "a > 1")
        self.assertEqual(branch_rates.needless(["link"], taken, {open_side: "", taken_side: ""}), [taken_side])
        self.assertEqual(branch_rates.needless(["core"], taken, {taken_side: ""}), [])


class List(unittest.TestCase):
    def test_reasons_are_read_line_by_line(self):
        self.assertEqual(branch_rates.listed("# x\n\nsrc/a.cpp: true: b: c\n    One\n    two.\nsrc/d.h: false: e\n    Three.\n"),
                         {("src/a.cpp", "true", "b: c"): "One two.", ("src/d.h", "false", "e"): "Three."})

    def test_every_entry_stands_in_its_file_and_has_a_reason(self):
        path = branch_rates.ROOT / "tests" / "campaigns" / "open-branches.txt"
        for (file, side, text), reason in branch_rates.listed(path.read_text()).items():
            source = " ".join((branch_rates.ROOT / file).read_text().split())
            self.assertIn(text, source)
            self.assertGreater(len(reason.split()), 4, f"{file}: {side}: {text}")


if __name__ == "__main__":
    unittest.main()
