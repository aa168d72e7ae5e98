' Overflow: numbers beyond what a Single, a Long or the file can hold.
Dim page, found
Set page = doc.Pages.Add
On Error Resume Next
page.Width = 1E300
Outcome "Width = 1E300"
page.DrawLine 3E9, 0, 0, 0
Outcome "DrawLine from 3E9"
Set found = doc.Pages.Item(3E9)
Outcome "Item(3E9)"
page.GraphicsState.FillColor = 3E9
Outcome "FillColor = 3E9"
page.DrawTemplate doc.Templates.Add, 1E300, 0
Outcome "DrawTemplate at 1E300"
page.TextBoxes.Add.SelColor = 3E9
Outcome "SelColor = 3E9"
page.TextBoxes.Add.Move 0, 1E300
Outcome "Move to 1E300"
Say "nothing was drawn", CountInFile("S")
WScript.Echo "DONE"
