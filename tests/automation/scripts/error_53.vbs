' File not found.
Dim image
Set image = doc.Images.Add
On Error Resume Next
image.FileName = "none.jpg"
Outcome "a file that is not there"
image.FileName = "no such folder\none.bmp"
Outcome "a folder that is not there"
Say "FileName", "[" & image.FileName & "]"
WScript.Echo "DONE"
