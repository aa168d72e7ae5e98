Dim boxes
Set boxes = doc.Pages.Add.TextBoxes
boxes.Add "b"
boxes.Add "a", 1
boxes.Add , , "A"
Say "order", KeysOf(boxes)
Say "count", boxes.count
Say "boxes(3)", boxes(3).Key
Say "KeyExists", boxes.KeyExists("a") & " " & boxes.KeyExists("c")
boxes.ReOrder "b", 1
Say "ReOrder", KeysOf(boxes)
boxes.ReOrder "c", 1
Say "ReOrder of an unknown key", KeysOf(boxes)
boxes.Remove 3
boxes.Remove "A"
Say "left", KeysOf(boxes)
On Error Resume Next
boxes.Add "B"
Outcome "a key in use"
Say "kept", boxes("b").Key
WScript.Echo "DONE"
