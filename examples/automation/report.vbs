' A small report: text, a box, a picture, a link, bookmarks.
'
'   cscript //nologo report.vbs picture.jpg report.pdf
Option Explicit
Const dsFit = 1
Dim document, cover, details, heading, box, picture, link, bookmark

Set document = CreateObject("Folivar.PDFDocument")
Set cover = document.Pages.Add("cover")
Set details = document.Pages.Add("details")

Set heading = document.Fonts.Add("Times-Bold")
heading.Size = 24
Set cover.Font = heading
cover.DrawText "Quarterly report", 72, 720

Set cover.Font = document.Fonts.Add("Helvetica")
Set box = cover.TextBoxes.Add
box.Move 72, 690, 300, 60
box.SetMargins 6, 6, 6, 6
box.Text = "Orders were up by a third. What the harbour shipped, and to whom, is on the next page."
box.SelStart = 0
box.SelLength = 26
Set box.SelFont = document.Fonts.Add("Helvetica-Bold")
box.BorderColor = RGB(31, 78, 95)

Set picture = document.Images.Add
picture.FileName = WScript.Arguments(0)
cover.DrawImage picture, 72, 400, 300, 200

cover.DrawText "See the details", 72, 360
Set link = cover.HyperLinks.Add
link.SetRegion 70, 355, 80, 16
link.BorderWidth = 0
Set link.Destination.page = details
link.Destination.DestinationMode = dsFit

details.DrawText "Details", 72, 720
details.DrawLine 72, 712, 372, 712

Set bookmark = document.Bookmarks.Add
bookmark.Title = "Quarterly report"
bookmark.Expanded = True
Set bookmark.Destination.page = cover
bookmark.Destination.DestinationMode = dsFit
Set bookmark = bookmark.SubBookmarks.Add
bookmark.Title = "Details"
Set bookmark.Destination.page = details
bookmark.Destination.DestinationMode = dsFit

document.SavePDFFile WScript.Arguments(1)
