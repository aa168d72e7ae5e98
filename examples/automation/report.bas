' A small report: text, a box, a picture, a link, bookmarks. Not run by the tests.
'
' Import this file into the VBA editor of Excel, Word or Access, set the reference "Folivar 1.0: PDF
' documents" under Tools > References, and run in the Immediate window:
'
'   WriteReport "C:\pictures\picture.jpg", "C:\reports\report.pdf"
Option Explicit

Public Sub WriteReport(ByVal pictureFile As String, ByVal reportFile As String)
    Dim document As New Folivar.PDFDocument
    Dim cover As Folivar.PDFPage
    Dim details As Folivar.PDFPage
    Set cover = document.Pages.Add("cover")
    Set details = document.Pages.Add("details")

    Dim heading As Folivar.PDFFont
    Set heading = document.Fonts.Add("Times-Bold")
    heading.Size = 24
    Set cover.Font = heading
    cover.DrawText "Quarterly report", 72, 720

    Set cover.Font = document.Fonts.Add("Helvetica")
    Dim box As Folivar.PDFTextBox
    Set box = cover.TextBoxes.Add
    box.Move 72, 690, 300, 60
    box.SetMargins 6, 6, 6, 6
    box.Text = "Orders were up by a third. What the harbour shipped, and to whom, is on the next page."
    box.SelStart = 0
    box.SelLength = 26
    Set box.SelFont = document.Fonts.Add("Helvetica-Bold")
    box.BorderColor = RGB(31, 78, 95)

    Dim picture As Folivar.PDFImage
    Set picture = document.Images.Add
    picture.FileName = pictureFile
    cover.DrawImage picture, 72, 400, 300, 200

    cover.DrawText "See the details", 72, 360
    Dim link As Folivar.PDFHyperLink
    Set link = cover.HyperLinks.Add
    link.SetRegion 70, 355, 80, 16
    link.BorderWidth = 0
    Set link.Destination.page = details
    link.Destination.DestinationMode = dsFit

    details.DrawText "Details", 72, 720
    details.DrawLine 72, 712, 372, 712

    AddBookmark(document.Bookmarks, "Quarterly report", cover).Expanded = True
    AddBookmark document.Bookmarks(1).SubBookmarks, "Details", details

    document.SavePDFFile reportFile
End Sub

Private Function AddBookmark(ByVal bookmarks As Folivar.PDFBookmarks, ByVal title As String, _
                             ByVal page As Folivar.PDFPage) As Folivar.PDFBookmark
    Set AddBookmark = bookmarks.Add
    AddBookmark.Title = title
    Set AddBookmark.Destination.page = page
    AddBookmark.Destination.DestinationMode = dsFit
End Function
