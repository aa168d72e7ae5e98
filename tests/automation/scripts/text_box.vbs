Dim page, box, other
Set page = doc.Pages.Add
Set box = page.TextBoxes.Add("box")
Say "Parent", box.Parent Is page
Say "Key", box.Key
Say "place", box.Left & " " & box.Top
Say "Width is that of a W", box.Width = page.Font.TextWidth("W")
Say "margins", box.MarginLeft & " " & box.MarginTop & " " & box.MarginRight & " " & box.MarginBottom
Say "WordWrap, AutoSize", box.WordWrap & " " & box.AutoSize
Say "colours", Hex(box.BackColor) & " " & Hex(box.BorderColor)
Say "BackStyle, BorderWidth", box.BackStyle & " " & box.BorderWidth
Say "selection", box.SelStart & " " & box.SelLength
Say "SelBold", VarType(box.SelBold) & " " & box.SelBold
Say "SelColor", VarType(box.SelColor) & " " & box.SelColor
Say "SelFont", box.SelFont.FontFace & " " & box.SelFontSize
Say "SelAlignment", box.SelAlignment

' Negative sizes turn the box over.
box.Move 100, 50, 20, 10
box.Width = -50
Say "Width = -50", box.Left & " " & box.Width & " " & box.Right
box.Height = -30
Say "Height = -30", box.Top & " " & box.Height & " " & box.Bottom
box.Right = 20
Say "Right = 20", box.Left & " " & box.Width
box.Bottom = 100
Say "Bottom = 100", box.Top & " " & box.Height
box.Move 1, , 7
Say "Move with a place left out", box.Left & " " & box.Top & " " & box.Width & " " & box.Height

' Every line end becomes a line feed; the caret stands behind the text.
box.Text = "a" & vbCrLf & "b" & vbCr & "c"
Say "Text", Replace(box.Text, vbLf, "|")
Say "caret", box.SelStart & " " & box.SelLength
box.SelStart = -3
Say "SelStart = -3", box.SelStart
box.SelStart = 1000
Say "SelStart = 1000", box.SelStart
box.SelStart = 4
box.SelLength = -10
Say "backwards", box.SelStart & " " & box.SelLength
Say "SelText", Replace(box.SelText, vbLf, "|")

' Formats of one run, of several (Null, 0, Nothing), and of one again.
box.Text = "0123456789"
box.SelStart = 2
box.SelLength = 2
box.SelUnderline = True
box.SelColor = 255
box.SelFontSize = 12.5
Say "in the run", box.SelUnderline & " " & box.SelColor & " " & box.SelFontSize
box.SelStart = 1
box.SelLength = 2
Say "SelUnderline is Null", IsNull(box.SelUnderline)
Say "SelColor is Null", IsNull(box.SelColor)
Say "SelFontSize", box.SelFontSize
Say "SelFont is Nothing", box.SelFont Is Nothing
box.SelStrikeOut = True
box.SelItalic = False
box.SelSubscript = False
box.SelSuperscript = 0
Say "SelStrikeOut is Null", IsNull(box.SelStrikeOut)
box.SelStart = 0
box.SelLength = 10
box.SelUnderline = False
box.SelStrikeOut = False
box.SelColor = 0
box.SelFontSize = 10
Say "one run again", box.SelFontSize & " " & box.SelColor & " " & box.SelUnderline
box.SelStart = 3
box.SelText = "xy"
Say "SelText", box.Text & " " & box.SelStart

' An alignment is one of paragraphs; alignNULL changes nothing.
box.Text = "ab" & vbLf & "cd" & vbLf & "ef"
box.SelStart = 4
box.SelAlignment = alignCenter
Say "SelAlignment", box.SelAlignment
box.SelAlignment = alignNULL
Say "SelAlignment", box.SelAlignment
box.SelStart = 0
Say "SelAlignment of the first paragraph", box.SelAlignment
box.SelLength = 8
Say "SelAlignment of all", box.SelAlignment

' SelFont is the very font, and Nothing leaves it.
Dim font
Set font = doc.Fonts.Add("Times-Roman")
box.SelLength = 8
Set box.SelFont = font
box.SelLength = 2
Say "SelFont", box.SelFont Is font
Set box.SelFont = Nothing
Say "SelFont", box.SelFont Is font

box.SetMargins 1, 2, 3, 4
box.SetBorderDashPattern 3, 2
box.BackStyle = 1
box.BackColor = &HFF00&
box.BorderColor = 255
box.BorderWidth = 2
Set other = page.TextBoxes.Add
other.Copy box
Say "Copy", other.Left & " " & Replace(other.Text, vbLf, "|") & " " & other.MarginBottom
Say "Copy leaves", other.BorderWidth & " " & other.Key & other.BackStyle
other.WordWrap = False
other.AutoSizeNow
Say "AutoSize", other.AutoSize
other.MarginLeft = 9
other.MarginTop = 8
other.MarginRight = 7
other.MarginBottom = 6
other.AutoSize = False
other.GraphicsState.LineWidth = 3
Say "GraphicsState", other.GraphicsState.LineWidth
other.Tag = "tag"
Say "Tag", other.Tag
Say "in the file", CountInFile("% Begin Textbox ")
Say "a template's box", doc.Templates.Add("t").TextBoxes.Add.Parent Is doc.Templates("t")
On Error Resume Next
box.SelColor = "red"
Outcome "SelColor = ""red"""
box.SelBold = Null
Outcome "SelBold = Null"
box.Copy Nothing
Outcome "Copy of Nothing"
WScript.Echo "DONE"
