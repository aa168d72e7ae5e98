' Subscript out of range: positions, and what was never pushed.
Dim found
doc.Pages.Add
On Error Resume Next
Set found = doc.Pages.Item(0)
Outcome "Item(0)"
Set found = doc.Pages(2)
Outcome "Item(2)"
doc.Pages.Remove -1
Outcome "Remove(-1)"
doc.Pages.Add , 2
Outcome "Before 2"
Set found = doc.Templates.Item(1)
Outcome "a template"
Set found = doc.Fonts.Item(9, 0)
Outcome "a font"
doc.Pages(1).GraphicsState.Pop
Outcome "Pop"
Say "count", doc.Pages.count
WScript.Echo "DONE"
