"""What Python alone has to give: paths, numbers of other types, subclasses."""

import enum
import os
import pathlib
import tempfile
import unittest

import folivar


class Number:
    def __init__(self, value):
        self.value = value

    def give(self):
        if isinstance(self.value, Exception):
            raise self.value
        return self.value


class Index(Number):
    __index__ = Number.give


class Real(Number):
    __float__ = Number.give


class Path:
    def __init__(self, path):
        self.path = path

    def __fspath__(self):
        return self.path


class Arguments(unittest.TestCase):
    def setUp(self):
        self.doc = folivar.PDFDocument()
        self.page = self.doc.Pages.Add("a")

    def assertRaisesNumber(self, number, function, *arguments):
        with self.assertRaises(folivar.Error) as caught:
            function(*arguments)
        self.assertEqual(caught.exception.number, number)

    def test_path_where_a_text_is_wanted(self):
        with tempfile.TemporaryDirectory() as folder:
            file = pathlib.Path(folder, "Grüße.pdf")
            self.doc.SavePDFFile(file)
            self.assertTrue(file.read_bytes().startswith(b"%PDF-"))
        image = self.doc.Images.Add()
        self.assertRaisesNumber(53, setattr, image, "FileName", pathlib.Path("none.jpg"))
        self.assertRaisesNumber(13, self.doc.SavePDFFile, Path(b"bytes.pdf"))
        self.assertFalse(os.path.exists("bytes.pdf"))
        with self.assertRaises(TypeError):
            self.doc.SavePDFFile(Path(5))
        self.assertRaisesNumber(13, self.doc.Pages, pathlib.Path("a"))

    def test_numbers_of_other_types(self):
        self.assertIs(self.doc.Pages(Index(1)), self.page)
        self.page.SetCurPos(Index(3), Real(0.5))
        self.assertEqual(self.page.GetCurPos(), (3, 0.5))
        self.assertRaisesNumber(6, self.page.SetCurPos, Index(10 ** 400), 0)
        for wrong in (Index, Real):
            thrown = KeyError("of the number")
            with self.assertRaises(KeyError) as caught:
                self.page.SetCurPos(wrong(thrown), 0)
            self.assertIs(caught.exception, thrown)

    def test_subclasses(self):
        class Text(str):
            pass

        class Whole(int):
            pass

        class Single(float):
            pass

        class Choice(enum.IntEnum):
            FIRST = 1

        for key in (Text("a"), Whole(1), Single(1.0), Choice.FIRST):
            self.assertIs(self.doc.Pages(key), self.page)

    def test_integers_at_the_edges(self):
        state = self.page.GraphicsState
        for edge in (2 ** 31 - 1, -2 ** 31):
            preferences = self.doc.ViewerPreferences
            preferences.PageLayout = edge
            self.assertEqual(preferences.PageLayout, edge)
        for beyond in (2 ** 31, -2 ** 31 - 1, 2 ** 63 - 1, 2 ** 63, -2 ** 63, -2 ** 63 - 1):
            self.assertRaisesNumber(6, setattr, state, "FillColor", beyond)

    def test_names_of_the_arguments_of_calls(self):
        fonts = self.doc.Fonts
        self.assertEqual(fonts(FontType=folivar.fontType1, vntIndexKey=1).FontType, 0)
        with self.assertRaises(TypeError):
            fonts(1, fontType=0, FontType=0)
        with self.assertRaises(TypeError):
            self.page.PageRemoved(handler=print)
        with self.assertRaises(TypeError):
            self.page.DrawText(**{"Text": "x", "x": 1, "y": 2, "z": 3})


if __name__ == "__main__":
    unittest.main()
