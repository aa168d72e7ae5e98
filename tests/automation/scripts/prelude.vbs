' Stands before every script, and before the constants.
Option Explicit

' What the one line under On Error Resume Next ended with. Errors of the script's own host have other
' texts on other systems.
Sub Outcome(what)
  Dim text
  text = "no error"
  If Err.Number <> 0 Then text = Err.Number
  If Err.Source = "Folivar" Then text = text & " " & Err.Description
  WScript.Echo what & " -> " & text
  Err.Clear
End Sub

Sub Say(what, value)
  WScript.Echo what & " = " & value
End Sub

' The keys of a collection's members in order, "-" for none.
Function KeysOf(members)
  Dim member, keys
  For Each member In members
    If member.Key = "" Then keys = keys & "-" Else keys = keys & member.Key
  Next
  KeysOf = keys
End Function

' Saves the document and counts the lines of the file that are this one.
Function CountInFile(line)
  Dim text
  doc.SavePDFFile "saved.pdf"
  text = CreateObject("Scripting.FileSystemObject").OpenTextFile("saved.pdf").ReadAll
  CountInFile = UBound(Split(text, vbLf & line & vbLf))
End Function

Dim doc
Set doc = CreateObject("Folivar.PDFDocument")
