' Permission denied: a folder where the file should be.
CreateObject("Scripting.FileSystemObject").CreateFolder "folder"
On Error Resume Next
doc.SavePDFFile "folder"
Outcome "a folder"
WScript.Echo "DONE"
