' Division by zero: the ratio of an image that has no pixels.
Dim page
Set page = doc.Pages.Add
On Error Resume Next
page.DrawImage doc.Images.Add("blank"), 10, 20
Outcome "DrawImage"
page.DrawImage doc.Images("blank"), 10, 20, 30, 40, False
Outcome "DrawImage without a ratio"
WScript.Echo "DONE"
