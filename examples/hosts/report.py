"""A small report: text, a box, a picture, a link, bookmarks.

PYTHONPATH=build/hosts/python python3 report.py picture.jpg report.pdf
"""

import sys

import folivar

DS_FIT = 1


def add_bookmark(bookmarks, title, page):
    bookmark = bookmarks.Add()
    bookmark.Title = title
    bookmark.Destination.page = page
    bookmark.Destination.DestinationMode = DS_FIT
    return bookmark


def write_report(picture_file, report_file):
    document = folivar.PDFDocument()
    cover = document.Pages.Add("cover")
    details = document.Pages.Add("details")

    heading = document.Fonts.Add("Times-Bold")
    heading.Size = 24
    cover.Font = heading
    cover.DrawText("Quarterly report", 72, 720)

    cover.Font = document.Fonts.Add("Helvetica")
    box = cover.TextBoxes.Add()
    box.Move(72, 690, 300, 60)
    box.SetMargins(6, 6, 6, 6)
    box.Text = (
        "Orders were up by a third. What the harbour shipped, and to whom, is on the next page."
    )
    box.SelStart = 0
    box.SelLength = 26
    box.SelFont = document.Fonts.Add("Helvetica-Bold")
    box.BorderColor = 0x5F4E1F  # blue, green, red

    picture = document.Images.Add()
    picture.FileName = picture_file
    cover.DrawImage(picture, 72, 400, 300, 200)

    cover.DrawText("See the details", 72, 360)
    link = cover.HyperLinks.Add()
    link.SetRegion(70, 355, 80, 16)
    link.BorderWidth = 0
    link.Destination.page = details
    link.Destination.DestinationMode = DS_FIT

    details.DrawText("Details", 72, 720)
    details.DrawLine(72, 712, 372, 712)

    report = add_bookmark(document.Bookmarks, "Quarterly report", cover)
    report.Expanded = True
    add_bookmark(report.SubBookmarks, "Details", details)

    document.SavePDFFile(report_file)


if __name__ == "__main__":
    write_report(sys.argv[1], sys.argv[2])
