Dim page, link

Function Edges()
  Edges = link.Left & " " & link.Bottom & " " & link.Right & " " & link.Top
End Function

Set page = doc.Pages.Add
Set link = page.HyperLinks.Add("link")
Say "Key", link.Key
Say "edges", Edges
Say "LinkHighlightAction", link.LinkHighlightAction
Say "border", link.BorderWidth & " " & link.BorderColor
Say "Destination", link.Destination.page Is Nothing
link.SetRegion 10, 10, 100, 20
Say "SetRegion", Edges
Say "/Rect", CountInFile("/Rect [ 10  10  110  30  ]")
Say "/Annots", CountInFile("/Annots [ 6 0 R ]")
Set link.Destination.page = page
Say "/Dest", CountInFile("/Dest [ 4 0 R /XYZ 0  0  0  ]")
link.LinkHighlightAction = 4
Say "/H", CountInFile("/H /P")
link.BorderWidth = 2
link.SetBorderDashPattern 3, 2
link.BorderColor = 255
Say "/Border", CountInFile("/Border [0 0 2  [3 2 ]]")
Say "/C", CountInFile("/C [1 0 0 ]")
link.SetBorderDashPattern 0, 5
Say "no border", CountInFile("/Border [0 0 1 [0 1]]")
link.Top = 700
link.Height = 100
link.Width = -5
Say "Width and Height", Edges & ", " & link.Width & " " & link.Height
link.Left = 1
link.Right = 2
link.Bottom = 3
link.Top = 4
Say "edges", Edges
link.Tag = "tag"
Say "Tag", link.Tag
On Error Resume Next
link.SetRegion 1, 2, 3
Outcome "SetRegion without a height"
WScript.Echo "DONE"
