"""What each operator makes of a few lines of C++, and that names do not depend on lines."""

import pathlib
import tempfile
import unittest

import mutants

BEFORE = """
struct Label {
  Label& add(int value);
  bool isHidden() const;
  void setHidden(bool hidden) const;
};
namespace dispatch { template <class Task> void onMain(Task) {} }
enum class Page { first, second };
void one(); void two(); void show(Page page); int count();
"""


def mutants_of(code):
    with tempfile.TemporaryDirectory() as folder:
        root = pathlib.Path(folder).resolve()
        file = root / "Code.cpp"
        file.write_text(BEFORE + code)
        found, _ = mutants.mutants_of_unit(root, root, file, ["-std=c++20"])
        return {mutant: mutant.apply(file.read_bytes()).decode()[len(BEFORE):] for mutant in found}


class Operators(unittest.TestCase):
    def changes(self, code, operator):
        return [text for mutant, text in mutants_of(code).items() if mutant.operator == operator]

    def function(self, body, operator, parameters=""):
        """The changed bodies of a function."""
        start = f"void f({parameters}) {{ "
        return [text[len(start):-2] for text in self.changes(f"{start}{body} }}", operator)]

    def test_condition_negated(self):
        self.assertEqual(self.function("if (a) one();", "negate", "bool a"), ["if (!(a)) one();"])
        self.assertEqual(self.function("if (!a) one();", "negate", "bool a"), ["if (a) one();"])
        self.assertEqual(self.function("while (a == 2) one();", "negate", "int a"),
                         ["while (a != 2) one();"])
        self.assertEqual(self.function("for (int i = 0; i < a; ++i) one();", "negate", "int a"),
                         ["for (int i = 0; !(i < a); ++i) one();"])
        self.assertEqual(self.function("if (int a = count()) one();", "negate"),
                         ["if (int a = count(); !a) one();"])
        self.assertEqual(self.function("int b = a ? 2 : 3;", "negate", "bool a"),
                         ["int b = !(a) ? 2 : 3;"])
        self.assertEqual(self.changes("bool f(Label a) { return a.isHidden(); }", "negate"),
                         ["bool f(Label a) { return !(a.isHidden()); }"])

    def test_boundary(self):
        self.assertEqual(self.function("if (a < 2) one();", "boundary", "int a"),
                         ["if (a <= 2) one();"])

    def test_operand_left_out(self):
        self.assertEqual(sorted(self.function("if (a && b && c) one();", "drop-operand",
                                              "bool a, bool b, bool c")),
                         ["if (a && b) one();", "if (a && c) one();", "if (b && c) one();"])

    def test_call_left_out(self):
        self.assertEqual(self.function("one(); if (a) two();", "leave-out", "bool a"),
                         ["; if (a) two();", "one(); if (a) {};"])
        self.assertEqual(self.function("return one();", "leave-out"), ["return;"])
        self.assertEqual(self.function("a = 2;", "leave-out", "int a"), [";"])
        self.assertEqual(self.function("if (a) return; one();", "leave-out", "bool a"),
                         ["if (a) {}; one();", "if (a) return; ;"])

    def test_link_of_a_chain_left_out(self):
        self.assertIn("a.add(2);", self.function("a.add(1).add(2);", "leave-out", "Label a"))
        self.assertIn("a.add(1);", self.function("a.add(1).add(2);", "leave-out", "Label a"))

    def test_neighbouring_calls_swapped(self):
        self.assertEqual(self.function("one(); two();", "swap"), ["two(); one();"])
        self.assertEqual(self.function("one(); return two();", "swap"), ["two(); return one();"])
        self.assertEqual(self.function("one(); int a = 1; two();", "swap"), [])

    def test_constant(self):
        self.assertEqual(self.function("a.setHidden(true);", "constant", "Label a"),
                         ["a.setHidden(false);"])
        self.assertEqual(self.function("show(Page::second);", "constant"), ["show(Page::first);"])
        self.assertEqual(self.changes('const char* a = "b";', "constant"),
                         ['const char* a = "Xb";'])
        self.assertEqual(self.changes("long a = 2'000;", "constant"), ["long a = 2001;"])
        self.assertEqual(self.changes("double a = 0.3;", "constant"), ["double a = (0.3 + 1);"])
        self.assertEqual(self.changes('static_assert(2 > 1, "c");', "constant"), [])
        self.assertEqual(self.changes('extern "C" int a;', "constant"), [])

    def test_argument_left_out(self):
        self.assertEqual(self.function("show(a);", "argument", "Page a"),
                         ["show(mutation::Nothing<decltype((a))>{});"])
        self.assertEqual(self.function("a.setHidden(true);", "argument", "Label a"), [])
        receiver = "struct A { void f() { g(*this); } void g(A); };"
        self.assertEqual(self.changes(receiver, "argument"), [])

    def test_name_in_a_template_argument_stays(self):
        code = 'struct Name { constexpr Name(const char*) {} }; template <Name n> void g() {}\n'
        self.assertEqual(self.changes(code + 'void f() { g<"a">(); }', "constant"), [])

    def test_macro_is_not_looked_into(self):
        code = "\n#define SHOW(a) show(a ? Page::first : Page::second);\nSHOW(a)\n"
        self.assertEqual(self.function(code, "negate", "bool a"), [])

    def test_arithmetic(self):
        self.assertEqual(self.function("a = b + 1;", "arithmetic", "int a, int b"), ["a = b - 1;"])
        self.assertEqual(self.function("a = -b;", "arithmetic", "int a, int b"), ["a = b;"])
        self.assertEqual(self.function("++a;", "arithmetic", "int a"), ["--a;"])

    def test_returned_value_left_out(self):
        self.assertEqual(self.changes("int f() { return count(); }", "return-nothing"),
                         ["int f() { return {}; }"])

    def test_number_not_converted(self):
        self.assertEqual(self.function("int b = int(a) / 2;", "no-cast", "double a"),
                         ["int b = (a) / 2;"])

    def test_queued_work_done_at_once(self):
        self.assertEqual(self.function("dispatch::onMain([] { one(); });", "at-once"),
                         ["([] { one(); })();"])

    def test_every_text_once(self):
        texts = list(mutants_of("int f(int a) { if (a != 2) return a + 1; return -a; }").values())
        self.assertEqual(len(texts), len(set(texts)))


class Names(unittest.TestCase):
    CODE = "void f(int a) { if (a < 2) one(); one(); two(); one(); }"

    def names(self, code):
        return sorted(mutant.identity for mutant in mutants_of(code))

    def test_without_lines(self):
        moved = "// A comment.\n\nvoid other() {}\n" + self.CODE.replace("{ if", "{\n  if")
        self.assertEqual(self.names(moved), self.names(self.CODE))

    def test_unique(self):
        names = self.names(self.CODE)
        self.assertEqual(len(names), len(set(names)))
        self.assertIn("Code.cpp | f | leave-out | one() #3", names)

    def test_enumerator(self):
        self.assertIn("Code.cpp | Mode::songs | constant | , songs = 1 } ; : 1 -> 2",
                      self.names("enum Mode { duration = 0, songs = 1 };"))

    def test_sample_is_spread_and_always_the_same(self):
        found = list(mutants_of(self.CODE))
        chosen = mutants.sample(found, 4)
        self.assertEqual(chosen, mutants.sample(list(reversed(found)), 4))
        self.assertEqual(len({mutant.operator for mutant in chosen}), 4)


if __name__ == "__main__":
    unittest.main()
