# A small report: text, a box, a picture, a link, bookmarks. Not run by the tests.
#
#   powershell -File report.ps1 C:\pictures\picture.jpg C:\reports\report.pdf
#
# Whole paths: the component's current folder is not that of PowerShell.
param([Parameter(Mandatory)] [string] $PictureFile, [Parameter(Mandatory)] [string] $ReportFile)

$dsFit = 1
$document = New-Object -ComObject Folivar.PDFDocument
$cover = $document.Pages.Add('cover')
$details = $document.Pages.Add('details')

$heading = $document.Fonts.Add('Times-Bold')
$heading.Size = 24
$cover.Font = $heading
$cover.DrawText('Quarterly report', 72, 720)

$cover.Font = $document.Fonts.Add('Helvetica')
$box = $cover.TextBoxes.Add()
$box.Move(72, 690, 300, 60)
$box.SetMargins(6, 6, 6, 6)
$box.Text = 'Orders were up by a third. What the harbour shipped, and to whom, is on the next page.'
$box.SelStart = 0
$box.SelLength = 26
$box.SelFont = $document.Fonts.Add('Helvetica-Bold')
$box.BorderColor = 0x5F4E1F  # blue, green, red

$picture = $document.Images.Add()
$picture.FileName = $PictureFile
$cover.DrawImage($picture, 72, 400, 300, 200)

$cover.DrawText('See the details', 72, 360)
$link = $cover.HyperLinks.Add()
$link.SetRegion(70, 355, 80, 16)
$link.BorderWidth = 0
$link.Destination.page = $details
$link.Destination.DestinationMode = $dsFit

$details.DrawText('Details', 72, 720)
$details.DrawLine(72, 712, 372, 712)

$bookmark = $document.Bookmarks.Add()
$bookmark.Title = 'Quarterly report'
$bookmark.Expanded = $true
$bookmark.Destination.page = $cover
$bookmark.Destination.DestinationMode = $dsFit
$bookmark = $bookmark.SubBookmarks.Add()
$bookmark.Title = 'Details'
$bookmark.Destination.page = $details
$bookmark.Destination.DestinationMode = $dsFit

$document.SavePDFFile($ReportFile)
