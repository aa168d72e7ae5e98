Dim bookmarks, bookmark
Set bookmarks = doc.Bookmarks
bookmarks.Add "b"
bookmarks.Add "a", 1
bookmarks.Add , , "A"
Say "order", KeysOf(bookmarks)
Say "bookmarks(3)", bookmarks(3).Key
Say "Bookmarks(""A"")", doc.Bookmarks("A") Is bookmarks.Item(1)
Say "KeyExists", bookmarks.KeyExists("a") & " " & bookmarks.KeyExists("c")
bookmarks.ReOrder "b", 1
Say "ReOrder", KeysOf(bookmarks)
bookmarks.Remove "A"
Say "left", KeysOf(bookmarks) & " " & bookmarks.count

' A subtree is a collection of its own.
bookmarks("b").SubBookmarks.Add("b").SubBookmarks.Add "b"
Say "below", bookmarks("b").SubBookmarks("b").SubBookmarks("b").Key
On Error Resume Next
bookmarks.Add "B"
Outcome "a key in use"
Set bookmark = bookmarks.Item(3)
Outcome "a position that is not there"
WScript.Echo "DONE"
