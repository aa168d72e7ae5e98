' Disk full: what a device takes that is always full.
doc.Pages.Add
On Error Resume Next
doc.SavePDFFile "Z:\dev\full"
Outcome "SavePDFFile"
WScript.Echo "DONE"
