#!/usr/bin/env python3
"""What tools/mutants changes in a source, and what it leaves alone.

    changes_test.py SOURCE_DIR
"""
import sys
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
ROOT = Path(sys.argv.pop(1)).resolve()
sys.path.insert(0, str(ROOT / "tools" / "mutants"))

import changes
from listed import Listed

FUNCTION = "namespace a {{\nint F(int x) {{\n  {}\n  return x;\n}}\n}}\n"


def of(text, path="core/a.cpp"):
    return list(changes.find(path, text))


def lines_after(statement):
    """The changed forms of a line in a function, unordered."""
    text = FUNCTION.format(statement)
    return {change.after for change in of(text) if change.line == 3}


class Operators(unittest.TestCase):
    def test_a_comparison_is_shifted_and_turned(self):
        self.assertEqual({"a = x <= y;", "a = x >= y;", ";"}, lines_after("a = x < y;"))

    def test_and_becomes_or(self):
        self.assertIn("a = x || y;", lines_after("a = x && y;"))

    def test_a_sum_becomes_a_difference(self):
        self.assertIn("a = x - y;", lines_after("a = x + y;"))

    def test_signs_of_one_operand_are_dropped(self):
        self.assertIn("a = y;", lines_after("a = !y;"))
        self.assertIn("a = y;", lines_after("a = -y;"))

    def test_template_arguments_pointers_and_references_stay(self):
        self.assertEqual(set(), lines_after("const QList<int*>& b = c;"))
        self.assertEqual(set(), lines_after("auto&& b = std::vector<int>();"))

    def test_a_name_of_an_operator_stays(self):
        self.assertEqual([], of("struct A {\n  bool operator==(const A& other) const;\n};\n"))


class Constants(unittest.TestCase):
    def test_an_integer_gets_its_neighbours(self):
        self.assertEqual({"const int a = 9;", "const int a = 7;"}, lines_after("const int a = 8;"))

    def test_zero_becomes_one(self):
        self.assertEqual({"const int a = 1;"}, lines_after("const int a = 0;"))

    def test_a_fraction_becomes_one_more(self):
        self.assertEqual({"const double a = 1.5;"}, lines_after("const double a = 0.5;"))

    def test_truth_is_turned(self):
        self.assertEqual({"const bool a = false;"}, lines_after("const bool a = true;"))

    def test_a_pure_function_stays_pure(self):
        self.assertEqual([], of("struct A {\n  virtual void F() const = 0;\n};\n"))


class Statements(unittest.TestCase):
    def test_a_call_is_deleted(self):
        self.assertEqual({";"}, lines_after("Call(x);"))

    def test_declarations_stay(self):
        for statement in ("int y;", "ConfigKey key = Make(x);", "auto* p = q;", "const QPoint c(x, x);", "A::B c(x);",
                          "QList<int> d;"):
            self.assertNotIn(";", lines_after(statement), statement)

    def test_an_early_return_is_deleted_or_runs_on(self):
        self.assertEqual({"if (a) ;", "if (a) Call(x);", "if (!(a)) return Call(x);"},
                         lines_after("if (a) return Call(x);"))

    def test_the_result_of_a_function_stays(self):
        self.assertEqual([], of("int F() {\n  return Call();\n}\n"))

    def test_parts_of_a_loop_are_no_statements(self):
        after = {change.after for change in of(FUNCTION.format("for (i = a; i < b; ++i) Call(i);")) if change.line == 3}
        self.assertEqual({"for (i = a; i <= b; ++i) Call(i);", "for (i = a; i >= b; ++i) Call(i);",
                          "for (i = a; i < b; --i) Call(i);", "for (i = a; i < b; ++i) ;"}, after)

    def test_a_statement_of_several_lines_is_told_in_one(self):
        [deleted] = [change for change in of(FUNCTION.format("Call(x,\n       y);")) if change.line == 3]
        self.assertEqual(("Call(x, y);", ";"), (deleted.before, deleted.after))

    def test_a_function_inside_a_call_has_statements(self):
        self.assertIn("connect(a, [this] { ; });", lines_after("connect(a, [this] { Call(); });"))

    def test_a_constructor_behind_its_initialisers(self):
        after = {change.after for change in of("A::A() : b_(c), d_{e} {\n  Call();\n}\n")}
        self.assertEqual({";"}, after)


class Conditions(unittest.TestCase):
    def test_a_condition_is_negated(self):
        self.assertIn("if (!(a && b)) Call();", lines_after("if (a && b) Call();"))

    def test_one_that_another_sign_negates_is_not_changed_twice(self):
        self.assertEqual({"if (a) Call();", "if (!a) ;"}, lines_after("if (!a) Call();"))

    def test_the_declaration_in_a_condition_stays(self):
        self.assertEqual({"if (auto* a = b) ;"}, lines_after("if (auto* a = b) Call();"))
        self.assertIn("if (auto* a = b; !(a)) Call();", lines_after("if (auto* a = b; a) Call();"))


class TextsAndComments(unittest.TestCase):
    def test_they_stay(self):
        self.assertEqual(set(), lines_after('const char* a = "1 + 2";  // 3 < 4'))
        self.assertEqual([], of("#define A 1 + \\\n  2\n/* 3\n * 4 */\n"))


class Positions(unittest.TestCase):
    def test_line_and_column_from_one_on(self):
        change = next(change for change in of("int a = 1;\n  int b = 2;\n") if change.line == 2)
        self.assertEqual((2, 11), (change.line, change.column))

    def test_a_change_changes_its_place_alone(self):
        text = "int a = 1;\nint b = 1;\n"
        change = [change for change in of(text) if change.line == 2][0]
        self.assertEqual("int a = 1;\nint b = 2;\n", change.apply(text))


class ListedChanges(unittest.TestCase):
    ENTRY = "# a comment\n\na.cpp\n- int a = 1;\n+ int a = 2;\nNobody reads it.\n"

    def test_an_entry_holds_in_any_folder_and_line(self):
        for path in ("core/a.cpp", "simulators/curves/a.cpp"):
            change = of("\n\n  int a = 1;\n", path)[0]
            self.assertIn(change, Listed(self.ENTRY))

    def test_an_entry_holds_in_its_function_alone(self):
        text = "void A::F() {\n  Call();\n}\n\nint G(int x,\n      int y) {\n  Call();\n  return x;\n}\n"
        listed = Listed("a.cpp G\n- Call();\n+ ;\nIt is empty.\n")
        self.assertEqual([False, True], [change in listed for change in of(text)])

    def test_an_entry_without_its_line_is_stale(self):
        self.assertEqual([], Listed(self.ENTRY).stale(of("int a = 1;\n")))
        self.assertEqual([("a.cpp", "", "int a = 1;", "int a = 2;")], Listed(self.ENTRY).stale(of("int a = 3;\n")))

    def test_an_entry_needs_a_reason(self):
        with self.assertRaises(ValueError):
            Listed("a.cpp\n- int a = 1;\n+ int a = 2;\n")


unittest.main()
