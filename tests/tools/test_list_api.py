# SPDX-License-Identifier: LGPL-2.1-or-later
"""What tools/list_api reads out of a header, and what it says of two listings."""

import contextlib
import importlib.machinery
import importlib.util
import io
import sys
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
TOOL = Path(__file__).resolve().parents[2] / "tools" / "list_api"
loader = importlib.machinery.SourceFileLoader("list_api", str(TOOL))
list_api = importlib.util.module_from_spec(importlib.util.spec_from_loader("list_api", loader))
loader.exec_module(list_api)

# name, a header, its declarations
HEADERS = [
    ("sections", "class MV_EXPORT A : public B\n{\n    Q_OBJECT\npublic:\n    A();\nQ_SIGNALS:\n    void done();\n"
     "protected:\n    int m() const;\nprivate:\n    int m_x = 0;\n};",
     ["class A : public B", "A: A()", "A: [signal] void done()", "A: [protected] int m() const"]),
    ("a body and a list of members are no promise", "struct A\n{\n    explicit A(int x = f(1, {2}))\n        : B{x}, m_x(x)\n"
     "    {\n        g(\"}\");\n    }\n    int x = 1'000; ///< the page's;\n    QString n{};\n};",
     ["struct A", "A: explicit A(int x = f(1, {2}))", "A: int x = 1'000", "A: QString n{}"]),
    ("names inside names", "namespace N {\nclass A { struct Hidden { int x; }; public: struct Seen { int y; }; };\n}",
     ["N: class A", "N::A: struct Seen", "N::A::Seen: int y"]),
    ("enumerations", "enum class E : quint8 {\n    One, // first\n    Two = 2,\n};", ["enum class E : quint8 { One, Two = 2 }"]),
    ("what only this project's compiler sees", "#include <X>\n#define Y \\\n    int z;\nclass F;\nstruct G;\n"
     "template <class T>\nclass H;\n", []),
    ("macros without a semicolon", "class A\n{\n    Q_DECLARE_TR_FUNCTIONS(A)\n    MV_ENUM_WRAPPER(A, E)\n};",
     ["class A", "A: MV_ENUM_WRAPPER(A, E)"]),
    ("templates and free functions", "template <class T>\nT f(const QList<T> &a,\n    int * b);\ninline int g() { return 1; }",
     ["template<class T> T f(const QList<T> &a, int *b)", "inline int g()"]),
]

EXPORTED = ("class A\n{\npublic:\n    A() = default;\n    virtual int a() const = 0;\n    int b() const { return 1; }\n"
            "    bool operator==(const A &) const;\n    static QList<int> c(int x = 1);\n    std::function<void(int)> d;\n"
            "private:\n    int e();\n};\nint f();")

STORED = {"M.txt": ["M/A.h", "    A: int a()", "    A: int b()", "M/B.h"]}
# name, the new listing, what is said
CHANGES = [
    ("nothing", STORED, []),
    ("order alone", {"M.txt": ["M/B.h", "M/A.h", "    A: int b()", "    A: int a()"]}, []),
    ("gone and new", {"M.txt": ["M/A.h", "    A: int a()", "    A: long b()", "M/B.h"]},
     ["1 gone", "- M/A.h: A: int b()", "1 new", "+ M/A.h: A: long b()"]),
    ("moved into another header", {"M.txt": ["M/A.h", "    A: int a()", "M/B.h", "    A: int b()"]},
     ["- M/A.h: A: int b()", "+ M/B.h: A: int b()"]),
    ("a whole module", {}, ["4 gone"]),
]


class ListApi(unittest.TestCase):
    def test_headers(self):
        for name, text, lines in HEADERS:
            with self.subTest(name):
                self.assertEqual(list_api.Header(text).lines, lines)

    def test_what_a_library_must_export(self):
        header = list_api.Header(EXPORTED)
        self.assertEqual(header.functions, {"A::operator==", "A::c", "f"})
        self.assertEqual(header.names, {"A", "f"})

    def test_changes(self):
        for name, new, words in CHANGES:
            with self.subTest(name), contextlib.redirect_stdout(io.StringIO()) as said:
                self.assertEqual(list_api.report(STORED, new), bool(words))
                for word in words:
                    self.assertIn(word, said.getvalue())


if __name__ == "__main__":
    unittest.main()
