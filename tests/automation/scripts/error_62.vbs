' Input past end: an image file that has become shorter since it was set.
Dim files, image
Set files = CreateObject("Scripting.FileSystemObject")
files.CopyFile WScript.Arguments(0) & "\chart.bmp", "shorter.bmp"
Set image = doc.Images.Add
image.FileName = "shorter.bmp"
files.CopyFile WScript.Arguments(0) & "\sampler.bmp", "shorter.bmp"
On Error Resume Next
doc.SavePDFFile "saved.pdf"
Say "SavePDFFile", Err.Number & " " & Left(Err.Description, 59)
WScript.Echo "DONE"
