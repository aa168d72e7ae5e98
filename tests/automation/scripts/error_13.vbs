' Type mismatch: what is no number, no position or key, or an object of another class.
Dim page, found
Set page = doc.Pages.Add
On Error Resume Next
page.Width = "wide"
Outcome "Width"
Set found = doc.Pages.Item(Nothing)
Outcome "Item(Nothing)"
Set found = doc.Pages.Item(Array(1))
Outcome "Item(Array(1))"
doc.Pages.Add , Nothing
Outcome "Before Nothing"
Set page.Font = page
Outcome "a page for a font"
Set page.Font = CreateObject("Scripting.Dictionary")
Outcome "an object of others"
page.DrawImage 5, 1, 2
Outcome "a number for an image"
page.DrawRect 1, 2, 3, 4, "perhaps"
Outcome "a text for a flag"
page.DrawTemplate doc.Templates.Add, "a", 2
Outcome "a text for a place"
page.TextBoxes.Add.SelBold = "perhaps"
Outcome "SelBold"
WScript.Echo "DONE"
