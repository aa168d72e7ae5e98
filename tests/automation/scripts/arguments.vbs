' Arguments without a type, which are converted as the system converts.
Dim page, drawn, found, box, font
Set page = doc.Pages.Add
Set drawn = doc.Templates.Add
page.DrawTemplate drawn, "1", True
Say "DrawTemplate ""1"", True", CountInFile("1 0 0 1 1 -1  cm")
page.DrawTemplate drawn, Empty, CCur(2.5)
Say "DrawTemplate Empty, 2.5", CountInFile("1 0 0 1 0 2.5  cm")

Set box = page.TextBoxes.Add
box.SelUnderline = "True"
Say "SelUnderline = ""True""", box.SelUnderline
box.SelUnderline = Empty
Say "SelUnderline = Empty", box.SelUnderline
box.SelUnderline = "12"
Say "SelUnderline = ""12""", box.SelUnderline
box.SelColor = "255"
Say "SelColor = ""255""", box.SelColor
box.SelColor = Empty
Say "SelColor = Empty", box.SelColor
' A width of -1 goes to the left.
box.Move "12", "30", True
Say "Move", box.Left & " " & box.Top & " " & box.Width

Set font = doc.Fonts.Add("Helvetica")
Say "TextHeight(12)", font.TextHeight(12) = font.TextHeight("12")
Say "TextHeight(Empty)", font.TextHeight(Empty)

doc.Pages.Add "1"
Say "Pages(""1"")", doc.Pages("1") Is doc.Pages(2)
On Error Resume Next
Set found = doc.Pages.Item(True)
Outcome "Item(True)"
Set found = doc.Pages.Item(False)
Outcome "Item(False)"
Set found = doc.Pages.Item(Empty)
Outcome "Item(Empty)"
doc.Pages.Add , , True
Outcome "After True"
WScript.Echo "DONE"
