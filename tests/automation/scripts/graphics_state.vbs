' The page of tests/golden/graphics-state.pdf.
Dim page, state
Set page = doc.Pages.Add
Set state = page.GraphicsState

Sub Square(left_, bottom)
  page.DrawRect left_, bottom, 50, 50, True, True
End Sub

state.FillColor = &H3399FF
state.StrokeColor = &H993300
state.LineWidth = 4
Square 50, 700
state.SetLineDashPattern 8, 4.5
Square 150, 700
Say "FillColor", Hex(state.FillColor)
Say "StrokeColor", Hex(state.StrokeColor)
Say "LineDashOn", state.LineDashOn
Say "LineDashOff", state.LineDashOff
state.FillGrayColor = 0.9
state.StrokeGrayColor = 0.3
Square 250, 700
state.SetLineDashPattern 1, 0
state.Push
Say "LineWidth after Push", state.LineWidth
Say "LineDashOn after Push", state.LineDashOn
state.Translate 350, 700
state.Rotate 30
Square 0, 0
Say "Pop", state.Pop
Say "LineWidth after Pop", state.LineWidth
state.Push
state.Translate 50, 600
state.ScaleXY 1.5, 0.75
Square 0, 0
state.Push
state.Translate 100, 0
state.Skew 20, -10
Square 0, 0
state.Pop
state.Pop
state.SetTransformationMatrix 0.5, 0.25, -0.25, 0.5, 350, 600
Square 0, 0
doc.SavePDFFile "graphics-state.pdf"

' A gray of lines counts as one of fills, rounded to the even; others than 0 to 1 do nothing.
state.StrokeGrayColor = 0.5
Say "FillColor", Hex(state.FillColor)
Say "StrokeColor", Hex(state.StrokeColor)
state.FillGrayColor = 1.5
state.FillGrayColor = -0.1
Say "FillColor", Hex(state.FillColor)
On Error Resume Next
state.Pop
Outcome "Pop of nothing"
page.Tag = state.FillGrayColor
Outcome "FillGrayColor cannot be read"
WScript.Echo "DONE"
