Say "pages", doc.Pages.count
Say "templates", doc.Templates.count
Say "images", doc.Images.count
Say "bookmarks", doc.Bookmarks.count
Say "faces of type 1", doc.Fonts.count(0)
Say "the same collections each time", (doc.Pages Is doc.Pages) And (doc.Fonts Is doc.Fonts) And _
  (doc.Templates Is doc.Templates) And (doc.Images Is doc.Images) And _
  (doc.Bookmarks Is doc.Bookmarks) And (doc.ViewerPreferences Is doc.ViewerPreferences)

doc.SavePDFFile "no-pages.pdf"

' A tag is a value with Let and an object with Set.
Say "tag at first is Empty", IsEmpty(doc.Tag)
doc.Tag = "a text"
Say "tag", doc.Tag
doc.Tag = Null
Say "tag is Null", IsNull(doc.Tag)
doc.Tag = Array("first", "second")
Dim held
held = doc.Tag
Say "second of the tag", held(1)
Dim words
Set words = CreateObject("Scripting.Dictionary")
Set doc.Tag = words
words.Add "later", 1
Say "tag is the object", doc.Tag Is words
Say "in it", doc.Tag.Exists("later")
Set doc.Tag = Nothing
Say "tag is Nothing", doc.Tag Is Nothing
doc.Tag = Empty
Say "tag is Empty again", IsEmpty(doc.Tag)

' Members that may not be set, that are not there, and with too many arguments.
On Error Resume Next
doc.Pages = 1
Outcome "Let Pages"
doc.Nonesuch
Outcome "Nonesuch"
doc.SavePDFFile
Outcome "no file name"
doc.SavePDFFile "a.pdf", "b.pdf"
Outcome "two file names"
WScript.Echo "DONE"
