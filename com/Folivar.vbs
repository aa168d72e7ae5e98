' Folivar 1.0 for VBScript, which does not see the constants of a type library: a name that is not
' declared is Empty there, without a word, and Empty is 0. On Windows a script includes this file with
'
'   ExecuteGlobal CreateObject("Scripting.FileSystemObject").OpenTextFile("Folivar.vbs").ReadAll

' PDFPageLayoutStyle: how a reader lays the pages out when it opens the document
Const plsUserDefault = 0
Const plsSinglePage = 1
Const plsOneColumn = 2
Const plsTwoColumnLeft = 3
Const plsTwoColumnRight = 4

' PDFPageModeStyle: what a reader shows beside the pages when it opens the document
Const pmsUserDefault = 0
Const pmsUseNone = 1
Const pmsUseOutlines = 2
Const pmsUseThumbs = 3
Const pmsFullScreen = 4

' PDFHorzTextAlignment: where the lines of a text stand in their box, from left to right
Const htaLeft = 0
Const htaRight = 1
Const htaCenter = 2

' PDFVertTextAlignment: where a text stands in its box, from top to bottom
Const vtaBaseline = 0
Const vtaTop = 1
Const vtaBottom = 2
Const vtaCenter = 3

' PDFFontType: the two kinds of faces
Const fontType1 = 0
Const fontTrueType = 1

' PDFBackGroundStyle: whether a text box hides what lies beneath it
Const bsTransparent = 0
Const bsOpaque = 1

' PDFParaAlignment: how the lines of a paragraph are aligned
Const alignNULL = 0
Const alignLeft = 1
Const alignRight = 2
Const alignCenter = 3

' PDFDestinationStyle: what a reader shows of the page that a link leads to
Const dsXYZ = 0
Const dsFit = 1
Const dsFitHorz = 2
Const dsFitVert = 3
Const dsFitRect = 4

' PDFLinkHighlightAction: what a link looks like while the mouse button is held down on it
Const lhaUserDefault = 0
Const lhaNone = 1
Const lhaInvert = 2
Const lhaOutline = 3
Const lhaPush = 4

' A text as the title of a bookmark, which is written into the file as it stands.
Function EscapeTitle(text)
  Dim escaped
  escaped = Replace(text, "\", "\\")
  escaped = Replace(escaped, "(", "\(")
  escaped = Replace(escaped, ")", "\)")
  escaped = Replace(escaped, vbCr, "\r")
  EscapeTitle = Replace(escaped, vbLf, "\n")
End Function
