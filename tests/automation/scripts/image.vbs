' Pictures are in the folder that the script is given.
Dim folder, image, page
folder = WScript.Arguments(0) & "\"
Set image = doc.Images.Add("jug")
Say "Key", image.Key
Say "without a file", image.FileName = "" And image.Width = 0 And image.Height = 0
Say "Interpolate", image.Interpolate
image.FileName = folder & "blue-jug.jpg"
Say "size of the JPEG", image.Width & " x " & image.Height
image.FileName = folder & "sampler.bmp"
Say "size of the BMP", image.Width & " x " & image.Height
Say "FileName", image.FileName = folder & "sampler.bmp"
image.Interpolate = True
Set image.Tag = doc.Templates
Say "Tag", image.Tag Is doc.Templates
image.Tag = 7
Say "Tag", image.Tag

' A file that cannot be taken leaves the image as it was.
On Error Resume Next
image.FileName = "none.jpg"
Outcome "a file that is not there"
image.FileName = "prelude.gif"
Outcome "a file of another type"
image.Width = 5
Outcome "Width cannot be set"
On Error Goto 0
Say "still", image.Width & " x " & image.Height

' As large as asked for, as large as fits, and a unit for each pixel.
Set page = doc.Pages.Add
Set page.Thumbnail = image
Say "Thumbnail", page.Thumbnail Is image
page.DrawImage image, 10, 20, 240, 240, False
page.DrawImage image, 10, 20, 240, 240
page.DrawImage image, 10, 20
page.DrawImage image, 10, 20, , 44
Say "stretched", CountInFile("240 0 0 240 10 20  cm")
Say "fitted", CountInFile("240 0 0 176 10 20  cm")
Say "by its pixels", CountInFile("120 0 0 88 10 20  cm")
Say "by its height", CountInFile("60 0 0 44 10 20  cm")
Say "/Thumb", CountInFile("/Thumb 6 0 R")
Say "/Interpolate", CountInFile("/Interpolate true")
Say "no filter", CountInFile("/Interpolate true" & vbLf)
WScript.Echo "DONE"
