"""The declarations for C# are those that the table makes, and none is missing there."""

import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[3]
DECLARED = ROOT / "examples/automation/FolivarInterop.cs"


class CSharp(unittest.TestCase):
    def test_declarations_are_those_of_the_table(self):
        with tempfile.TemporaryDirectory() as folder:
            made = pathlib.Path(folder) / "made.cs"
            subprocess.run([sys.executable, "-B", ROOT / "hosts/table/make_csharp.py",
                            ROOT / "com/Folivar.idl", made], check=True)
            self.assertEqual(DECLARED.read_text(), made.read_text())

    def test_every_function_is_declared(self):
        dumped = (ROOT / "tests/automation/type_library.expected").read_text()
        due = set()
        for name, body in re.findall(r"\ninterface _(\w+)[^\n]*\n(.*?)(?=\n\n)", dumped, re.S):
            due |= {(name, id) for id in re.findall(r"^ *\d+ +(-?\d+) ", body, re.M)}
        declared = set()
        for name, body in re.findall(r"public interface (\w+)\s*\{(.*?)\n    \}",
                                     DECLARED.read_text(), re.S):
            if not name.endswith("Events"):
                declared |= {(name, id) for id in re.findall(r"\[DispId\((-?\d+)\)\]", body)}
        self.assertGreater(len(due), 200)
        self.assertEqual(due, declared)


if __name__ == "__main__":
    unittest.main()
