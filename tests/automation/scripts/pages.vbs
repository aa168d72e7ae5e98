Dim page, removed, position
doc.Pages.Add("letter").DrawText "Letter", 72, 700
Set page = doc.Pages.Add("a4")
page.SetPageExtents 595.276, 841.89
page.SetClipBox 10, 20.5, 500, 800
Set page.Font = doc.Fonts.Add("Times-Italic")
page.DrawText "A4, with a clip box", 72, 700
Set removed = doc.Pages.Add("removed")
removed.DrawText "removed", 72, 700
Set page = doc.Pages.Add("wide", "letter")
page.SetPageExtents 1000, 300
Set page.Font = doc.Fonts.Add("arial-Bold")
Set page.Font = doc.Fonts.Add("Symbol")
page.DrawText "abc", 72, 200
Set page.Font = doc.Fonts.Add("Courier-BoldOblique")
page.DrawText "Courier", 72, 150
doc.Pages.Remove "removed"
doc.Pages.ReOrder "a4", 1
Say "order", KeysOf(doc.Pages)
doc.SavePDFFile "pages.pdf"

' By position, by key in any case, and through the default member.
Say "count", doc.Pages.count
Say "Item(2)", doc.Pages.Item(2).Key
Say "Pages(2)", doc.Pages(2).Key
Say "Pages(""WIDE"")", doc.Pages("WIDE").Key
Say "one page, one object", doc.Pages(2) Is doc.Pages("wide")
position = 3
Say "a variable", doc.Pages(position).Key
Say "a text of digits is a key", doc.Pages.KeyExists("2")
Say "KeyExists(2)", doc.Pages.KeyExists(2)
Say "KeyExists(4)", doc.Pages.KeyExists(4)
Say "KeyExists("""")", doc.Pages.KeyExists("")
Say "KeyExists(Null)", doc.Pages.KeyExists(Null)
Say "KeyExists(Nothing)", doc.Pages.KeyExists(Nothing)

' Arguments left out in front and in the middle.
doc.Pages.Add , 1
doc.Pages.Add "last"
doc.Pages.Add "second", , 1
Say "after three more", KeysOf(doc.Pages)

' A walk sees the pages as they were when it began.
For Each page In doc.Pages
  If page.Key <> "" Then doc.Pages.Remove page.Key
Next
Say "left", KeysOf(doc.Pages)
Say "a page taken out can still be used", removed.Key
removed.DrawLine 0, 0, 1, 1

' ReOrder never raises; given both places it takes Before.
For Each page In Array("a", "b", "c")
  doc.Pages.Add page
Next
doc.Pages.Remove 1
doc.Pages.ReOrder "c", 1, 3
Say "c moved to 1", KeysOf(doc.Pages)
doc.Pages.ReOrder "c"
Say "c moved to the end", KeysOf(doc.Pages)
doc.Pages.ReOrder "no such key", 1
Say "an unknown key moves nothing", KeysOf(doc.Pages)
doc.Pages.ReOrder "a", 3
Say "a place that is not there takes the page out", KeysOf(doc.Pages)
WScript.Echo "DONE"
