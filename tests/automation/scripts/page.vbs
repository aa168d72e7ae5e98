' The page of tests/golden/drawing.pdf.
Dim page, state, title, body
doc.ViewerPreferences.PageLayout = 1
doc.ViewerPreferences.PageMode = 1
doc.ViewerPreferences.FitWindow = True
Set page = doc.Pages.Add("cover")
Set state = page.GraphicsState

Set title = doc.Fonts.Add("Times-Bold")
title.Size = 24
title.Underline = True
Set page.Font = title
page.DrawText "Folivar (drawing)", 72, 700

Set body = doc.Fonts.Add("Courier")
body.StrikeOut = True
Set page.Font = body
page.DrawText "first line" & vbCrLf & "second \ line", 72, 660
body.StrikeOut = False
body.Superscript = True
page.DrawText "superscript", 72, 620
body.Superscript = False
body.Subscript = True
page.DrawText "subscript", 172, 620
body.Subscript = False

page.DrawRect 72, 480, 300, 100
page.DrawTextAligned "left, top", 72, 480, 300, 100, , vtaTop
page.DrawTextAligned "centre," & vbLf & "middle", 72, 480, 300, 100, htaCenter, vtaCenter
page.DrawTextAligned "right, bottom", 72, 480, 300, 100, htaRight, vtaBottom

state.Push
state.LineWidth = 2.5
state.SetLineDashPattern 6, 3
state.StrokeColor = &HC0&
page.DrawLine 72, 440, 372, 440
page.DrawLineTo 372, 400
state.Pop

state.FillColor = &H80C000
page.DrawRect 72, 340, 60, 40, True, True
state.FillGrayColor = 0.75
page.DrawRect 152, 340, 60, 40, False, True

state.Push
state.Translate 300, 300
state.Rotate 30
state.ScaleXY 1.5, 0.5
state.Skew 10, 0
page.DrawRect 0, 0, 60, 40
state.Pop
doc.SavePDFFile "drawing.pdf"

Say "Key", page.Key
Say "Font is the font that was set", page.Font Is body
Say "ParentDocument", page.ParentDocument Is doc
Say "Width", page.Width
Say "Height", page.Height
page.Width = 100.5
page.Height = -20
Say "Width", page.Width
Say "Height", page.Height
Say "no Thumbnail", page.Thumbnail Is Nothing
Say "HyperLinks", page.HyperLinks.count
Say "TextBoxes", page.TextBoxes.count
Say "the same each time", (page.GraphicsState Is state) And (page.TextBoxes Is page.TextBoxes) And _
  (page.HyperLinks Is page.HyperLinks)

' Results by reference: into variables that were never set, hold something else, or are elements.
Dim left_, bottom, edges(1)
bottom = "text"
page.GetClipBox left_, bottom, edges(0), edges(1)
Say "no clip box", left_ & " " & bottom & " " & edges(0) & " " & edges(1)
Say "type of the result", TypeName(left_)
page.SetClipBox 10, 20, 300.5, 400
page.GetClipBox left_, bottom, edges(0), edges(1)
Say "clip box", left_ & " " & bottom & " " & edges(0) & " " & edges(1)
page.GetCurPos left_, bottom
Say "pen", left_ & " " & bottom
page.SetCurPos 1.5, -2
page.GetCurPos left_, (bottom)
Say "pen", left_ & " " & bottom

page.Tag = 5
Say "Tag", page.Tag
WScript.Echo "DONE"
