' Invalid use of Null: where a position, a number or a flag is wanted.
Dim page, box, found
Set page = doc.Pages.Add
Set box = page.TextBoxes.Add
On Error Resume Next
Set found = doc.Pages.Item(Null)
Outcome "Item(Null)"
doc.Pages.Add , Null
Outcome "Before Null"
box.Move 1, Null
Outcome "Move to Null"
box.SelColor = Null
Outcome "SelColor = Null"
box.SelBold = Null
Outcome "SelBold = Null"
found = page.Font.TextHeight(Null)
Outcome "TextHeight(Null)"
page.DrawTemplate doc.Templates.Add, Null, 2
Outcome "DrawTemplate at Null"
WScript.Echo "DONE"
