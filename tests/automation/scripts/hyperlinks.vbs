Dim links
Set links = doc.Pages.Add.HyperLinks
links.Add "b"
links.Add "a", 1
links.Add , , "A"
Say "order", KeysOf(links)
Say "count", links.count
Say "links(3)", links(3).Key
Say "HyperLinks(""A"")", doc.Pages(1).HyperLinks("A") Is links.Item(1)
Say "KeyExists", links.KeyExists("a") & " " & links.KeyExists(4)
links.Remove "A"
Say "left", KeysOf(links)
On Error Resume Next
links.ReOrder "b"
Outcome "there is no ReOrder"
links.Add "B"
Outcome "a key in use"
WScript.Echo "DONE"
