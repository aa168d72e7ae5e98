doc.Templates.Add "b"
doc.Templates.Add "a", "b"
doc.Templates.Add , , "A"
Say "order", KeysOf(doc.Templates)
Say "count", doc.Templates.count
Say "Templates(3)", doc.Templates(3).Key
Say "the same by key", doc.Templates("B") Is doc.Templates.Item(3)
Say "KeyExists", doc.Templates.KeyExists("a") & " " & doc.Templates.KeyExists("c")
On Error Resume Next
doc.Templates.Remove 1
Outcome "there is no Remove"
doc.Templates.ReOrder "a"
Outcome "there is no ReOrder"
doc.Templates.Add "B"
Outcome "a key in use"
Say "count", doc.Templates.count
WScript.Echo "DONE"
