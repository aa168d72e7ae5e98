' Invalid argument: unknown keys, two places at once, what belongs to another document.
Dim other, page, font
doc.Pages.Add "a"
Set page = doc.Pages(1)
Set other = CreateObject("Folivar.PDFDocument")
On Error Resume Next
Set page = doc.Pages.Item("x")
Outcome "Item(""x"")"
Set page = doc.Pages.Item("1")
Outcome "Item(""1"")"
doc.Pages.Remove "x"
Outcome "Remove(""x"")"
doc.Pages.Add "b", 1, 1
Outcome "Before and After"
doc.Pages.Add "b", "x"
Outcome "Before an unknown key"
Set page.Font = other.Fonts.Add("Courier")
Outcome "a font of another document"
page.DrawTemplate other.Templates.Add("t")
Outcome "a template of another document"
page.DrawImage other.Images.Add("i"), 1, 2
Outcome "an image of another document"
doc.Fonts.Add "Courier", 2
Outcome "a font of a third type"
Set font = doc.Fonts.Item("Courier", 0)
Outcome "a face that is not used"
Say "nothing was added", KeysOf(doc.Pages)
WScript.Echo "DONE"
