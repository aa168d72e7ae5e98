"""What must hold of the object model in every language, a test for each promise."""

import decimal
import enum
import fractions
import functools
import gc
import inspect
import io
import logging
import os
import pathlib
import random
import subprocess
import sys
import tempfile
import threading
import traceback
import unittest
import weakref

import folivar


class Value:
    """Something of the host's that can be watched."""


class Semantics(unittest.TestCase):
    def setUp(self):
        self.warned = []
        folivar.warnings(self.warned.append)
        self.addCleanup(folivar.warnings, None)
        self.doc = folivar.PDFDocument()

    def pages(self, *keys):
        return [self.doc.Pages.Add(key) for key in keys]

    def assertRaisesNumber(self, number, function, *arguments, **names):
        with self.assertRaises(folivar.Error) as caught:
            function(*arguments, **names)
        self.assertEqual(caught.exception.number, number)
        return caught.exception

    def assertCollected(self, *watched):
        gc.collect()
        for reference in watched:
            self.assertIsNone(reference())

    # Objects and their life

    def test_identity(self):
        page, = self.pages("a")
        self.assertIs(self.doc.Pages, self.doc.Pages)
        self.assertIs(page.ParentDocument, self.doc)
        self.assertIs(self.doc.Pages("a"), page)
        self.assertIs(next(iter(self.doc.Pages)), page)
        self.assertIs(page.TextBoxes.Add("box").Parent, page)
        page.Tag = Value()
        tag = weakref.ref(page.Tag)
        wrapper = weakref.ref(page)
        del page
        self.assertCollected(wrapper)
        self.assertIsNotNone(tag())
        self.assertIs(self.doc.Pages("a").Tag, tag())

    def test_ownership(self):
        page = folivar.PDFDocument().Pages.Add("a")
        gc.collect()
        with tempfile.TemporaryDirectory() as folder:
            file = os.path.join(folder, "kept.pdf")
            page.ParentDocument.SavePDFFile(file)
            self.assertTrue(pathlib.Path(file).read_bytes().startswith(b"%PDF-1."))
        for is_removed in (False, True):
            doc = folivar.PDFDocument()
            page = doc.Pages.Add("a")
            page.Tag = tag = Value()
            box = page.TextBoxes.Add("box")
            boxes = page.TextBoxes
            if is_removed:
                doc.Pages.Remove("a")
            del doc, page
            gc.collect()
            self.assertIs(box.Parent.Tag, tag)
            del box
            gc.collect()
            self.assertIs(boxes("box").Parent.Tag, tag)

    def test_release_order(self):
        for seed in range(100):
            with self.subTest(seed=seed):
                self.let_go_in_any_order(random.Random(seed))

    def let_go_in_any_order(self, chance):
        doc = folivar.PDFDocument()
        page = doc.Pages.Add("a")
        template = doc.Templates.Add()
        box = page.TextBoxes.Add()
        bookmark = doc.Bookmarks.Add()
        link = page.HyperLinks.Add()
        held = [doc, page, template, box, bookmark, link, doc.Pages, doc.Fonts, doc.Images,
                doc.ViewerPreferences, doc.Fonts.Add("Courier"), doc.Images.Add(), page.Font,
                page.GraphicsState, page.TextBoxes, template.GraphicsState, box.SelFont,
                box.GraphicsState, bookmark.SubBookmarks, bookmark.Destination,
                link.Destination, page.PageRemoved(lambda page: None), iter(doc.Pages)]
        watched = weakref.ref(doc)
        doc.Tag = held[chance.randrange(len(held))]
        box.Tag = held[chance.randrange(len(held))]
        del doc, page, template, box, bookmark, link
        while held:
            held.pop(chance.randrange(len(held)))
            if chance.random() < 0.2:
                gc.collect()
        self.assertCollected(watched)

    def test_tag_cycle(self):
        for give in (lambda doc, page, tag: setattr(doc, "Tag", {"page": page, "tag": tag}),
                     lambda doc, page, tag: setattr(page, "Tag", [doc, tag]),
                     lambda doc, page, tag: setattr(page.TextBoxes.Add(), "Tag",
                                                    lambda: (doc, tag)),
                     lambda doc, page, tag: setattr(tag, "doc", setattr(doc, "Tag", tag) or doc),
                     lambda doc, page, tag: setattr(doc, "Tag", [doc.Pages.Add, tag])):
            doc = folivar.PDFDocument()
            page = doc.Pages.Add("a")
            tag = Value()
            give(doc, page, tag)
            watched = [weakref.ref(doc), weakref.ref(page), weakref.ref(tag)]
            fonts = doc.Fonts
            del doc, page, tag
            gc.collect()
            self.assertIsNotNone(watched[2]())  # the document is reached through any object
            del fonts
            self.assertCollected(*watched)
        # Two documents that hold each other.
        one, other = folivar.PDFDocument(), folivar.PDFDocument()
        one.Tag, other.Pages.Add().Tag = other, one
        watched = [weakref.ref(one), weakref.ref(other)]
        del one, other
        self.assertCollected(*watched)

    def test_handler_cycle(self):
        doc = folivar.PDFDocument()
        page = doc.Pages.Add("a")
        tag = Value()
        page.PageRemoved(functools.partial(print, page, doc, tag))
        watched = [weakref.ref(doc), weakref.ref(tag)]
        pages = doc.Pages
        del doc, page, tag
        gc.collect()
        self.assertIsNotNone(watched[1]())
        del pages
        self.assertCollected(*watched)

    # Arguments

    def test_key_or_position(self):
        first, second = self.pages("2", "1")
        self.assertIs(self.doc.Pages("1"), second)
        self.assertIs(self.doc.Pages(1), first)
        self.assertIs(self.doc.Pages(2.0), second)
        self.assertRaisesNumber(5, self.doc.Pages, "3")

    def test_left_out(self):
        self.pages("a")
        self.assertEqual(self.doc.Pages.Add().Key, "")
        self.assertEqual(len(self.doc.Pages), 2)
        before = self.doc.Pages.Add("b", Before=1)
        after = self.doc.Pages.Add("c", After=1)
        self.assertEqual([page.Key for page in self.doc.Pages], ["b", "c", "a", ""])
        self.assertIs(self.doc.Pages(1), before)
        self.assertIs(self.doc.Pages(2), after)

    def test_named_arguments(self):
        page, = self.pages("a")
        self.assertEqual(self.doc.Pages.Add("b", Before=1).Key, "b")
        self.assertEqual(self.doc.Pages.Add(before=1, SKEY="c").Key, "c")
        self.assertEqual([page.Key for page in self.doc.Pages], ["c", "b", "a"])
        page.SetCurPos(y=5, x=4)
        self.assertEqual(page.GetCurPos(), (4, 5))
        self.assertIs(self.doc.Pages(vntIndexKey="a"), page)
        for names, culprit in (({"z": 1}, "z"), ({"X": 1, "x": 2}, "x"), ({"text": "b"}, "Text"),
                               ({"\ud800": 1}, r"\ud800")):
            with self.assertRaises(TypeError) as caught:
                page.DrawText("a", **names)
            self.assertIn(f"'{culprit}'", str(caught.exception))
            self.assertIn("PDFPage.DrawText", str(caught.exception))

    def test_no_object(self):
        page, = self.pages("a")
        self.assertIsNone(page.Thumbnail)
        page.Thumbnail = image = self.doc.Images.Add()
        self.assertIs(page.Thumbnail, image)
        page.Thumbnail = None
        self.assertIsNone(page.Thumbnail)
        self.assertRaisesNumber(91, setattr, page, "Font", None)
        destination = self.doc.Bookmarks.Add().Destination
        destination.page = page
        self.assertIs(destination.page, page)
        destination.page = None
        self.assertIsNone(destination.page)

    def test_null_result(self):
        box = self.doc.Pages.Add().TextBoxes.Add()
        box.Text = "bold plain"
        box.SelStart, box.SelLength = 0, 10
        box.SelFont = self.doc.Fonts.Add("Liberation Sans", folivar.fontTrueType)
        box.SelStart, box.SelLength = 0, 4
        self.assertIs(box.SelBold, False)
        box.SelBold = True
        self.assertIs(box.SelBold, True)
        box.SelLength = 10
        self.assertIsNone(box.SelBold)
        self.assertIsNone(self.doc.Bookmarks.Add().Destination.page)

    def test_null_argument(self):
        page, = self.pages("a")
        self.assertRaisesNumber(94, page.SetCurPos, None, 0)
        self.assertRaisesNumber(94, page.DrawText, None, 0, 0)
        self.assertRaisesNumber(94, page.DrawRect, 0, 0, 1, 1, None)
        self.assertRaisesNumber(94, setattr, page, "Width", None)
        self.assertRaisesNumber(94, setattr, self.doc.ViewerPreferences, "FitWindow", None)
        self.assertRaisesNumber(94, setattr, self.doc.Bookmarks.Add(), "Title", None)
        self.assertRaisesNumber(94, self.doc.Pages, None)
        self.assertRaisesNumber(94, setattr, page.TextBoxes.Add(), "SelBold", None)

    def test_filled(self):
        page, = self.pages("a")
        page.SetCurPos(3, 4)
        place = page.GetCurPos()
        self.assertIsInstance(place, tuple)
        self.assertEqual((place.x, place.y), (3, 4))
        x, y = place
        self.assertEqual((x, y), place)
        page.SetClipBox(1, 2, 30, 40)
        box = page.GetClipBox()
        self.assertEqual((box.Left, box.Bottom, box.Right, box.Top), (1, 2, 30, 40))
        font = self.doc.Fonts.Add("Courier")
        extents = font.GetTextExtents("text")
        self.assertEqual(extents.Width, font.TextWidth("text"))
        self.assertEqual(extents.Height, font.TextHeight("text"))
        self.assertEqual(extents.Width, 24)  # four times 600 thousandths of 10

    # Collections

    def test_collections(self):
        page, other = self.pages("a", "b")
        pages = self.doc.Pages
        for found in (pages("a"), pages(1), pages["a"], pages[1], pages.Item("a"), pages.Item(1)):
            self.assertIs(found, page)
        self.assertEqual((len(pages), pages.count), (2, 2))
        self.assertIn("a", pages)
        self.assertIn("A", pages)
        self.assertNotIn("c", pages)
        self.assertEqual(list(pages), [page, other])
        for collection in (self.doc.Templates, self.doc.Images, self.doc.Bookmarks,
                           page.TextBoxes, page.HyperLinks):
            self.assertEqual((len(collection), list(collection)), (0, []))
            added = collection.Add("k")
            self.assertEqual((len(collection), list(collection)), (1, [added]))
            self.assertIs(collection("k"), added)
            self.assertIs(collection[1], added)
            self.assertIn("k", collection)
        fonts = self.doc.Fonts
        fonts.Add("Courier")
        self.assertEqual(fonts("Courier", folivar.fontType1).FontFace, "Courier")
        self.assertEqual(fonts(fonts.count(folivar.fontType1), 0).FontFace, "Courier")
        self.assertEqual(fonts.Item(vntIndexKey=1, FontType=0).FontType, folivar.fontType1)
        with self.assertRaises(TypeError):
            len(fonts)
        with self.assertRaises(TypeError):
            iter(fonts)
        with self.assertRaises(TypeError):
            fonts[1]

    def test_positions(self):
        pages = self.pages("a", "b", "c")
        for position in (1, 2, 3):
            self.assertIs(self.doc.Pages[position], pages[position - 1])
        for position in (0, -1, 4):
            self.assertRaisesNumber(9, self.doc.Pages, position)
            self.assertRaisesNumber(9, lambda: self.doc.Pages[position])
            self.assertRaisesNumber(9, self.doc.Pages.Item, position)

    def test_walk(self):
        pages = self.pages("a", "b", "c")
        walked = []
        for page in self.doc.Pages:
            walked.append(page)
            self.doc.Pages.Remove(page.Key)
            self.doc.Pages.Add()
        self.assertEqual(walked, pages)
        self.assertEqual(len(self.doc.Pages), 3)

    # Names

    def test_constants(self):
        alignment = folivar.PDFHorzTextAlignment
        self.assertTrue(issubclass(alignment, enum.IntEnum))
        self.assertIs(folivar.htaRight, alignment.htaRight)
        self.assertEqual([(one.name, one.value) for one in alignment],
                         [("htaLeft", 0), ("htaRight", 1), ("htaCenter", 2)])
        self.assertEqual(alignment.__module__, "folivar")
        preferences = self.doc.ViewerPreferences
        preferences.PageLayout = folivar.plsOneColumn
        self.assertIs(preferences.PageLayout, folivar.plsOneColumn)
        preferences.PageLayout = 4
        self.assertIs(preferences.PageLayout, folivar.plsTwoColumnRight)
        preferences.PageLayout = 17
        self.assertEqual(preferences.PageLayout, 17)
        self.assertIs(type(preferences.PageLayout), int)
        page, = self.pages("a")
        page.DrawTextAligned("x", 0, 0, 9, 9, folivar.htaCenter, 3)

    def test_names_without_case(self):
        page, = self.pages("a")
        page.drawtext("x", 1, 2)
        page.SETCURPOS(7, 8)
        self.assertEqual(page.getcurpos(), (7, 8))
        page.width = 5
        self.assertEqual(page.Width, 5)
        self.assertIs(self.doc.pages, self.doc.Pages)
        self.assertIs(self.doc.bookmarks.Add().destination.PAGE, None)
        with self.assertRaises(AttributeError):
            folivar.HtaLeft
        for name in ("drawtext\0zzz", "width\0", "\0"):
            self.assertFalse(hasattr(page, name))
            with self.assertRaises(AttributeError):
                setattr(page, name, 7)
        self.assertEqual(page.Width, 5)

    def test_unknown_member(self):
        page, = self.pages("a")
        for name, nearest in (("DrawTxt", "DrawText"), ("pagesremoved", "PageRemoved"),
                              ("Widht", "Width")):
            with self.assertRaises(AttributeError) as caught:
                getattr(page, name)
            self.assertEqual(str(caught.exception),
                             f"PDFPage has no member '{name}'; did you mean '{nearest}'?")
        for name in ("Qqqqqqqq", "\ud800", "Straße", "x" * 1000):
            with self.assertRaises(AttributeError) as caught:
                getattr(page, name)
            self.assertEqual(str(caught.exception), f"PDFPage has no member {name!r}")
        self.assertFalse(hasattr(page, "NewEnum"))
        self.assertFalse(hasattr(self.doc.Pages, "NewEnum"))

    def test_unknown_attribute(self):
        page, = self.pages("a")
        before = dir(page)
        with self.assertRaises(AttributeError) as caught:
            page.Widht = 5
        self.assertEqual(str(caught.exception),
                         "PDFPage has no member 'Widht'; did you mean 'Width'?")
        with self.assertRaises(AttributeError):
            page.entirelyNew = 5
        self.assertEqual(dir(page), before)
        self.assertEqual(page.Width, 612)

    def test_read_only(self):
        page, = self.pages("a")
        for name in ("Key", "key", "DrawText", "drawtext", "PageRemoved"):
            with self.assertRaises(AttributeError):
                setattr(page, name, "x")
        with self.assertRaises(AttributeError):
            page.GraphicsState.FillGrayColor
        with self.assertRaises(AttributeError):
            page.GraphicsState.fillgraycolor
        page.GraphicsState.FillGrayColor = 0.5
        with self.assertRaises(AttributeError):
            del page.Width
        self.assertEqual((page.Key, page.Width), ("a", 612))

    # Errors

    def test_errors(self):
        self.pages("a")
        error = self.assertRaisesNumber(457, self.doc.Pages.Add, "A")
        self.assertEqual(error.member, "PDFPages.Add")
        self.assertTrue(str(error).startswith("PDFPages.Add: "), str(error))
        self.assertIn("'A'", str(error))
        self.assertIsInstance(error, Exception)
        file = os.path.join(tempfile.gettempdir(), "no", "such", "\u20acolder", "a.pdf")
        error = self.assertRaisesNumber(76, self.doc.SavePDFFile, file)
        self.assertEqual(error.member, "PDFDocument.SavePDFFile")
        self.assertIn(file, str(error))

    def test_argument_count(self):
        page, = self.pages("a")
        with self.assertRaises(TypeError) as caught:
            page.DrawText("x", 1)
        self.assertEqual(str(caught.exception), "PDFPage.DrawText: argument 'y' is missing")
        with self.assertRaises(TypeError) as caught:
            page.DrawText("x", y=1)
        self.assertEqual(str(caught.exception), "PDFPage.DrawText: argument 'x' is missing")
        with self.assertRaises(TypeError) as caught:
            page.DrawText("x", 1, 2, 3)
        self.assertIn("PDFPage.DrawText", str(caught.exception))
        for call in (lambda: page.DrawText(), lambda: page.GetCurPos(1),
                     lambda: self.doc.Pages(), lambda: self.doc.Pages(1, 2),
                     lambda: self.doc.Pages.Add("a", 1, 2, 3)):
            with self.assertRaises(TypeError):
                call()

    def test_wrong_kind(self):
        page, = self.pages("a")
        for wrong in ("1", True, False, [], {}, object(), page, 1j, ...):
            self.assertRaisesNumber(13, page.SetCurPos, wrong, 0)
            self.assertRaisesNumber(13, setattr, page, "Width", wrong)
        for wrong in (1, 1.5, True, [], object(), page):
            self.assertRaisesNumber(13, page.DrawText, wrong, 0, 0)
        for wrong in (1, "Courier", True, [], self.doc):
            self.assertRaisesNumber(13, setattr, page, "Font", wrong)
        for wrong in ([], object(), page, True, slice(1, 2)):
            self.assertRaisesNumber(13, self.doc.Pages, wrong)
        self.assertRaisesNumber(13, lambda: self.doc.Pages[1:2])
        # What never raises finds nothing.
        for wrong in ([], object(), page, True, None, b"a", 1j):
            self.assertIs(self.doc.Pages.KeyExists(wrong), False)
            self.assertNotIn(wrong, self.doc.Pages)
        other, = self.pages("b")
        self.doc.Pages.ReOrder("a", After="b")
        self.assertEqual(list(self.doc.Pages), [other, page])
        self.assertIsNone(self.doc.Pages.ReOrder("a", Before=[]))
        self.assertEqual(list(self.doc.Pages), [other])
        self.assertRaisesNumber(13, page.DrawRect, 0, 0, 1, 1, "yes")
        for number in (0, 1, 2, -1, 0.5):
            self.doc.ViewerPreferences.FitWindow = number
            self.assertIs(self.doc.ViewerPreferences.FitWindow, number != 0)
        # What other types of numbers say that they are.
        page.SetCurPos(decimal.Decimal("1.5"), fractions.Fraction(1, 4))
        self.assertEqual(page.GetCurPos(), (1.5, 0.25))

    def test_large_numbers(self):
        page, = self.pages("a")
        for large in (1e39, -1e39, 10 ** 39, 10 ** 400, -10 ** 400):
            self.assertRaisesNumber(6, page.SetCurPos, large, 0)
        for large in (2 ** 31, -2 ** 31 - 1, 2 ** 63, 2 ** 64, 10 ** 400, 1e10):
            self.assertRaisesNumber(6, self.doc.Pages, large)
            self.assertRaisesNumber(6, setattr, page.GraphicsState, "FillColor", large)
        self.assertRaisesNumber(9, self.doc.Pages, 2 ** 31 - 1)

    def test_whole_numbers(self):
        self.pages("a", "b", "c")
        pages = self.doc.Pages
        self.assertIs(pages.Item(1.5), pages.Item(2))
        self.assertIs(pages.Item(2.5), pages.Item(2))
        self.assertIs(pages.Item(decimal.Decimal("2.51")), pages.Item(3))
        self.assertRaisesNumber(9, pages.Item, 0.5)
        box = self.doc.Pages("a").TextBoxes.Add()
        box.Text = "text"
        box.SelStart = 2.5
        self.assertEqual(box.SelStart, 2)

    # Texts and values

    TEXTS = ("", "plain", "Grüße", "€uro", "日本語", "\U0001F600 beyond", "a\0b", "\0", "\ufeff",
             "\uffff", "x" * 10000, "é" * 10000, "\U0001F600" * 10000)

    def test_text(self):
        self.assert_texts_come_back(self.TEXTS)
        box = self.doc.Pages.Add().TextBoxes.Add()
        box.Text = "a\U0001F600b"
        box.SelStart, box.SelLength = 1, 2
        self.assertEqual(box.SelText, "\U0001F600")
        box.SelStart, box.SelLength = 3, 1
        self.assertEqual((box.SelStart, box.SelText), (3, "b"))

    def test_lone_surrogates(self):
        self.assert_texts_come_back(("\ud800", "a\udfffb", "\udc00\ud800", "\ud800" * 1000,
                                     "\U0001F600\ud83d"))

    def assert_texts_come_back(self, texts):
        for text in texts:
            bookmark = self.doc.Bookmarks.Add(text)
            bookmark.Title = text
            bookmark.Tag = text
            box = self.doc.Pages.Add().TextBoxes.Add()
            box.Text = text
            for back in (bookmark.Key, bookmark.Title, bookmark.Tag, box.Text):
                self.assertEqual(back, text)
            if text:
                self.assertIs(self.doc.Bookmarks(text), bookmark)

    def test_bytes(self):
        page, = self.pages("a")
        for given in (b"a", bytearray(b"a"), memoryview(b"a")):
            self.assertRaisesNumber(13, page.DrawText, given, 0, 0)
            self.assertRaisesNumber(13, self.doc.Pages, given)
            self.assertRaisesNumber(13, setattr, self.doc.Bookmarks.Add(), "Title", given)
            self.assertRaisesNumber(13, self.doc.SavePDFFile, given)

    def test_tags(self):
        page, = self.pages("a")
        tagged = [self.doc, page, self.doc.Templates.Add(), self.doc.Images.Add(),
                  page.TextBoxes.Add(), self.doc.Bookmarks.Add(), page.HyperLinks.Add()]
        values = [Value(), [], 10 ** 400, True, 1.5, "text" * 3, b"bytes", page, self.doc, len,
                  folivar.htaLeft, float("nan"), ...]
        for one in tagged:
            self.assertIsNone(one.Tag)
            for value in values:
                one.Tag = value
                self.assertIs(one.Tag, value)
            one.Tag = value = Value()
            watched = weakref.ref(value)
            del value
            one.tag = None
            self.assertIsNone(one.Tag)
            self.assertIsNone(watched())

    # Events and warnings

    def test_page_removed(self):
        page, other = self.pages("a", "b")
        heard = []
        stops = [page.PageRemoved(lambda page, n=n: heard.append((n, page))) for n in range(3)]
        self.assertIsNone(stops[1]())
        self.assertIsNone(stops[1]())
        self.doc.Pages.Remove("b")
        self.assertEqual(heard, [])
        self.doc.Pages.Remove("a")
        self.assertEqual(heard, [(0, page), (2, page)])
        self.assertIsNone(stops[0]())

        page, = self.pages("c")
        heard.clear()
        page.PageRemoved(lambda page: (heard.append("first"), stop(), page.PageRemoved(late)))
        stop = page.PageRemoved(lambda page: heard.append("stopped"))
        late = lambda page: heard.append("late")
        page.PageRemoved(lambda page: heard.append("last"))
        self.doc.Pages.Remove("c")
        self.assertEqual(heard, ["first", "last"])
        with self.assertRaises(TypeError):
            page.PageRemoved("no function")
        with self.assertRaises(TypeError):
            page.PageRemoved()

    def test_handler_exception(self):
        page, = self.pages("a")
        thrown = [KeyError("first"), ValueError("second")]
        heard = []
        reported = []
        self.hear_unraisable(reported)

        def throw(exception):
            raise exception

        page.PageRemoved(lambda page: throw(thrown[0]))
        page.PageRemoved(lambda page: heard.append(self.doc.Pages.Add("added").Key))
        page.PageRemoved(lambda page: throw(thrown[1]))
        try:
            self.doc.Pages.Remove("a")
        except KeyError as caught:
            self.assertIs(caught, thrown[0])
            self.assertEqual(traceback.extract_tb(caught.__traceback__)[-1].name, "throw")
        else:
            self.fail("nothing was raised")
        self.assertEqual(heard, ["added"])
        self.assertNotIn("a", self.doc.Pages)
        self.assertEqual(reported, [thrown[1]])

    def hear_unraisable(self, reported):
        self.addCleanup(setattr, sys, "unraisablehook", sys.unraisablehook)
        sys.unraisablehook = lambda unraisable: reported.append(unraisable.exc_value)

    def test_dropped_exception(self):
        first, second = self.pages("a", "b")
        thrown = ValueError("dropped")
        reported = []
        self.hear_unraisable(reported)

        def throw(page):
            raise thrown

        first.PageRemoved(throw)
        self.doc.Pages.ReOrder("a", After="b")
        self.assertEqual(list(self.doc.Pages), [second, first])
        self.assertEqual(reported, [thrown])

    def test_warnings_function(self):
        old = self.doc
        folivar.warnings(None)
        heard = []
        folivar.warnings(heard.append)
        new = folivar.PDFDocument()
        folivar.warnings(None)
        old.Fonts.Add("Arial-Bold")
        self.assertEqual((len(self.warned), heard), (1, []))
        self.assertIn("Arial-Bold", self.warned[0])
        new.Fonts.Add("Arial-Bold")
        self.assertEqual(heard, self.warned)

        thrown = LookupError("of the function")

        def throw(text):
            raise thrown

        folivar.warnings(throw)
        doc = folivar.PDFDocument()
        with self.assertRaises(LookupError) as caught:
            doc.Fonts.Add("Arial-Bold")
        self.assertIs(caught.exception, thrown)
        for wrong in ("text", 5, object()):
            with self.assertRaises(TypeError):
                folivar.warnings(wrong)
        with self.assertRaises(LookupError):
            folivar.PDFDocument().Fonts.Add("Arial-Bold")

    def test_warnings_logger(self):
        stream = io.StringIO()
        logger = logging.Logger("folivar")
        logger.addHandler(logging.StreamHandler(stream))
        folivar.warnings(logger)
        folivar.PDFDocument().Fonts.Add("Arial-Bold")
        self.assertIn("Arial-Bold", stream.getvalue())

    def run_python(self, script, **environment):
        return subprocess.run([sys.executable, "-c", script], env={**os.environ, **environment},
                              capture_output=True, text=True, check=False)

    def test_warnings_environment(self):
        script = "import folivar; folivar.PDFDocument().Fonts.Add('Arial-Bold')"
        with tempfile.TemporaryDirectory() as folder:
            log = pathlib.Path(folder, "warnings.log")
            ran = self.run_python(script, FOLIVAR_WARNINGS="log", FOLIVAR_WARNINGS_FILE=str(log))
            self.assertEqual((ran.returncode, ran.stdout, ran.stderr), (0, "", ""))
            self.assertIn("Arial-Bold", log.read_text(encoding="utf-8"))
        ran = self.run_python(script, FOLIVAR_WARNINGS="off")
        self.assertEqual((ran.returncode, ran.stdout, ran.stderr), (0, "", ""))
        ran = self.run_python(script, FOLIVAR_WARNINGS="err")
        self.assertEqual((ran.returncode, ran.stdout), (0, ""))
        self.assertIn("Arial-Bold", ran.stderr)

    # Threads and interpreters

    def fill(self, doc):
        """So much that to save it takes its time."""
        line = "a line of text " * 10
        for _ in range(20):
            page = doc.Pages.Add()
            page.Font = doc.Fonts.Add("Courier")
            for y in range(2000):
                page.DrawText(line, 72, y)

    def test_other_threads(self):
        """A save into a pipe waits for the thread that reads it: it has let others run."""
        self.fill(self.doc)
        with tempfile.TemporaryDirectory() as folder:
            file = os.path.join(folder, "pipe")
            os.mkfifo(file)
            read = []
            reader = threading.Thread(target=lambda: read.append(pathlib.Path(file).read_bytes()))
            reader.start()
            self.doc.SavePDFFile(file)
            reader.join()
            self.assertTrue(read[0].startswith(b"%PDF-"))
            self.assertTrue(read[0].rstrip().endswith(b"%%EOF"))

    def test_other_document(self):
        other = folivar.PDFDocument()
        page = other.Pages.Add("other")
        destination = self.doc.Bookmarks.Add().Destination
        with self.assertRaises(folivar.Error) as caught:
            destination.page = page
        self.assertEqual(caught.exception.number, 5)
        self.assertEqual(str(caught.exception),
                         "PDFLinkDestination.page: belongs to another document")
        self.assertIsNone(destination.page)
        own = self.doc.Pages.Add("own")
        self.assertRaisesNumber(5, own.DrawTemplate, other.Templates.Add())
        own.Tag = page
        self.assertIs(own.Tag, page)

    def test_two_threads(self):
        """While one thread saves into a pipe that nobody reads yet, another uses the document."""
        self.fill(self.doc)
        page = self.doc.Pages[1]
        with tempfile.TemporaryDirectory() as folder:
            file = os.path.join(folder, "pipe")
            os.mkfifo(file)
            saver = threading.Thread(target=self.doc.SavePDFFile, args=(file,))
            saver.start()
            with open(file, "rb") as pipe:  # from here on the save is under way
                pipe.read(1)
                self.assertRaisesNumber(70, page.DrawText, "x", 0, 0)
                self.assertEqual(repr(page), "<folivar.PDFPage>")
                del page  # which may be let go of at any time
                while pipe.read(1 << 20):
                    pass
            saver.join()
        self.doc.Pages[1].DrawText("x", 0, 0)

    def test_interpreters(self):
        script = """
import sys
try:
    import _interpreters as interpreters
except ImportError:
    import _xxsubinterpreters as interpreters
import folivar
other = interpreters.create()
code = '''
try:
    import folivar
except ImportError as error:
    print("refused:", error)
else:
    print("imported")
'''
if sys.version_info < (3, 13):
    interpreters.run_string(other, code)
else:
    interpreters.exec(other, code)
"""
        ran = self.run_python(script)
        self.assertEqual((ran.returncode, ran.stderr), (0, ""))
        self.assertTrue(ran.stdout.startswith("refused: "), ran.stdout)
        self.assertIn("folivar", ran.stdout)
        self.assertIn("interpreter", ran.stdout)

    # What Python shows

    def test_creation(self):
        self.assertIs(type(folivar.PDFDocument()), folivar.PDFDocument)
        for name in dir(folivar):
            made = getattr(folivar, name)
            if not name.startswith("PDF") or issubclass(made, int) or name == "PDFDocument":
                continue
            with self.assertRaises(TypeError) as caught:
                made()
            self.assertIn(name, str(caught.exception))
        with self.assertRaises(TypeError):
            folivar.PDFDocument(1)
        with self.assertRaises(TypeError):
            folivar.PDFDocument(name=1)
        with self.assertRaises(TypeError):
            object.__new__(folivar.PDFPage)
        with self.assertRaises(TypeError):
            type("Sub", (folivar.PDFPage,), {})

    def test_representation(self):
        page, keyless, quoted = self.pages("a", "", "it's")
        self.assertEqual(repr(page), "<folivar.PDFPage 'a'>")
        self.assertEqual(repr(keyless), "<folivar.PDFPage>")
        self.assertEqual(repr(quoted), "<folivar.PDFPage \"it's\">")
        self.assertEqual(repr(self.doc), "<folivar.PDFDocument>")
        self.assertEqual(str(page.TextBoxes.Add("box")), "<folivar.PDFTextBox 'box'>")

    def test_documentation(self):
        page = folivar.PDFPage
        self.assertEqual(page.__doc__, "A page of a document")
        self.assertEqual(page.DrawLineTo.__doc__,
                         "Strokes a line from the pen and moves the pen to its end")
        self.assertEqual(page.Width.__doc__, "Width in points")
        self.assertEqual(page.PageRemoved.__doc__, "The page is about to leave the document")
        self.assertEqual(folivar.PDFFontType.__doc__, "The two kinds of faces")
        self.assertEqual(
            str(inspect.signature(page.DrawRect)),
            "(self, /, Left, Bottom, Width, Height, Stroke=True, Fill=False)")
        self.assertEqual(str(inspect.signature(folivar.PDFPages.Add)),
                         "(self, /, sKey='', Before=Ellipsis, After=Ellipsis)")
        self.assertTrue(folivar.Error.__doc__)
        self.assertTrue(folivar.warnings.__doc__)


if __name__ == "__main__":
    unittest.main()
