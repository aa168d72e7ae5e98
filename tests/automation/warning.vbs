CreateObject("Folivar.PDFDocument").Fonts.Add "Nonesuch"
WScript.Echo "DONE"
