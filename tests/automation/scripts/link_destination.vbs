Dim page, destination
Set page = doc.Pages.Add("target")
Set destination = doc.Bookmarks.Add.Destination

Function Edges()
  Edges = destination.Left & " " & destination.Bottom & " " & destination.Right & " " & destination.Top
End Function

Say "page", destination.page Is Nothing
Say "DestinationMode", destination.DestinationMode
Say "Zoom", destination.Zoom
Say "edges", Edges
Set destination.page = page
Say "page", destination.page Is page
destination.Top = 792
Say "dsXYZ", CountInFile("/Dest [ 5 0 R /XYZ 0  792  0  ]")
destination.SetRegion 100, 200, -50, -20
Say "SetRegion with negative sizes", Edges
destination.SetRegion 1, 2
Say "SetRegion without sizes", Edges
destination.SetRegion 1, 2, , 4
Say "SetRegion with the width left out", Edges
destination.Zoom = 1.5
destination.DestinationMode = 2
Say "dsFitHorz", CountInFile("/Dest [ 5 0 R /FitH 6  ]")
destination.DestinationMode = 3
Say "dsFitVert", CountInFile("/Dest [ 5 0 R /FitV 1  ]")
destination.DestinationMode = 4
Say "dsFitRect", CountInFile("/Dest [ 5 0 R /FitR 1  2  1  6  ]")

' The width is measured from the left edge on, the height down from the top edge.
destination.Top = 700
destination.Height = 100
destination.Width = 30
Say "Width and Height", Edges
Say "Width, Height", destination.Width & " " & destination.Height
destination.Width = -5
destination.Height = -5
Say "negative", Edges
destination.Left = 1
destination.Right = 2
destination.Bottom = 3
destination.Top = 4
Say "edges", Edges

' A page that leaves the document is let go of.
doc.Pages.Add
doc.Pages.Remove "target"
Say "page taken out", destination.page Is Nothing
Set destination.page = doc.Pages(1)
Set destination.page = Nothing
Say "set to Nothing", destination.page Is Nothing
On Error Resume Next
Set destination.page = doc
Outcome "a document is no page"
destination.page = page
Outcome "Let page"
WScript.Echo "DONE"
