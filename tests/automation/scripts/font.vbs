' The document of tests/golden/text.pdf.
Dim page, font, column, row, decoration, bottom
Set page = doc.Pages.Add
Set font = doc.Fonts.Add("Times-Roman")
Set page.Font = font
For column = 0 To 2
  For row = 0 To 3
    page.DrawRect 50 + 180 * column, 680 - 90 * row, 150, 70
    page.DrawTextAligned "First line" & vbCrLf & "(second), longer", 50 + 180 * column, _
      680 - 90 * row, 150, 70, column, row
  Next
Next
bottom = 340
For decoration = 0 To 15
  font.Underline = (decoration And 1) <> 0
  font.StrikeOut = (decoration And 2) <> 0
  font.Subscript = (decoration And 4) <> 0
  font.Superscript = (decoration And 8) <> 0
  page.DrawText "Text \ (decorated)" & vbLf & "in two lines", 50, bottom
  page.DrawTextAligned "aligned", 200, bottom, 100, -10, 1, 1
  bottom = bottom - 20
Next
doc.SavePDFFile "text.pdf"

Set font = doc.Fonts.Add("Helvetica")
Say "Size", font.Size
Say "FontFace", font.FontFace
Say "FontType", font.FontType
Say "flags", font.Underline & font.StrikeOut & font.Subscript & font.Superscript & font.Bold & font.Italic
Say "Ascender", font.Ascender
Say "Descender", font.Descender
Say "Leading", font.Leading
Say "box", font.FontBoxLeft & " " & font.FontBoxBottom & " " & font.FontBoxRight & " " & font.FontBoxTop
Say "TextWidth", font.TextWidth("A")
Say "TextWidth of nothing", font.TextWidth("")

' A text that is left out is not an empty one: the box of the face, or no height.
Say "TextHeight", font.TextHeight
Say "TextHeight of nothing", font.TextHeight("")
Dim width, height
font.GetTextExtents "A", width, height
Say "extents", width & " " & height
font.Subscript = True
font.Superscript = True
Say "TextWidth of a subscript", font.TextWidth("A") = CSng(6.67 * 0.65)

' A clone is a font of its own.
Dim other
Set other = font.Clone
other.Size = 20
other.Subscript = False
other.Superscript = False
Say "sizes", font.Size & " " & other.Size
Say "width of the clone", other.TextWidth("A")
Say "records of faces", doc.Fonts.count(0)

' The standard faces of other styles are faces of other names.
other.Bold = True
Say "Bold", other.Bold & " " & other.FontFace
WScript.Echo "DONE"
