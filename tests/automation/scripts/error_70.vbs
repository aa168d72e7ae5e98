' Permission denied: a folder where the file should be, and a picture that the document reads, under
' whatever name.
Dim files, size
Set files = CreateObject("Scripting.FileSystemObject")
files.CreateFolder "folder"
files.CopyFile WScript.Arguments(0) & "\chart.bmp", "chart.bmp"
size = files.GetFile("chart.bmp").Size
doc.Images.Add.FileName = "chart.bmp"
On Error Resume Next
doc.SavePDFFile "folder"
Outcome "a folder"
doc.SavePDFFile "chart.bmp"
Outcome "a picture"
doc.SavePDFFile ".\CHART.BMP"
Outcome "by another name"
Say "the picture is whole", files.GetFile("chart.bmp").Size = size
WScript.Echo "DONE"
