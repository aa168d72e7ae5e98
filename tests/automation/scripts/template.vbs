' The document of tests/golden/templates.pdf.
Dim letterhead, frame, name, page, text
Set letterhead = doc.Templates.Add("letterhead")
Set name = doc.Fonts.Add("Times-BoldItalic")
name.Size = 18
name.Underline = True
Set letterhead.Font = name
letterhead.GraphicsState.FillColor = &H5F4E1F
letterhead.DrawText "Lamp & Sons (est. 1891)", 0, 0
letterhead.DrawTextAligned "lamps" & vbLf & "and shades", 300, -20, 168, 40, 1, 3
letterhead.DrawLine 0, -30, 468, -30

Set frame = doc.Templates.Add("frame", 1)
Say "AutoSizeClipBox", frame.AutoSizeClipBox
frame.AutoSizeClipBox = False
frame.SetClipBox -1, -1, 103, 63
frame.GraphicsState.Push
frame.GraphicsState.LineWidth = 2
frame.GraphicsState.StrokeGrayColor = 0.5
frame.DrawRect 0, 0, 102, 62
frame.GraphicsState.Pop
frame.DrawLine -50, 31, 150, 31

doc.Templates.Add("on no page").DrawRect 0, 0, 10, 10

For Each text In Array("first page", "second page")
  Set page = doc.Pages.Add
  page.DrawTemplate letterhead, 72, 700
  page.DrawText text, 72, 600
Next
Set page = doc.Pages(2)
page.DrawTemplate frame, 72, 500.5
page.DrawTemplate frame, 272, 500.5
page.DrawTemplate frame
doc.SavePDFFile "templates.pdf"

' The clip box grows over what is drawn, from the origin on.
Dim drawn, left_, bottom, right_, top
Set drawn = doc.Templates.Add
drawn.DrawLine 10, 20, 30, 40
drawn.GetClipBox left_, bottom, right_, top
Say "clip box", left_ & " " & bottom & " " & right_ & " " & top
drawn.DrawLineTo -5, 50
Say "Left", drawn.Left
Say "Top", drawn.Top
drawn.GetCurPos left_, top
Say "pen", left_ & " " & top
Say "Width", drawn.Width
Say "Height", drawn.Height
drawn.TextBoxes.Add.Move 0, 0, 100, 60
drawn.ExpandClipBoxToFitTextBoxes
drawn.GetClipBox left_, bottom, right_, top
Say "with its text box", left_ & " " & bottom & " " & right_ & " " & top

' Edges that are set beyond their opposites change places with them.
drawn.SetClipBox 0, 0, 10, 20
drawn.Right = -5
Say "Right", drawn.Left & " to " & drawn.Right
drawn.Bottom = 30
Say "Bottom", drawn.Bottom & " to " & drawn.Top
drawn.Width = 7
drawn.Height = 8
Say "Width and Height", drawn.Left & " to " & drawn.Right & ", " & drawn.Bottom & " to " & drawn.Top
drawn.Left = 1
drawn.Top = 2
drawn.SetCurPos 3, 4
Say "its own font", drawn.Font.FontFace
Say "no key", drawn.Key = ""
Say "key", letterhead.Key
Set drawn.Tag = frame
Say "Tag", drawn.Tag Is frame
drawn.Tag = Empty
On Error Resume Next
drawn.DrawTemplate frame
Outcome "a template places no templates"
WScript.Echo "DONE"
