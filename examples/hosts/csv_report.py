"""The half year of a workshop as its account tells it: figures, a chart, and every entry.

PYTHONPATH=build/hosts/python python3 csv_report.py statement.csv report.pdf

The file has the columns date, description and amount; its first entry is the opening balance.
"""

import csv
import datetime
import decimal
import itertools
import sys
from typing import NamedTuple

import folivar

INK, QUIET, HAIRLINE, BAND = 0x2B2622, 0x7A726B, 0xCEC9C4, 0xF7F6F5  # blue, green, red
INCOME, EXPENSE = 0x5F4E1F, 0x5A8CD9
WIDTH, HEIGHT, MARGIN = 595, 842, 56
RIGHT = WIDTH - MARGIN


class Entry(NamedTuple):
    date: datetime.date
    description: str
    amount: decimal.Decimal


class Month(NamedTuple):
    name: str
    entries: list

    @property
    def income(self):
        return sum(entry.amount for entry in self.entries if entry.amount > 0)

    @property
    def expenses(self):
        return -sum(entry.amount for entry in self.entries if entry.amount < 0)


def read_months(file):
    """The opening balance, and what came after it month by month."""
    with open(file, encoding="utf-8", newline="") as lines:
        opening, *entries = [
            Entry(datetime.date.fromisoformat(row["date"]), row["description"],
                  decimal.Decimal(row["amount"])) for row in csv.DictReader(lines)]
    groups = itertools.groupby(entries, key=lambda entry: f"{entry.date:%B %Y}")
    return opening.amount, [Month(name, list(group)) for name, group in groups]


def money(amount, digits=2):
    return f"{amount:,.{digits}f}".replace("-", "–")


def long_date(date):
    return f"{date.day} {date:%B %Y}"


class Report:
    def __init__(self, title):
        self.title = title
        self.document = folivar.PDFDocument()
        self.document.ViewerPreferences.PageMode = folivar.pmsUseOutlines
        self.fonts = {}

    def add_page(self):
        page = self.document.Pages.Add()
        page.SetPageExtents(WIDTH, HEIGHT)
        return page

    def font(self, size, bold=False):
        """Fonts are shared: one for each size and face."""
        if (size, bold) not in self.fonts:
            font = self.document.Fonts.Add("Liberation Sans", folivar.fontTrueType, Embed=True)
            font.Bold = bold
            font.Size = size
            self.fonts[size, bold] = font
        return self.fonts[size, bold]

    def write(self, page, text, x, y, size=9, bold=False, color=INK, align=folivar.htaLeft):
        """At the left of x, at its right, or around it."""
        page.Font = font = self.font(size, bold)
        page.GraphicsState.FillColor = color
        x -= {folivar.htaLeft: 0, folivar.htaCenter: 0.5, folivar.htaRight: 1}[align] * \
            font.TextWidth(text)
        page.DrawText(text, x, y)

    def fitted(self, text, width, size=9):
        """The text, or as much of it as there is room for."""
        font = self.font(size)
        if font.TextWidth(text) <= width:
            return text
        while text and font.TextWidth(text + "…") > width:
            text = text[:-1]
        return text.rstrip() + "…"

    @staticmethod
    def fill(page, left, bottom, width, height, color):
        page.GraphicsState.FillColor = color
        page.DrawRect(left, bottom, width, height, Stroke=False, Fill=True)

    @staticmethod
    def rule(page, y, left=MARGIN, right=RIGHT):
        page.GraphicsState.StrokeColor = HAIRLINE
        page.GraphicsState.LineWidth = 0.5
        page.DrawLine(left, y, right, y)

    def bookmark(self, title, page):
        bookmark = self.document.Bookmarks.Add()
        bookmark.Title = title
        self.lead(bookmark.Destination, page)

    @staticmethod
    def lead(destination, page):
        destination.page = page
        destination.DestinationMode = folivar.dsFit

    def number_pages(self):
        for number, page in enumerate(self.document.Pages, start=1):
            self.rule(page, 48)
            self.write(page, self.title, MARGIN, 34, 8, color=QUIET)
            self.write(page, f"Page {number} of {len(self.document.Pages)}", RIGHT, 34, 8,
                       color=QUIET, align=folivar.htaRight)


def write_summary(report, opening, months):
    page = report.add_page()
    report.bookmark("Summary", page)
    entries = [entry for month in months for entry in month.entries]
    report.write(page, report.title, MARGIN, 762, 26, bold=True)
    dates = f"{long_date(entries[0].date)} to {long_date(entries[-1].date)}"
    report.write(page, f"{dates}, {len(entries)} entries", MARGIN, 742, 11, color=QUIET)
    closing = opening + sum(entry.amount for entry in entries)
    figures = (("Opening balance", opening), ("Income", sum(month.income for month in months)),
               ("Expenses", sum(month.expenses for month in months)), ("Closing balance", closing))
    for place, (name, amount) in enumerate(figures):
        left = MARGIN + place * 124
        report.fill(page, left, 662, 111, 56, BAND)
        report.fill(page, left, 662, 3, 56, (QUIET, INCOME, EXPENSE, QUIET)[place])
        report.write(page, name, left + 14, 698, 9, color=QUIET)
        report.write(page, money(amount), left + 14, 676, 15, bold=True)
    write_chart(report, page, months)
    return page


def write_chart(report, page, months):
    """Two bars for each month, above a scale in thousands."""
    left, bottom, height = MARGIN + 44, 420, 180
    most = max(max(month.income, month.expenses) for month in months)
    top = (most // 5000 + 1) * 5000
    report.write(page, "Income and expenses by month", MARGIN, 624, 12, bold=True)
    for name, color, x in (("Income", INCOME, 420), ("Expenses", EXPENSE, 482)):
        report.fill(page, x, 624, 8, 8, color)
        report.write(page, name, x + 12, 624.5, 9, color=QUIET)
    for value in range(0, int(top) + 1, 5000):
        y = bottom + height * value / float(top)
        report.rule(page, y, left)
        report.write(page, money(value, 0), left - 8, y - 3, 8, color=QUIET, align=folivar.htaRight)
    step = (RIGHT - left) / len(months)
    for place, month in enumerate(months):
        middle = left + step * (place + 0.5)
        for x, amount, color in ((middle - 22, month.income, INCOME),
                                 (middle + 2, month.expenses, EXPENSE)):
            report.fill(page, x, bottom, 20, height * float(amount / top), color)
        report.write(page, month.name.split()[0], middle, bottom - 14, 9, align=folivar.htaCenter)


def write_overview(report, page, opening, months, first_pages):
    """A line for each month, which leads to its entries."""
    columns = (("Entries", 250), ("Income", 335), ("Expenses", 420), ("Balance", RIGHT))
    report.write(page, "Month", MARGIN, 362, 9, bold=True)
    for name, right in columns:
        report.write(page, name, right, 362, 9, bold=True, align=folivar.htaRight)
    y, balance = 354, opening
    for month, target in zip(months, first_pages):
        report.rule(page, y)
        y -= 20
        balance += month.income - month.expenses
        report.write(page, month.name, MARGIN, y + 6, 10, color=INCOME)
        cells = (str(len(month.entries)), money(month.income), money(month.expenses),
                 money(balance))
        for text, (_, right) in zip(cells, columns):
            report.write(page, text, right, y + 6, 10, align=folivar.htaRight)
        link = page.HyperLinks.Add()
        link.SetRegion(MARGIN, y, RIGHT - MARGIN, 20)
        link.BorderWidth = 0
        report.lead(link.Destination, target)
    report.rule(page, y)


def write_month(report, month, balance):
    """All entries, on as many pages as they need. Returns the first page and the new balance."""
    first = page = None
    for place, entry in enumerate(month.entries):
        if page is None or y < 84:
            page = begin_month_page(report, month.name + ("" if first is None else ", continued"))
            first, y = first or page, 716
        balance += entry.amount
        if place % 2 == 0:
            report.fill(page, MARGIN, y - 5, RIGHT - MARGIN, 17, BAND)
        report.write(page, f"{entry.date.day} {entry.date:%b}", MARGIN + 6, y)
        report.write(page, report.fitted(entry.description, 270), MARGIN + 56, y)
        report.write(page, money(entry.amount), 440, y, align=folivar.htaRight,
                     color=INCOME if entry.amount > 0 else INK, bold=entry.amount > 0)
        report.write(page, money(balance), RIGHT - 6, y, align=folivar.htaRight)
        y -= 17
    report.bookmark(month.name, first)
    return first, balance


def begin_month_page(report, title):
    page = report.add_page()
    report.write(page, title, MARGIN, 770, 16, bold=True)
    for name, x, align in (("Date", MARGIN + 6, folivar.htaLeft),
                           ("Description", MARGIN + 56, folivar.htaLeft),
                           ("Amount", 440, folivar.htaRight),
                           ("Balance", RIGHT - 6, folivar.htaRight)):
        report.write(page, name, x, 740, 9, bold=True, color=QUIET, align=align)
    report.rule(page, 732)
    return page


def write_report(csv_file, pdf_file):
    opening, months = read_months(csv_file)
    report = Report("Half year of the workshop")
    summary = write_summary(report, opening, months)
    first_pages, balance = [], opening
    for month in months:
        first, balance = write_month(report, month, balance)
        first_pages.append(first)
    write_overview(report, summary, opening, months, first_pages)
    report.number_pages()
    report.document.SavePDFFile(pdf_file)


if __name__ == "__main__":
    write_report(sys.argv[1], sys.argv[2])
