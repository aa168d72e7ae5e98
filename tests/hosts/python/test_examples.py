"""The examples for Python write what they should.

test_examples.py <the report of the library itself> <output folder>
"""

import csv
import decimal
import pathlib
import subprocess
import sys
import unittest

OUTPUT = pathlib.Path(sys.argv.pop())
NATIVE_REPORT = sys.argv.pop()
EXAMPLES = pathlib.Path(__file__).parents[3] / "examples"


def run(*command):
    return subprocess.run(command, capture_output=True, text=True, check=True).stdout


class Examples(unittest.TestCase):
    def setUp(self):
        OUTPUT.mkdir(parents=True, exist_ok=True)

    def test_report_is_that_of_the_library_itself(self):
        picture = EXAMPLES / "data/catalogue/lighthouse.jpg"
        native, report = OUTPUT / "native.pdf", OUTPUT / "report.pdf"
        run(NATIVE_REPORT, picture, native)
        run(sys.executable, "-B", EXAMPLES / "hosts/report.py", picture, report)
        self.assertEqual(report.read_bytes(), native.read_bytes())

    def test_report_from_windows_runs_with_two_lines_changed(self):
        lines = [(EXAMPLES / folder / "report.py").read_text(encoding="utf-8").split('"""')[2]
                 for folder in ("automation", "hosts")]
        windows, here = (source.splitlines() for source in lines)
        self.assertEqual(len(windows), len(here))
        changed = [(old, new) for old, new in zip(windows, here) if old != new]
        self.assertEqual([new.strip() for old, new in changed],
                         ["import folivar", "document = folivar.PDFDocument()"])

    def test_report_from_a_csv_file(self):
        source, report = EXAMPLES / "data/statement.csv", OUTPUT / "csv_report.pdf"
        run(sys.executable, "-B", EXAMPLES / "hosts/csv_report.py", source, report)
        run("qpdf", "--check", report)
        text = run("pdftotext", "-layout", report, "-")
        with open(source, encoding="utf-8", newline="") as lines:
            rows = list(csv.DictReader(lines))
        balance = sum(decimal.Decimal(row["amount"]) for row in rows)
        summary, *pages = text.split("\f")
        self.assertIn(f"{balance:,}", summary)
        for row in rows[1:]:
            self.assertIn(row["description"][:40], text)
            self.assertIn(f"{abs(decimal.Decimal(row['amount'])):,}", text)
        count = int(run("qpdf", "--show-npages", report))
        self.assertIn(f"Page {count} of {count}", pages[count - 2])


if __name__ == "__main__":
    unittest.main()
