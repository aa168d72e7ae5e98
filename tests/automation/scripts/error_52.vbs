' Bad file name.
On Error Resume Next
doc.SavePDFFile ""
Outcome "an empty name"
doc.SavePDFFile "a" & Chr(0) & "b.pdf"
Say "a NUL in the name", Err.Number
WScript.Echo "DONE"
