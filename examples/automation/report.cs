// A small report: text, a box, a picture, a link, bookmarks. Not run by the tests.
//
//   csc /platform:x86 report.cs FolivarInterop.cs && report picture.jpg report.pdf
//
// (/platform:x64 for the 64-bit component)

using System;
using Folivar;

static class Report
{
    static PDFBookmark AddBookmark(PDFBookmarks bookmarks, string title, PDFPage page)
    {
        PDFBookmark bookmark = bookmarks.Add();
        bookmark.Title = title;
        bookmark.Destination.page = page;
        bookmark.Destination.DestinationMode = PDFDestinationStyle.dsFit;
        return bookmark;
    }

    [STAThread]
    static void Main(string[] arguments)
    {
        var document = (PDFDocument)new PDFDocumentClass();
        PDFPage cover = document.Pages.Add("cover");
        PDFPage details = document.Pages.Add("details");

        PDFFont heading = document.Fonts.Add("Times-Bold");
        heading.Size = 24;
        cover.Font = heading;
        cover.DrawText("Quarterly report", 72, 720);

        cover.Font = document.Fonts.Add("Helvetica");
        PDFTextBox box = cover.TextBoxes.Add();
        box.Move(72, 690, 300, 60);
        box.SetMargins(6, 6, 6, 6);
        box.Text = "Orders were up by a third. What the harbour shipped, and to whom, is on the next page.";
        box.SelStart = 0;
        box.SelLength = 26;
        box.SelFont = document.Fonts.Add("Helvetica-Bold");
        box.BorderColor = 0x5F4E1F; // blue, green, red

        PDFImage picture = document.Images.Add();
        picture.FileName = arguments[0];
        cover.DrawImage(picture, 72, 400, 300, 200);

        cover.DrawText("See the details", 72, 360);
        PDFHyperLink link = cover.HyperLinks.Add();
        link.SetRegion(70, 355, 80, 16);
        link.BorderWidth = 0;
        link.Destination.page = details;
        link.Destination.DestinationMode = PDFDestinationStyle.dsFit;

        details.DrawText("Details", 72, 720);
        details.DrawLine(72, 712, 372, 712);

        PDFBookmark report = AddBookmark(document.Bookmarks, "Quarterly report", cover);
        report.Expanded = true;
        AddBookmark(report.SubBookmarks, "Details", details);

        document.SavePDFFile(arguments[1]);
    }
}
