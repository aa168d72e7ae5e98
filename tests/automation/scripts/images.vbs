Dim names, image
doc.Images.Add "b"
doc.Images.Add "a", 1
doc.Images.Add , , 1
Say "order", KeysOf(doc.Images)
Say "count", doc.Images.count
Say "Images(1)", doc.Images(1).Key
Say "the same by key", doc.Images("A") Is doc.Images.Item(1)
Say "KeyExists", doc.Images.KeyExists("B") & " " & doc.Images.KeyExists("c") & " " & doc.Images.KeyExists(3)

' Resource names count the images that were there, not their places.
For Each image In doc.Images
  image.FileName = WScript.Arguments(0) & "\moons.jpg"
Next
For Each names In Array("/Name /I1", "/Name /I2", "/Name /I3", "/Name /I4")
  Say names, CountInFile(names)
Next
On Error Resume Next
doc.Images.Remove 1
Outcome "there is no Remove"
doc.Images.Add
doc.SavePDFFile "saved.pdf"
Outcome "an image that was never given a file"
WScript.Echo "DONE"
