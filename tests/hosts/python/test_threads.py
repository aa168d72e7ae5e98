"""Threads: documents do not disturb each other, and one document bears that many use it."""

import os
import tempfile
import threading
import unittest

import folivar

THREADS = 8


def write_document(file):
    doc = folivar.PDFDocument()
    for number in range(10):
        page = doc.Pages.Add(f"page {number}")
        page.Font = doc.Fonts.Add("Times-Roman")
        page.Tag = [doc, number]
        for y in range(20):
            page.DrawText(f"line {y} of page {number}", 72, 30 * y)
        box = page.TextBoxes.Add()
        box.Move(72, 700, 100, 20)
        box.Text = "a box"
    doc.SavePDFFile(file)
    with open(file, "rb") as written:
        return written.read()


def run_at_once(function):
    """Of each thread what the function gives for its number, or raises."""
    results = [None] * THREADS
    barrier = threading.Barrier(THREADS)

    def run(number):
        barrier.wait()
        try:
            results[number] = function(number)
        except Exception as error:  # told by the test
            results[number] = error

    threads = [threading.Thread(target=run, args=(number,)) for number in range(THREADS)]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    return results


class Threads(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name

    def file(self, number):
        return os.path.join(self.folder, f"{number}.pdf")

    def test_documents_do_not_disturb_each_other(self):
        expected = write_document(self.file("alone"))
        for _ in range(5):
            for written in run_at_once(lambda number: write_document(self.file(number))):
                self.assertEqual(written, expected)

    def test_one_document_bears_many_threads(self):
        """Each call does its work or raises 70; what threads let go of meanwhile is gone."""
        doc = folivar.PDFDocument()
        for _ in range(50):
            page = doc.Pages.Add()
            for y in range(500):
                page.DrawText("some text to be saved", 72, y)
        count = len(doc.Pages)

        def use(number):
            done = refused = 0
            for turn in range(60):
                try:
                    if number % 2 == 0:
                        doc.SavePDFFile(self.file(number))
                    else:
                        page = doc.Pages[1 + turn % count]
                        page.Tag = [doc, object(), page]
                        page.TextBoxes.Add().Tag = page
                        del page
                    done += 1
                except folivar.Error as error:
                    if error.number != 70:
                        raise
                    refused += 1
            return done, refused

        results = run_at_once(use)
        for result in results:
            self.assertIsInstance(result, tuple, result)
            self.assertEqual(sum(result), 60)
        self.assertGreater(sum(done for done, refused in results), 0)
        self.assertEqual(len(doc.Pages), count)
        doc.SavePDFFile(self.file("last"))

    def test_warnings_reach_python_from_a_long_call(self):
        """While a member has let others run, what it calls runs like any other code."""
        heard = []
        folivar.warnings(lambda text: heard.append((threading.get_ident(), text)))
        self.addCleanup(folivar.warnings, None)

        def warn(number):
            for _ in range(100):
                folivar.PDFDocument().Fonts.Add("Arial-Bold")
            return threading.get_ident()

        threads = run_at_once(warn)
        for thread in threads:
            self.assertEqual(sum(1 for heard_in, text in heard if heard_in == thread), 100)
        self.assertEqual(len(heard), 100 * THREADS)


if __name__ == "__main__":
    unittest.main()
