// The automation interface for C#, so that no type library has to be imported: members are called by
// their identifiers. Made by hosts/table/make_csharp.py out of com/Folivar.idl.

using System.Runtime.InteropServices;

namespace Folivar
{
    /// <summary>How a reader lays the pages out when it opens the document.</summary>
    public enum PDFPageLayoutStyle
    {
        plsUserDefault = 0,
        plsSinglePage = 1,
        plsOneColumn = 2,
        plsTwoColumnLeft = 3,
        plsTwoColumnRight = 4,
    }

    /// <summary>What a reader shows beside the pages when it opens the document.</summary>
    public enum PDFPageModeStyle
    {
        pmsUserDefault = 0,
        pmsUseNone = 1,
        pmsUseOutlines = 2,
        pmsUseThumbs = 3,
        pmsFullScreen = 4,
    }

    /// <summary>Where the lines of a text stand in their box, from left to right.</summary>
    public enum PDFHorzTextAlignment
    {
        htaLeft = 0,
        htaRight = 1,
        htaCenter = 2,
    }

    /// <summary>Where a text stands in its box, from top to bottom.</summary>
    public enum PDFVertTextAlignment
    {
        vtaBaseline = 0,
        vtaTop = 1,
        vtaBottom = 2,
        vtaCenter = 3,
    }

    /// <summary>The two kinds of faces.</summary>
    public enum PDFFontType
    {
        fontType1 = 0,
        fontTrueType = 1,
    }

    /// <summary>Whether a text box hides what lies beneath it.</summary>
    public enum PDFBackGroundStyle
    {
        bsTransparent = 0,
        bsOpaque = 1,
    }

    /// <summary>How the lines of a paragraph are aligned.</summary>
    public enum PDFParaAlignment
    {
        alignNULL = 0,
        alignLeft = 1,
        alignRight = 2,
        alignCenter = 3,
    }

    /// <summary>What a reader shows of the page that a link leads to.</summary>
    public enum PDFDestinationStyle
    {
        dsXYZ = 0,
        dsFit = 1,
        dsFitHorz = 2,
        dsFitVert = 3,
        dsFitRect = 4,
    }

    /// <summary>What a link looks like while the mouse button is held down on it.</summary>
    public enum PDFLinkHighlightAction
    {
        lhaUserDefault = 0,
        lhaNone = 1,
        lhaInvert = 2,
        lhaOutline = 3,
        lhaPush = 4,
    }

    /// <summary>A PDF document in the making.</summary>
    [ComImport, Guid("0B39C201-B325-450F-8017-032EC9BAE749")]
    public class PDFDocumentClass
    {
    }

    /// <summary>What listens to a PDFPage.</summary>
    [ComVisible(true), Guid("0B39C401-B325-450F-8017-032EC9BAE749")]
    [InterfaceType(ComInterfaceType.InterfaceIsIDispatch)]
    public interface PDFPageEvents
    {
        /// <summary>The page is about to leave the document.</summary>
        [DispId(1)] void PageRemoved(PDFPage page);
    }

    /// <summary>A PDF document in the making.</summary>
    [ComImport, Guid("0B39C101-B325-450F-8017-032EC9BAE749")]
    [InterfaceType(ComInterfaceType.InterfaceIsIDispatch)]
    public interface PDFDocument
    {
        /// <summary>Writes the document as it is now; an existing file is replaced.</summary>
        [DispId(1)] void SavePDFFile(string fileName);
        /// <summary>The pages in reading order.</summary>
        [DispId(2)] PDFPages Pages { get; }
        /// <summary>The faces that the document uses.</summary>
        [DispId(3)] PDFFonts Fonts { get; }
        /// <summary>The drawings that pages share.</summary>
        [DispId(4)] PDFTemplates Templates { get; }
        /// <summary>The pictures of the document.</summary>
        [DispId(5)] PDFImages Images { get; }
        /// <summary>Any value or object of the host; never written.</summary>
        [DispId(6)] object Tag { get; set; }
        /// <summary>The bookmarks of the top level.</summary>
        [DispId(7)] PDFBookmarks Bookmarks { get; }
        /// <summary>How a reader should show the document.</summary>
        [DispId(8)] PDFViewerPreferences ViewerPreferences { get; }
    }

    /// <summary>The pages of a document in reading order.</summary>
    [ComImport, Guid("0B39C102-B325-450F-8017-032EC9BAE749")]
    [InterfaceType(ComInterfaceType.InterfaceIsIDispatch)]
    public interface PDFPages
    {
        /// <summary>Makes a page.</summary>
        [DispId(1)] PDFPage Add([Optional, DefaultParameterValue("")] string sKey,
            [Optional] object before, [Optional] object after);
        /// <summary>The page at a position, from 1, or with a key.</summary>
        [DispId(0)] PDFPage this[object vntIndexKey] { get; }
        /// <summary>How many pages there are.</summary>
        [DispId(2)] int count { get; }
        /// <summary>Takes out the page at a position or with a key.</summary>
        [DispId(3)] void Remove(object vntIndexKey);
        /// <summary>The pages in order.</summary>
        [DispId(-4)] System.Collections.IEnumerator GetEnumerator();
        /// <summary>Whether there is a page at a position or with a key.</summary>
        [DispId(4)] bool KeyExists(object vntIndexKey);
        /// <summary>Moves the page with this key to another place.</summary>
        [DispId(5)] void ReOrder(string key, [Optional] object before, [Optional] object after);
    }

    /// <summary>How a reader should show a document.</summary>
    [ComImport, Guid("0B39C103-B325-450F-8017-032EC9BAE749")]
    [InterfaceType(ComInterfaceType.InterfaceIsIDispatch)]
    public interface PDFViewerPreferences
    {
        /// <summary>How the pages are laid out.</summary>
        [DispId(1)] PDFPageLayoutStyle PageLayout { get; set; }
        /// <summary>What is shown beside the pages.</summary>
        [DispId(2)] PDFPageModeStyle PageMode { get; set; }
        /// <summary>Whether the tool bars are hidden.</summary>
        [DispId(3)] bool HideToolbar { get; set; }
        /// <summary>Whether the menu bar is hidden.</summary>
        [DispId(4)] bool HideMenubar { get; set; }
        /// <summary>Whether scroll bars and other controls are hidden.</summary>
        [DispId(5)] bool HideWindowUI { get; set; }
        /// <summary>Whether the window takes the size of the first page.</summary>
        [DispId(6)] bool FitWindow { get; set; }
        /// <summary>Whether the window stands in the middle of the screen.</summary>
        [DispId(7)] bool CenterWindow { get; set; }
        /// <summary>What is shown beside the pages after full screen.</summary>
        [DispId(8)] PDFPageModeStyle NonFullScreenPageMode { get; set; }
    }

    /// <summary>A page of a document.</summary>
    [ComImport, Guid("0B39C104-B325-450F-8017-032EC9BAE749")]
    [InterfaceType(ComInterfaceType.InterfaceIsIDispatch)]
    public interface PDFPage
    {
        /// <summary>The key that it was added with.</summary>
        [DispId(1)] string Key { get; }
        /// <summary>The font of the text drawn from here on.</summary>
        [DispId(2)] PDFFont Font { get; set; }
        /// <summary>Sets width and height in points.</summary>
        [DispId(3)] void SetPageExtents(float width, float height);
        /// <summary>Sets what readers show of the page.</summary>
        [DispId(4)] void SetClipBox(float left, float bottom, float right, float top);
        /// <summary>What readers show of the page; -1 each for all of it.</summary>
        [DispId(5)] void GetClipBox(ref float left, ref float bottom, ref float right,
            ref float top);
        /// <summary>The document of the page.</summary>
        [DispId(6)] PDFDocument ParentDocument { get; }
        /// <summary>Width in points.</summary>
        [DispId(7)] float Width { get; set; }
        /// <summary>Height in points.</summary>
        [DispId(8)] float Height { get; set; }
        /// <summary>Colours, lines and transformations of what is drawn.</summary>
        [DispId(9)] PDFGraphicsState GraphicsState { get; }
        /// <summary>The boxes of rich text.</summary>
        [DispId(10)] PDFTextBoxes TextBoxes { get; }
        /// <summary>Draws text whose first baseline starts at a point.</summary>
        [DispId(11)] void DrawText(string text, float x, float y);
        /// <summary>Draws text aligned in a box.</summary>
        [DispId(12)] void DrawTextAligned(string text, float left, float bottom, float width,
            float height, PDFHorzTextAlignment horzAlignment = PDFHorzTextAlignment.htaLeft,
            PDFVertTextAlignment vertAlignment = PDFVertTextAlignment.vtaBaseline);
        /// <summary>Strokes a line and moves the pen to its end.</summary>
        [DispId(13)] void DrawLine(float x1, float y1, float x2, float y2);
        /// <summary>Strokes a line from the pen and moves the pen to its end.</summary>
        [DispId(14)] void DrawLineTo(float x, float y);
        /// <summary>Moves the pen.</summary>
        [DispId(15)] void SetCurPos(float x, float y);
        /// <summary>Where the pen is.</summary>
        [DispId(16)] void GetCurPos(ref float x, ref float y);
        /// <summary>Strokes a rectangle, fills it, or both.</summary>
        [DispId(17)] void DrawRect(float left, float bottom, float width, float height,
            bool stroke = true, bool fill = false);
        /// <summary>Places a template with its origin at a point.</summary>
        [DispId(18)] void DrawTemplate(PDFTemplate template, [Optional] object x,
            [Optional] object y);
        /// <summary>Draws an image with its lower left corner at a point.</summary>
        [DispId(19)] void DrawImage(PDFImage image, float x, float y, [Optional] object width,
            [Optional] object height, bool maintainAspectRatio = true);
        /// <summary>Any value or object of the host; never written.</summary>
        [DispId(20)] object Tag { get; set; }
        /// <summary>The picture that readers may show for the page.</summary>
        [DispId(21)] PDFImage Thumbnail { get; set; }
        /// <summary>The links on the page.</summary>
        [DispId(22)] PDFHyperLinks HyperLinks { get; }
    }

    /// <summary>Colours, lines and transformations of a page, template or text box.</summary>
    [ComImport, Guid("0B39C105-B325-450F-8017-032EC9BAE749")]
    [InterfaceType(ComInterfaceType.InterfaceIsIDispatch)]
    public interface PDFGraphicsState
    {
        /// <summary>Colour of fills and text: red in the low byte, then green, then blue.</summary>
        [DispId(1)] int FillColor { get; set; }
        /// <summary>Colour of lines: red in the low byte, then green, then blue.</summary>
        [DispId(2)] int StrokeColor { get; set; }
        /// <summary>Width of lines in points.</summary>
        [DispId(3)] float LineWidth { get; set; }
        /// <summary>Length of a dash in points.</summary>
        [DispId(4)] float LineDashOn { get; }
        /// <summary>Length of the gap between dashes in points.</summary>
        [DispId(5)] float LineDashOff { get; }
        /// <summary>Sets the lengths of dashes and gaps.</summary>
        [DispId(6)] void SetLineDashPattern(float dashOn, float dashOff);
        /// <summary>Gray of fills and text, from 0, black, to 1, white.</summary>
        [DispId(7)] float FillGrayColor { set; }
        /// <summary>Gray of lines, from 0, black, to 1, white.</summary>
        [DispId(8)] float StrokeGrayColor { set; }
        /// <summary>Saves the state.</summary>
        [DispId(9)] void Push();
        /// <summary>Restores the state that was saved last; returns False.</summary>
        [DispId(10)] bool Pop();
        /// <summary>Moves the origin.</summary>
        [DispId(11)] void Translate(float tx, float ty);
        /// <summary>Scales both axes.</summary>
        [DispId(12)] void ScaleXY(float sx, float sy);
        /// <summary>Rotates by degrees, counter-clockwise.</summary>
        [DispId(13)] void Rotate(float angle);
        /// <summary>Skews the axes by degrees.</summary>
        [DispId(14)] void Skew(float xangle, float yangle);
        /// <summary>Transforms by a matrix.</summary>
        [DispId(15)] void SetTransformationMatrix(float a, float b, float c, float d, float e,
            float f);
    }

    /// <summary>A drawing that is in the file once and on any number of pages.</summary>
    [ComImport, Guid("0B39C106-B325-450F-8017-032EC9BAE749")]
    [InterfaceType(ComInterfaceType.InterfaceIsIDispatch)]
    public interface PDFTemplate
    {
        /// <summary>Left edge of the clip box in points.</summary>
        [DispId(1)] float Left { get; set; }
        /// <summary>Top edge of the clip box in points.</summary>
        [DispId(2)] float Top { get; set; }
        /// <summary>Bottom edge of the clip box in points.</summary>
        [DispId(3)] float Bottom { get; set; }
        /// <summary>Right edge of the clip box in points.</summary>
        [DispId(4)] float Right { get; set; }
        /// <summary>Width of the clip box in points.</summary>
        [DispId(5)] float Width { get; set; }
        /// <summary>Height of the clip box in points.</summary>
        [DispId(6)] float Height { get; set; }
        /// <summary>Sets the edges of the clip box.</summary>
        [DispId(7)] void SetClipBox(float left, float bottom, float right, float top);
        /// <summary>The edges of the clip box.</summary>
        [DispId(8)] void GetClipBox(ref float left, ref float bottom, ref float right,
            ref float top);
        /// <summary>Whether drawing grows the clip box.</summary>
        [DispId(9)] bool AutoSizeClipBox { get; set; }
        /// <summary>Grows the clip box over all text boxes.</summary>
        [DispId(10)] void ExpandClipBoxToFitTextBoxes();
        /// <summary>The key that it was added with.</summary>
        [DispId(11)] string Key { get; }
        /// <summary>The font of the text drawn from here on.</summary>
        [DispId(12)] PDFFont Font { get; set; }
        /// <summary>Colours, lines and transformations of what is drawn.</summary>
        [DispId(13)] PDFGraphicsState GraphicsState { get; }
        /// <summary>The boxes of rich text.</summary>
        [DispId(14)] PDFTextBoxes TextBoxes { get; }
        /// <summary>Any value or object of the host; never written.</summary>
        [DispId(15)] object Tag { get; set; }
        /// <summary>Draws text whose first baseline starts at a point.</summary>
        [DispId(16)] void DrawText(string text, float x, float y);
        /// <summary>Draws text aligned in a box.</summary>
        [DispId(17)] void DrawTextAligned(string text, float left, float bottom, float width,
            float height, PDFHorzTextAlignment horzAlignment = PDFHorzTextAlignment.htaLeft,
            PDFVertTextAlignment vertAlignment = PDFVertTextAlignment.vtaBaseline);
        /// <summary>Strokes a line and moves the pen to its end.</summary>
        [DispId(18)] void DrawLine(float x1, float y1, float x2, float y2);
        /// <summary>Strokes a line from the pen and moves the pen to its end.</summary>
        [DispId(19)] void DrawLineTo(float x, float y);
        /// <summary>Moves the pen.</summary>
        [DispId(20)] void SetCurPos(float x, float y);
        /// <summary>Where the pen is.</summary>
        [DispId(21)] void GetCurPos(ref float x, ref float y);
        /// <summary>Strokes a rectangle, fills it, or both.</summary>
        [DispId(22)] void DrawRect(float left, float bottom, float width, float height,
            bool stroke = true, bool fill = false);
        /// <summary>Draws an image with its lower left corner at a point.</summary>
        [DispId(23)] void DrawImage(PDFImage image, float x, float y, [Optional] object width,
            [Optional] object height, bool maintainAspectRatio = true);
    }

    /// <summary>The templates of a document.</summary>
    [ComImport, Guid("0B39C107-B325-450F-8017-032EC9BAE749")]
    [InterfaceType(ComInterfaceType.InterfaceIsIDispatch)]
    public interface PDFTemplates
    {
        /// <summary>Makes a template.</summary>
        [DispId(1)] PDFTemplate Add([Optional, DefaultParameterValue("")] string sKey,
            [Optional] object before, [Optional] object after);
        /// <summary>The template at a position, from 1, or with a key.</summary>
        [DispId(0)] PDFTemplate this[object vntIndexKey] { get; }
        /// <summary>How many templates there are.</summary>
        [DispId(2)] int count { get; }
        /// <summary>The templates in order.</summary>
        [DispId(-4)] System.Collections.IEnumerator GetEnumerator();
        /// <summary>Whether there is a template at a position or with a key.</summary>
        [DispId(3)] bool KeyExists(object vntIndexKey);
    }

    /// <summary>A face at a size, with decorations.</summary>
    [ComImport, Guid("0B39C108-B325-450F-8017-032EC9BAE749")]
    [InterfaceType(ComInterfaceType.InterfaceIsIDispatch)]
    public interface PDFFont
    {
        /// <summary>A font of its own that is like this one.</summary>
        [DispId(1)] PDFFont Clone();
        /// <summary>Size in points.</summary>
        [DispId(2)] float Size { get; set; }
        /// <summary>The name of the face.</summary>
        [DispId(3)] string FontFace { get; }
        /// <summary>The kind of the face.</summary>
        [DispId(4)] PDFFontType FontType { get; }
        /// <summary>Width and height of a text in points.</summary>
        [DispId(5)] void GetTextExtents(string text, ref float width, ref float height);
        /// <summary>Width of a text in points.</summary>
        [DispId(6)] float TextWidth(string text);
        /// <summary>Height of a text, or of the face without one, in points.</summary>
        [DispId(7)] float TextHeight([Optional] object text);
        /// <summary>Height above the baseline in points.</summary>
        [DispId(8)] float Ascender { get; }
        /// <summary>Depth below the baseline in points; negative.</summary>
        [DispId(9)] float Descender { get; }
        /// <summary>Distance from line to line in points.</summary>
        [DispId(10)] float Leading { get; }
        /// <summary>Top edge of the box around all glyphs in points.</summary>
        [DispId(11)] float FontBoxTop { get; }
        /// <summary>Left edge of the box around all glyphs in points.</summary>
        [DispId(12)] float FontBoxLeft { get; }
        /// <summary>Right edge of the box around all glyphs in points.</summary>
        [DispId(13)] float FontBoxRight { get; }
        /// <summary>Bottom edge of the box around all glyphs in points.</summary>
        [DispId(14)] float FontBoxBottom { get; }
        /// <summary>Whether the face is italic.</summary>
        [DispId(15)] bool Italic { get; set; }
        /// <summary>Whether the face is bold.</summary>
        [DispId(16)] bool Bold { get; set; }
        /// <summary>Whether text is struck out.</summary>
        [DispId(17)] bool StrikeOut { get; set; }
        /// <summary>Whether text is underlined.</summary>
        [DispId(18)] bool Underline { get; set; }
        /// <summary>Whether text is set lower and smaller.</summary>
        [DispId(19)] bool Subscript { get; set; }
        /// <summary>Whether text is set higher and smaller.</summary>
        [DispId(20)] bool Superscript { get; set; }
    }

    /// <summary>The faces that a document uses.</summary>
    [ComImport, Guid("0B39C109-B325-450F-8017-032EC9BAE749")]
    [InterfaceType(ComInterfaceType.InterfaceIsIDispatch)]
    public interface PDFFonts
    {
        /// <summary>Makes a font of size 10.</summary>
        [DispId(1)] PDFFont Add(string faceName, PDFFontType fontType = PDFFontType.fontType1,
            bool embed = false);
        /// <summary>A new font in the face at a position, from 1, or with a name.</summary>
        [DispId(0)] PDFFont this[object vntIndexKey, PDFFontType fontType] { get; }
        /// <summary>How many faces of a kind the document uses.</summary>
        [DispId(2)] int count(PDFFontType fontType);
        /// <summary>Whether the document uses a face.</summary>
        [DispId(3)] bool FontExists(string faceName, PDFFontType fontType);
        /// <summary>The names of the faces that can be added.</summary>
        [DispId(4)] string[] AvailableFonts(PDFFontType fontType, bool embeddable = false);
    }

    /// <summary>A picture that is in the file once, drawn any number of times.</summary>
    [ComImport, Guid("0B39C10A-B325-450F-8017-032EC9BAE749")]
    [InterfaceType(ComInterfaceType.InterfaceIsIDispatch)]
    public interface PDFImage
    {
        /// <summary>Whether readers smooth the picture.</summary>
        [DispId(1)] bool Interpolate { get; set; }
        /// <summary>The key that it was added with.</summary>
        [DispId(2)] string Key { get; }
        /// <summary>The JPEG or BMP file of the picture.</summary>
        [DispId(3)] string FileName { get; set; }
        /// <summary>Width in pixels.</summary>
        [DispId(4)] int Width { get; }
        /// <summary>Height in pixels.</summary>
        [DispId(5)] int Height { get; }
        /// <summary>Any value or object of the host; never written.</summary>
        [DispId(6)] object Tag { get; set; }
    }

    /// <summary>The pictures of a document.</summary>
    [ComImport, Guid("0B39C10B-B325-450F-8017-032EC9BAE749")]
    [InterfaceType(ComInterfaceType.InterfaceIsIDispatch)]
    public interface PDFImages
    {
        /// <summary>Makes an image, to be given a file.</summary>
        [DispId(1)] PDFImage Add([Optional, DefaultParameterValue("")] string sKey,
            [Optional] object before, [Optional] object after);
        /// <summary>The image at a position, from 1, or with a key.</summary>
        [DispId(0)] PDFImage this[object vntIndexKey] { get; }
        /// <summary>How many images there are.</summary>
        [DispId(2)] int count { get; }
        /// <summary>The images in order.</summary>
        [DispId(-4)] System.Collections.IEnumerator GetEnumerator();
        /// <summary>Whether there is an image at a position or with a key.</summary>
        [DispId(3)] bool KeyExists(object vntIndexKey);
    }

    /// <summary>A box of rich text on a page or template.</summary>
    [ComImport, Guid("0B39C10C-B325-450F-8017-032EC9BAE749")]
    [InterfaceType(ComInterfaceType.InterfaceIsIDispatch)]
    public interface PDFTextBox
    {
        /// <summary>The page or template that the box is on.</summary>
        [DispId(1)] object Parent { get; }
        /// <summary>The key that it was added with.</summary>
        [DispId(2)] string Key { get; }
        /// <summary>Left edge in points.</summary>
        [DispId(3)] float Left { get; set; }
        /// <summary>Top edge in points.</summary>
        [DispId(4)] float Top { get; set; }
        /// <summary>Bottom edge in points.</summary>
        [DispId(5)] float Bottom { get; set; }
        /// <summary>Right edge in points.</summary>
        [DispId(6)] float Right { get; set; }
        /// <summary>Width in points.</summary>
        [DispId(7)] float Width { get; set; }
        /// <summary>Height in points.</summary>
        [DispId(8)] float Height { get; set; }
        /// <summary>Sets the left edge and, as far as given, the top edge, the width and the
        /// height.</summary>
        [DispId(9)] void Move(float left, [Optional] object top, [Optional] object width,
            [Optional] object height);
        /// <summary>Whether lines break at blanks.</summary>
        [DispId(10)] bool WordWrap { get; set; }
        /// <summary>Whether the box is sized to its text when it is drawn.</summary>
        [DispId(11)] bool AutoSize { get; set; }
        /// <summary>Sets AutoSize and sizes the box to its text.</summary>
        [DispId(12)] void AutoSizeNow();
        /// <summary>Left margin in points.</summary>
        [DispId(13)] float MarginLeft { get; set; }
        /// <summary>Top margin in points.</summary>
        [DispId(14)] float MarginTop { get; set; }
        /// <summary>Right margin in points.</summary>
        [DispId(15)] float MarginRight { get; set; }
        /// <summary>Bottom margin in points.</summary>
        [DispId(16)] float MarginBottom { get; set; }
        /// <summary>Sets the four margins.</summary>
        [DispId(17)] void SetMargins(float left, float top, float right, float bottom);
        /// <summary>Takes over place, size, margins and text of another box.</summary>
        [DispId(18)] void Copy(PDFTextBox source);
        /// <summary>Sets the lengths of the dashes and gaps of the border.</summary>
        [DispId(19)] void SetBorderDashPattern(float dashOn, float dashOff);
        /// <summary>Any value or object of the host; never written.</summary>
        [DispId(20)] object Tag { get; set; }
        /// <summary>Colour of the background.</summary>
        [DispId(21)] int BackColor { get; set; }
        /// <summary>Colour of the border.</summary>
        [DispId(22)] int BorderColor { get; set; }
        /// <summary>Whether the background is filled.</summary>
        [DispId(23)] PDFBackGroundStyle BackStyle { get; set; }
        /// <summary>Width of the border in points; 0 for none.</summary>
        [DispId(24)] float BorderWidth { get; set; }
        /// <summary>The whole text.</summary>
        [DispId(25)] string Text { get; set; }
        /// <summary>Where the selection begins.</summary>
        [DispId(26)] int SelStart { get; set; }
        /// <summary>How much is selected.</summary>
        [DispId(27)] int SelLength { get; set; }
        /// <summary>The selected text.</summary>
        [DispId(28)] string SelText { get; set; }
        /// <summary>The font of the selection.</summary>
        [DispId(29)] PDFFont SelFont { get; set; }
        /// <summary>The font size of the selection in points.</summary>
        [DispId(30)] float SelFontSize { get; set; }
        /// <summary>The colour of the selection; Null for several.</summary>
        [DispId(31)] object SelColor { get; set; }
        /// <summary>Whether the selection is underlined; Null for in part.</summary>
        [DispId(32)] object SelUnderline { get; set; }
        /// <summary>Whether the selection is struck out; Null for in part.</summary>
        [DispId(33)] object SelStrikeOut { get; set; }
        /// <summary>Whether the selection is italic; Null for in part.</summary>
        [DispId(34)] object SelItalic { get; set; }
        /// <summary>Whether the selection is bold; Null for in part.</summary>
        [DispId(35)] object SelBold { get; set; }
        /// <summary>Whether the selection is subscript; Null for in part.</summary>
        [DispId(36)] object SelSubscript { get; set; }
        /// <summary>Whether the selection is superscript; Null for in part.</summary>
        [DispId(37)] object SelSuperscript { get; set; }
        /// <summary>How the paragraphs of the selection are aligned.</summary>
        [DispId(38)] PDFParaAlignment SelAlignment { get; set; }
        /// <summary>What is drawn before the box.</summary>
        [DispId(39)] PDFGraphicsState GraphicsState { get; }
    }

    /// <summary>The text boxes of a page or template, in the order in which they are
    /// drawn.</summary>
    [ComImport, Guid("0B39C10D-B325-450F-8017-032EC9BAE749")]
    [InterfaceType(ComInterfaceType.InterfaceIsIDispatch)]
    public interface PDFTextBoxes
    {
        /// <summary>Makes a text box.</summary>
        [DispId(1)] PDFTextBox Add([Optional, DefaultParameterValue("")] string sKey,
            [Optional] object before, [Optional] object after);
        /// <summary>The text box at a position, from 1, or with a key.</summary>
        [DispId(0)] PDFTextBox this[object vntIndexKey] { get; }
        /// <summary>How many text boxes there are.</summary>
        [DispId(2)] int count { get; }
        /// <summary>Takes out the text box at a position or with a key.</summary>
        [DispId(3)] void Remove(object vntIndexKey);
        /// <summary>The text boxes in order.</summary>
        [DispId(-4)] System.Collections.IEnumerator GetEnumerator();
        /// <summary>Whether there is a text box at a position or with a key.</summary>
        [DispId(4)] bool KeyExists(object vntIndexKey);
        /// <summary>Moves the text box with this key to another place.</summary>
        [DispId(5)] void ReOrder(string key, [Optional] object before, [Optional] object after);
    }

    /// <summary>An entry of the document outline.</summary>
    [ComImport, Guid("0B39C10E-B325-450F-8017-032EC9BAE749")]
    [InterfaceType(ComInterfaceType.InterfaceIsIDispatch)]
    public interface PDFBookmark
    {
        /// <summary>What the reader shows.</summary>
        [DispId(1)] string Title { get; set; }
        /// <summary>Whether the bookmarks below it show.</summary>
        [DispId(2)] bool Expanded { get; set; }
        /// <summary>The bookmarks below it.</summary>
        [DispId(3)] PDFBookmarks SubBookmarks { get; }
        /// <summary>Where it leads.</summary>
        [DispId(4)] PDFLinkDestination Destination { get; }
        /// <summary>Any value or object of the host; never written.</summary>
        [DispId(5)] object Tag { get; set; }
        /// <summary>The key that it was added with.</summary>
        [DispId(6)] string Key { get; }
    }

    /// <summary>The bookmarks of one level of the outline.</summary>
    [ComImport, Guid("0B39C10F-B325-450F-8017-032EC9BAE749")]
    [InterfaceType(ComInterfaceType.InterfaceIsIDispatch)]
    public interface PDFBookmarks
    {
        /// <summary>Makes a bookmark.</summary>
        [DispId(1)] PDFBookmark Add([Optional, DefaultParameterValue("")] string sKey,
            [Optional] object before, [Optional] object after);
        /// <summary>The bookmark at a position, from 1, or with a key.</summary>
        [DispId(0)] PDFBookmark this[object vntIndexKey] { get; }
        /// <summary>How many bookmarks there are.</summary>
        [DispId(2)] int count { get; }
        /// <summary>Takes out the bookmark at a position or with a key.</summary>
        [DispId(3)] void Remove(object vntIndexKey);
        /// <summary>The bookmarks in order.</summary>
        [DispId(-4)] System.Collections.IEnumerator GetEnumerator();
        /// <summary>Whether there is a bookmark at a position or with a key.</summary>
        [DispId(4)] bool KeyExists(object vntIndexKey);
        /// <summary>Moves the bookmark with this key to another place.</summary>
        [DispId(5)] void ReOrder(string key, [Optional] object before, [Optional] object after);
    }

    /// <summary>Where a bookmark or link leads: a page and what is shown of it.</summary>
    [ComImport, Guid("0B39C110-B325-450F-8017-032EC9BAE749")]
    [InterfaceType(ComInterfaceType.InterfaceIsIDispatch)]
    public interface PDFLinkDestination
    {
        /// <summary>The page; Nothing for none.</summary>
        [DispId(1)] PDFPage page { get; set; }
        /// <summary>What is shown of the page.</summary>
        [DispId(2)] PDFDestinationStyle DestinationMode { get; set; }
        /// <summary>Left edge in points.</summary>
        [DispId(3)] float Left { get; set; }
        /// <summary>Right edge in points.</summary>
        [DispId(4)] float Right { get; set; }
        /// <summary>Bottom edge in points.</summary>
        [DispId(5)] float Bottom { get; set; }
        /// <summary>Top edge in points.</summary>
        [DispId(6)] float Top { get; set; }
        /// <summary>Magnification; 0 keeps the current one.</summary>
        [DispId(7)] float Zoom { get; set; }
        /// <summary>Sets all four edges.</summary>
        [DispId(8)] void SetRegion(float left, float bottom, float width = 0, float height = 0);
        /// <summary>Width in points; setting it keeps the left edge.</summary>
        [DispId(9)] float Width { get; set; }
        /// <summary>Height in points; setting it keeps the top edge.</summary>
        [DispId(10)] float Height { get; set; }
    }

    /// <summary>A rectangle on a page that leads to a place in the document.</summary>
    [ComImport, Guid("0B39C111-B325-450F-8017-032EC9BAE749")]
    [InterfaceType(ComInterfaceType.InterfaceIsIDispatch)]
    public interface PDFHyperLink
    {
        /// <summary>Left edge in points.</summary>
        [DispId(1)] float Left { get; set; }
        /// <summary>Right edge in points.</summary>
        [DispId(2)] float Right { get; set; }
        /// <summary>Bottom edge in points.</summary>
        [DispId(3)] float Bottom { get; set; }
        /// <summary>Top edge in points.</summary>
        [DispId(4)] float Top { get; set; }
        /// <summary>Width in points; setting it keeps the left edge.</summary>
        [DispId(5)] float Width { get; set; }
        /// <summary>Height in points; setting it keeps the top edge.</summary>
        [DispId(6)] float Height { get; set; }
        /// <summary>Where it leads.</summary>
        [DispId(7)] PDFLinkDestination Destination { get; }
        /// <summary>What the link looks like while the mouse button is held down on it.</summary>
        [DispId(8)] PDFLinkHighlightAction LinkHighlightAction { get; set; }
        /// <summary>Sets all four edges.</summary>
        [DispId(9)] void SetRegion(float left, float bottom, float width, float height);
        /// <summary>Colour of the border.</summary>
        [DispId(10)] int BorderColor { get; set; }
        /// <summary>Width of the border in points; 0 for none.</summary>
        [DispId(11)] float BorderWidth { get; set; }
        /// <summary>Sets the lengths of the dashes and gaps of the border.</summary>
        [DispId(12)] void SetBorderDashPattern(float dashOn, float dashOff);
        /// <summary>Any value or object of the host; never written.</summary>
        [DispId(13)] object Tag { get; set; }
        /// <summary>The key that it was added with.</summary>
        [DispId(14)] string Key { get; }
    }

    /// <summary>The links of a page.</summary>
    [ComImport, Guid("0B39C112-B325-450F-8017-032EC9BAE749")]
    [InterfaceType(ComInterfaceType.InterfaceIsIDispatch)]
    public interface PDFHyperLinks
    {
        /// <summary>Makes a link.</summary>
        [DispId(1)] PDFHyperLink Add([Optional, DefaultParameterValue("")] string sKey,
            [Optional] object before, [Optional] object after);
        /// <summary>The link at a position, from 1, or with a key.</summary>
        [DispId(0)] PDFHyperLink this[object vntIndexKey] { get; }
        /// <summary>How many links there are.</summary>
        [DispId(2)] int count { get; }
        /// <summary>Takes out the link at a position or with a key.</summary>
        [DispId(3)] void Remove(object vntIndexKey);
        /// <summary>The links in order.</summary>
        [DispId(-4)] System.Collections.IEnumerator GetEnumerator();
        /// <summary>Whether there is a link at a position or with a key.</summary>
        [DispId(4)] bool KeyExists(object vntIndexKey);
    }
}
