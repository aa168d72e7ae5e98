// A small report: text, a box, a picture, a link, bookmarks; late bound. Not run by the tests.
//
//   csc /platform:x86 /r:Microsoft.CSharp.dll report_late.cs && report_late picture.jpg report.pdf
//
// (/platform:x64 for the 64-bit component)

using System;

static class ReportLate
{
    const int dsFit = 1;

    static dynamic AddBookmark(dynamic bookmarks, string title, dynamic page)
    {
        dynamic bookmark = bookmarks.Add();
        bookmark.Title = title;
        bookmark.Destination.page = page;
        bookmark.Destination.DestinationMode = dsFit;
        return bookmark;
    }

    [STAThread]
    static void Main(string[] arguments)
    {
        dynamic document = Activator.CreateInstance(Type.GetTypeFromProgID("Folivar.PDFDocument"));
        dynamic cover = document.Pages.Add("cover");
        dynamic details = document.Pages.Add("details");

        dynamic heading = document.Fonts.Add("Times-Bold");
        heading.Size = 24;
        cover.Font = heading;
        cover.DrawText("Quarterly report", 72, 720);

        cover.Font = document.Fonts.Add("Helvetica");
        dynamic box = cover.TextBoxes.Add();
        box.Move(72, 690, 300, 60);
        box.SetMargins(6, 6, 6, 6);
        box.Text = "Orders were up by a third. What the harbour shipped, and to whom, is on the next page.";
        box.SelStart = 0;
        box.SelLength = 26;
        box.SelFont = document.Fonts.Add("Helvetica-Bold");
        box.BorderColor = 0x5F4E1F; // blue, green, red

        dynamic picture = document.Images.Add();
        picture.FileName = arguments[0];
        cover.DrawImage(picture, 72, 400, 300, 200);

        cover.DrawText("See the details", 72, 360);
        dynamic link = cover.HyperLinks.Add();
        link.SetRegion(70, 355, 80, 16);
        link.BorderWidth = 0;
        link.Destination.page = details;
        link.Destination.DestinationMode = dsFit;

        details.DrawText("Details", 72, 720);
        details.DrawLine(72, 712, 372, 712);

        dynamic report = AddBookmark(document.Bookmarks, "Quarterly report", cover);
        report.Expanded = true;
        AddBookmark(report.SubBookmarks, "Details", details);

        document.SavePDFFile(arguments[1]);
    }
}
