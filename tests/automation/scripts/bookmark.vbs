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
