' Each page has the one before it as its tag: all of them end when the last one does.
Dim page, before, number
Set before = Nothing
For number = 1 To 30000
  Set page = doc.Pages.Add
  Set page.Tag = before
  doc.Pages.Remove 1
  Set before = page
Next
Set page = Nothing
Say "pages", doc.Pages.count
Set before = Nothing
Say "pages", doc.Pages.count
WScript.Echo "DONE"
