Dim font, names
Say "count", doc.Fonts.count(fontType1) & " " & doc.Fonts.count(fontTrueType)
Set font = doc.Fonts.Add("Courier")
doc.Fonts.Add "courier"
doc.Fonts.Add "Courier-Bold", fontType1
doc.Fonts.Add "Symbol", , False
Say "count", doc.Fonts.count(fontType1)
Say "FontExists", doc.Fonts.FontExists("COURIER", fontType1) & " " & _
  doc.Fonts.FontExists("Times-Roman", fontType1) & " " & doc.Fonts.FontExists("Courier", fontTrueType)
Say "Item(1)", doc.Fonts.Item(1, fontType1).FontFace
Say "Item by name", doc.Fonts.Item("symbol", fontType1).FontFace
Say "Fonts(2)", doc.Fonts(2, fontType1).FontFace
font.Size = 33
Say "Item is a font of its own", doc.Fonts("Courier", fontType1).Size

' Scripts cannot look into an array of strings; that it is one they see.
names = doc.Fonts.AvailableFonts(fontType1)
Say "AvailableFonts", IsArray(names) & " " & VarType(names)
Say "embeddable", VarType(doc.Fonts.AvailableFonts(fontTrueType, True))

' TrueType, from the system: a family that all the machines of the tests have.
Set font = doc.Fonts.Add("Liberation Sans", fontTrueType)
Say "FontFace", font.FontFace & " " & font.FontType
Say "flags", font.Bold & font.Italic
font.Bold = True
font.Italic = True
Say "flags", font.Bold & font.Italic
Say "count", doc.Fonts.count(fontTrueType)
Say "styled", doc.Fonts.FontExists("LiberationSans,BoldItalic", fontTrueType)
Say "TextWidth", font.TextWidth("A")
Say "no glyph boxes", doc.Fonts.Add("Liberation Sans", fontTrueType).TextHeight("A")

On Error Resume Next
Set font = doc.Fonts.Item(99, fontType1)
Outcome "Item(99)"
Set font = doc.Fonts.Item("Nonesuch", fontType1)
Outcome "Item of an unknown name"
Set font = doc.Fonts.Item(1)
Outcome "Item without a type"
doc.Fonts.Remove 1
Outcome "there is no Remove"
WScript.Echo "DONE"
