"""10,000 documents, with all that Python can give them, leave no memory behind.

Counts what malloc has given out. So Python has to take all its memory from there,
PYTHONMALLOC=malloc, and malloc may keep nothing back for later,
GLIBC_TUNABLES=glibc.malloc.tcache_count=0:glibc.malloc.mxfast=0.
"""

import ctypes
import gc
import os
import unittest

import folivar

# Documents are made in rounds. What each leaves behind is there after every one of them; what one
# round alone leaves is a cache of Python's, which has grown.
ROUNDS, DOCUMENTS = 5, 2_000
# Until most caches are full.
WARM_UP = 3_000
# They still come and go; but no block of malloc's is as small as this for each document.
TOLERATED_BYTES = 2 * DOCUMENTS


class Mallinfo2(ctypes.Structure):
    _fields_ = [(name, ctypes.c_size_t) for name in (
        "arena", "ordblks", "smblks", "hblks", "hblkhd", "usmblks", "fsmblks", "uordblks",
        "fordblks", "keepcost")]


def used_bytes():
    gc.collect()
    process = ctypes.CDLL(None)
    if hasattr(process, "__sanitizer_get_current_allocated_bytes"):
        function = getattr(process, "__sanitizer_get_current_allocated_bytes")
        function.restype = ctypes.c_size_t
        return function()
    process.mallinfo2.restype = Mallinfo2
    used = process.mallinfo2()
    return used.uordblks + used.hblkhd


class Refusal(Exception):
    pass


def refuse(page):
    raise Refusal(page)


def make_document():
    doc = folivar.PDFDocument()
    first, second = doc.Pages.Add("first"), doc.Pages.Add("second", Before=1)
    first.Font = doc.Fonts.Add("Times-Roman")
    first.DrawText("A line of text, \u20ac and \U0001F600", 72, 720)
    first.DrawText("long " * 1000, 72, 720)
    first.drawline(1, 2, x2=3, y2=4)
    box = first.TextBoxes.Add("box")
    box.Text = "rich"
    box.SelStart, box.SelLength = 0, 2
    box.SelFont.Clone().Size = box.SelFont.GetTextExtents(box.SelText).Width
    bookmark = doc.Bookmarks.Add()
    bookmark.Title, bookmark.Destination.page = "Title", first
    doc.ViewerPreferences.PageMode = folivar.pmsFullScreen
    give_cycles(doc, first, box)
    raise_errors(doc, first, second)
    assert len([page.Key for page in doc.Pages]) == 1 and "first" in doc.Pages
    assert doc.ViewerPreferences.PageMode is folivar.pmsFullScreen
    doc.Fonts.AvailableFonts(folivar.fontType1)
    repr(first)


def give_cycles(doc, page, box):
    doc.Tag = {"page": page, "self": doc}
    page.Tag = [doc, box.Move]
    box.Tag = lambda: (doc, page, box)
    box.Tag = box.Tag
    page.PageRemoved(lambda removed: (doc, page, removed))
    stop = page.PageRemoved(print)
    stop()
    stop()


def raise_errors(doc, first, second):
    for wrong in (lambda: doc.Pages("none"), lambda: doc.Pages.Add("first"),
                  lambda: first.DrawText(b"bytes", 0, 0), lambda: first.DrawText("x", 10 ** 400, 0),
                  lambda: doc.SavePDFFile("/no/such/folder/a.pdf")):
        try:
            wrong()
        except folivar.Error as error:
            assert error.number and error.member
        else:
            raise AssertionError("nothing was raised")
    for wrong in (lambda: first.NoSuchMember, lambda: first.DrawText("x"),
                  lambda: first.DrawText("x", 1, 2, Text="y"), lambda: folivar.PDFPage()):
        try:
            wrong()
        except (AttributeError, TypeError):
            pass
        else:
            raise AssertionError("nothing was raised")
    second.PageRemoved(refuse)
    try:
        doc.Pages.Remove("second")
    except Refusal as refusal:
        assert refusal.args == (second,)
    else:
        raise AssertionError("nothing was raised")


class Leaks(unittest.TestCase):
    def test_documents_leave_no_memory_behind(self):
        self.assertEqual(os.environ.get("PYTHONMALLOC"), "malloc")
        heard = []

        def hear(text):
            heard[:] = [text]

        folivar.warnings(hear)
        self.addCleanup(folivar.warnings, None)
        for _ in range(WARM_UP):
            make_document()
        objects = len(gc.get_objects())
        used = [used_bytes()]
        for _ in range(ROUNDS):
            for _ in range(DOCUMENTS):
                make_document()
            used.append(used_bytes())
        left = [after - before for before, after in zip(used, used[1:])]
        print(f"bytes left behind by {DOCUMENTS} documents each: {left}")
        self.assertLess(min(left), TOLERATED_BYTES)
        self.assertLess(len(gc.get_objects()) - objects, 100)


if __name__ == "__main__":
    unittest.main()
