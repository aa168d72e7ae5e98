' A key in use, in any case of its letters.
Sub AddTwice(members)
  members.Add "a"
  On Error Resume Next
  members.Add "A"
  Outcome "twice"
  Say "count", members.count
End Sub

doc.Pages.Add "k" & Chr(233) & "y"
On Error Resume Next
doc.Pages.Add "K" & Chr(201) & "Y"
Say "an accent", Err.Number
Err.Clear
AddTwice doc.Templates
AddTwice doc.Images
AddTwice doc.Bookmarks
AddTwice doc.Pages(1).TextBoxes
AddTwice doc.Pages(1).HyperLinks
WScript.Echo "DONE"
