' Wrong number of arguments; a surplus does nothing.
Dim page, found
Set page = doc.Pages.Add("a")
On Error Resume Next
doc.Pages.Remove 1, 1
Outcome "one too many"
doc.Pages.Remove
Outcome "one too few"
page.DrawLine 1, 2, 3
Outcome "three of four"
page.DrawLine 1, 2, 3, 4, 5
Outcome "five of four"
page.GraphicsState.Push 1
Outcome "one of none"
Set found = doc.Pages.Item
Outcome "no position"
found = doc.Pages.count(1)
Outcome "count with an argument"
Set found = doc.ViewerPreferences(1)
Outcome "an object without a default member"
Say "nothing has happened", KeysOf(doc.Pages) & CountInFile("S")
WScript.Echo "DONE"
