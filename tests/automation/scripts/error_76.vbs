' Path not found.
On Error Resume Next
doc.SavePDFFile "no such folder\saved.pdf"
Outcome "a folder that is not there"
WScript.Echo "DONE"
