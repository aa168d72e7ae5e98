' The document of tests/golden/navigation.pdf.
Dim key, title, first, closed, hidden, link
For Each key In Array("one", "two", "three")
  doc.Pages.Add key
Next
Set first = doc.Bookmarks.Add
first.Title = "1 Expanded"
first.Expanded = True
Set first.Destination.page = doc.Pages("one")
first.Destination.DestinationMode = 1
For Each title In Array("1.1 Closed", "1.2 Leaf")
  first.SubBookmarks.Add.Title = title
Next
Set closed = first.SubBookmarks(1)
closed.SubBookmarks.Add.Title = "1.1.1 Hidden"
Set closed.Destination.page = doc.Pages("two")
closed.Destination.Top = 700.5
Set hidden = closed.SubBookmarks(1).Destination
Set hidden.page = doc.Pages("three")
hidden.SetRegion 72, 600, 100, -50
hidden.DestinationMode = 4
doc.Bookmarks.Add.Title = "2 No page"

Set link = doc.Pages("one").HyperLinks.Add
link.SetRegion 10, 10, 100, 20
Set link.Destination.page = doc.Pages("two")
Set link = doc.Pages("one").HyperLinks.Add("dashed")
link.SetRegion 72, 72, 144.5, -10
link.LinkHighlightAction = 4
link.BorderWidth = 2
link.SetBorderDashPattern 3, 2
link.BorderColor = 255
Set link.Destination.page = doc.Pages("three")
link.Destination.DestinationMode = 2
Set link = doc.Pages("three").HyperLinks.Add
link.BorderWidth = 0
link.SetRegion 0, 0, 612, 792
doc.SavePDFFile "navigation.pdf"

Set doc = CreateObject("Folivar.PDFDocument")
Dim page, bookmark
Set bookmark = doc.Bookmarks.Add("first")
Say "Key", bookmark.Key
Say "Title", "[" & bookmark.Title & "]"
Say "Expanded", bookmark.Expanded
Say "SubBookmarks", bookmark.SubBookmarks.count
Say "Destination", bookmark.Destination.page Is Nothing
Say "the same each time", (bookmark.SubBookmarks Is bookmark.SubBookmarks) And _
  (bookmark.Destination Is bookmark.Destination)
bookmark.Title = "a(b)"
bookmark.SubBookmarks.Add.Title = "one"
bookmark.SubBookmarks.Add.Title = "two"
Say "closed", CountInFile("/Count 1") & " " & CountInFile("/Count -2>>")
bookmark.Expanded = True
Say "expanded", CountInFile("/Count 3") & " " & CountInFile("/Count 2>>")
' The title is written as it is.
Say "title in the file", CountInFile("<< /Title (a(b))")
Set page = doc.Pages.Add
Set bookmark.Destination.page = page
bookmark.Destination.DestinationMode = 1
Say "destination in the file", CountInFile("/Count 2/Dest [ 7 0 R /Fit ]")
bookmark.Tag = 1.5
Say "Tag", bookmark.Tag
Set bookmark.Tag = page
Say "Tag", bookmark.Tag Is page
bookmark.Tag = Empty
On Error Resume Next
Set bookmark.Destination = bookmark.Destination
Outcome "Destination cannot be set"
WScript.Echo "DONE"
