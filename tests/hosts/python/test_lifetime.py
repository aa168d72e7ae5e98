"""What Python gives the library goes away at the right time, and at the end of a program too."""

import copy
import gc
import pickle
import subprocess
import sys
import threading
import unittest
import weakref

import folivar


class Lifetime(unittest.TestCase):
    def test_finalizer_finds_the_document_at_rest(self):
        page = folivar.PDFDocument().Pages.Add()
        found = []

        class Finalized:
            def __del__(self):
                page.Tag = "of the finalizer"
                found.append(page.Tag)

        page.Tag = Finalized()
        page.Tag = "next"
        self.assertEqual(found, ["of the finalizer"])
        self.assertEqual(page.Tag, "of the finalizer")

    def test_finalizer_does_not_touch_an_error(self):
        class Finalized:
            def __del__(self):
                try:
                    folivar.PDFDocument().Pages(1)
                except folivar.Error:
                    pass

        page = folivar.PDFDocument().Pages.Add()
        page.PageRemoved(print)
        page.Tag = Finalized()
        with self.assertRaises(folivar.Error) as caught:
            page.ParentDocument.Pages.Add(Finalized())
        self.assertEqual(caught.exception.number, 13)

    def test_long_chain_takes_no_stack(self):
        chain = None
        for _ in range(20_000):
            doc = folivar.PDFDocument()
            doc.Tag = chain
            chain = doc
        watched = weakref.ref(doc)
        chain = [doc]
        del doc
        self.addCleanup(threading.stack_size, threading.stack_size(1 << 20))
        thread = threading.Thread(target=chain.clear)
        thread.start()
        thread.join()
        self.assertIsNone(watched())

    def test_handler_that_unsubscribes_itself_may_go_away(self):
        doc = folivar.PDFDocument()
        page = doc.Pages.Add("a")
        heard = []

        def handle(removed):
            nonlocal stop
            stop()
            stop = None
            heard.append(removed)

        watched = weakref.ref(handle)
        stop = page.PageRemoved(handle)
        del handle
        doc.Pages.Remove("a")
        self.assertEqual(heard, [page])
        self.assertIsNone(watched())

    def test_weak_reference_that_fetches_the_object_anew(self):
        doc = folivar.PDFDocument()
        fetched = []
        page = doc.Pages.Add("a")
        watched = weakref.ref(page, lambda gone: fetched.append(doc.Pages("a")))
        del page
        self.assertIsNone(watched())
        self.assertIs(fetched[0], doc.Pages("a"))

    def test_garbage_collector_that_fetches_the_object_meanwhile(self):
        """An object may be wrapped by a finalizer while its wrapper is being made."""
        doc = folivar.PDFDocument()
        doc.Pages.Add("a")
        fetched = []

        class Fetching:
            def __init__(self):
                self.cycle = self

            def __del__(self):
                fetched.append(doc.Pages("a"))

        self.addCleanup(gc.set_threshold, *gc.get_threshold())
        for threshold in range(1, 40):
            gc.collect()
            Fetching()
            gc.set_threshold(threshold)
            pages = [doc.Pages("a") for _ in range(40)]
            gc.set_threshold(0)
            self.assertEqual(len({id(page) for page in pages + fetched}), 1)
            del pages
            fetched.clear()

    def test_objects_are_not_copied(self):
        doc = folivar.PDFDocument()
        for one in (doc, doc.Pages.Add("a"), doc.Pages):
            with self.assertRaises(TypeError):
                copy.copy(one)
            with self.assertRaises(TypeError):
                pickle.dumps(one)

    def test_filled_tuples_are_copied(self):
        page = folivar.PDFDocument().Pages.Add()
        page.SetCurPos(3, 4)
        for filled in (page.GetCurPos(), page.GetClipBox(), page.Font.GetTextExtents("text")):
            for back in (pickle.loads(pickle.dumps(filled)), copy.deepcopy(filled)):
                self.assertEqual(back, filled)
                self.assertIs(type(back), type(filled))

    def test_second_import_is_a_module_of_its_own(self):
        first = sys.modules.pop("folivar")
        try:
            import folivar as second
            self.assertIsNot(first, second)
            page = second.PDFDocument().Pages.Add("a")
            self.assertIs(type(page), second.PDFPage)
            with self.assertRaises(first.Error):
                first.PDFDocument().Pages(page)
        finally:
            sys.modules["folivar"] = first

    def assert_ends_well(self, script):
        ran = subprocess.run([sys.executable, "-c", script], capture_output=True, text=True,
                             check=False)
        self.assertEqual((ran.returncode, ran.stderr), (0, ""))

    def test_program_that_ends_with_documents(self):
        self.assert_ends_well("""
import folivar
class Value:
    def __del__(self):
        doc.Pages.Add()
doc = folivar.PDFDocument()
page = doc.Pages.Add("a")
page.Tag = [doc, Value()]
stop = page.PageRemoved(lambda page: doc)
folivar.warnings(lambda text: page)
builtin = __import__("builtins")
builtin.kept = doc.Pages
""")

    def test_program_that_ends_while_others_save(self):
        self.assert_ends_well("""
import os, threading, time
import folivar
started = threading.Semaphore(0)
def save():
    doc = folivar.PDFDocument()
    page = doc.Pages.Add()
    for y in range(20000):
        page.DrawText("some text", 72, y)
    started.release()
    while True:
        doc.SavePDFFile(os.devnull)
for _ in range(4):
    threading.Thread(target=save, daemon=True).start()
for _ in range(4):
    started.acquire()
time.sleep(0.05)
""")


if __name__ == "__main__":
    unittest.main()
