' No such member, or not for this.
On Error Resume Next
doc.Print
Outcome "no such method"
doc.Title = "a"
Outcome "no such property"
doc.Pages.count = 5
Outcome "a property that can only be read"
doc.Pages.Add.Font = doc.Fonts.Add("Courier")
Outcome "an object without Set"
WScript.Echo "DONE"
