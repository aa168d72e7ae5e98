' A file that is no image we read: the error for it is -2147220504, 800403E8 in hexadecimal.
Dim files, image
Set files = CreateObject("Scripting.FileSystemObject")
files.CreateTextFile("text.jpg").Write "no frame header"
files.CreateTextFile("text.bmp").Write "BM"
Set image = doc.Images.Add
On Error Resume Next
image.FileName = "text.png"
Outcome "another extension"
image.FileName = "text"
Outcome "no extension"
image.FileName = "text.jpg"
Outcome "no JPEG"
image.FileName = "text.bmp"
Say "no BMP", Err.Number & " " & Err.Description
Say "in hexadecimal", Hex(Err.Number)
WScript.Echo "DONE"
