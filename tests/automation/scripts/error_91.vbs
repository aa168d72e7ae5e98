' Object not set: Nothing where an object is wanted.
Dim page
Set page = doc.Pages.Add
On Error Resume Next
Set page.Font = Nothing
Outcome "no font"
page.DrawTemplate Nothing
Outcome "no template"
page.DrawImage Nothing, 1, 2
Outcome "no image"
page.TextBoxes.Add.Copy Nothing
Outcome "no text box"
doc.Images.Add "blank"
doc.SavePDFFile "saved.pdf"
Outcome "an image that was never given a file"
WScript.Echo "DONE"
