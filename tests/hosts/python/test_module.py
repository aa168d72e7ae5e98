"""The files of the module: what they export, need and describe.

test_module.py <nm>
"""

import ast
import pathlib
import subprocess
import sys
import unittest

import folivar

NM = sys.argv.pop(1)
FILE = pathlib.Path(folivar.__file__)

# All that the limited API has behind its macros of what begins so.
UNDERSCORED = {"_PyArg_Parse_SizeT", "_Py_Dealloc", "_Py_EllipsisObject", "_Py_FalseStruct",
               "_Py_NoneStruct", "_Py_NotImplementedStruct", "_Py_TrueStruct"}


def symbols(*options):
    listed = subprocess.run([NM, "-D", *options, FILE], capture_output=True, text=True, check=True)
    return {line.split()[-1].split("@")[0] for line in listed.stdout.splitlines()}


def shown(names):
    return {name for name in names if not name.startswith("_")}


class Module(unittest.TestCase):
    def test_exports_its_beginning_only(self):
        self.assertEqual(FILE.name, "folivar.abi3.so")
        self.assertEqual(symbols("--defined-only"), {"PyInit_folivar"})

    def test_keeps_to_the_limited_api(self):
        used = symbols("--undefined-only")
        self.assertLessEqual({name for name in used if name.startswith("_Py")}, UNDERSCORED)
        self.assertTrue(any(name.startswith("Py") for name in used))

    def test_leans_on_no_attribute_that_a_program_can_set(self):
        self.assertEqual([name for name in vars(folivar.PDFDocument)
                          if name.startswith("_") and not name.startswith("__")], [])
        script = "import folivar; folivar.PDFDocument._class = 5; folivar.PDFDocument()"
        ran = subprocess.run([sys.executable, "-c", script], capture_output=True, check=False)
        self.assertEqual((ran.returncode, ran.stderr), (0, b""))


class Stubs(unittest.TestCase):
    def setUp(self):
        source = FILE.with_name("folivar.pyi").read_text(encoding="utf-8")
        self.stubs = ast.parse(source)
        self.classes = {node.name: node for node in self.stubs.body
                        if isinstance(node, ast.ClassDef)}

    @staticmethod
    def names_in(body):
        names = set()
        for node in body:
            if isinstance(node, (ast.ClassDef, ast.FunctionDef)):
                names.add(node.name)
            elif isinstance(node, ast.AnnAssign):
                names.add(node.target.id)
            elif isinstance(node, ast.Assign):
                names.update(target.id for target in node.targets)
        return names

    def test_name_what_the_module_has(self):
        self.assertEqual(shown(self.names_in(self.stubs.body)), shown(dir(folivar)))

    def test_name_what_the_classes_have(self):
        for name, node in self.classes.items():
            if not name.startswith("PDF"):
                continue
            made = getattr(folivar, name)
            names = made.__members__ if issubclass(made, int) else dir(made)
            self.assertEqual(shown(self.names_in(node.body)), shown(names), name)
            self.assertEqual(ast.get_docstring(node), made.__doc__)

    def test_name_special_methods_that_the_classes_have(self):
        for name, node in self.classes.items():
            if name.startswith("PDF"):
                special = self.names_in(node.body) - shown(self.names_in(node.body))
                self.assertLessEqual(special, vars(getattr(folivar, name)).keys(), name)

    def test_tell_the_same_help(self):
        for name, node in self.classes.items():
            for member in node.body:
                if not isinstance(member, ast.FunctionDef) or member.name.startswith("__"):
                    continue
                help = ast.get_docstring(member)
                if help is not None:
                    self.assertEqual(help, getattr(getattr(folivar, name), member.name).__doc__)


if __name__ == "__main__":
    unittest.main()
