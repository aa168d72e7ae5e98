' A title that would carry an action into the file, and what line ends and backslashes become.
Dim attack
attack = "Chapter 1) /A << /S /Launch /F (cmd.exe) >> /X ("
doc.Bookmarks.Add.Title = attack
Say "as it stands", CountInFile("<< /Title (" & attack & ")")
doc.Bookmarks(1).Title = EscapeTitle(attack)
Say "as it stands", CountInFile("<< /Title (" & attack & ")")
Say "escaped", CountInFile("<< /Title (Chapter 1\) /A << /S /Launch /F \(cmd.exe\) >> /X \()")
doc.Bookmarks(1).Title = EscapeTitle("a\b" & vbCrLf & "\(")
Say "lines and backslashes", CountInFile("<< /Title (a\\b\r\n\\\()")
doc.Bookmarks(1).Title = EscapeTitle("")
Say "of nothing", CountInFile("<< /Title ()")
WScript.Echo "DONE"
