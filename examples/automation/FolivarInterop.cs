// The automation interface for C#, so that no type library has to be imported: members are called by
// their identifiers. What they do is said in the type library and in the headers of the C++ library.

using System.Runtime.InteropServices;

namespace Folivar
{
    public enum PDFPageLayoutStyle
    {
        plsUserDefault = 0,
        plsSinglePage = 1,
        plsOneColumn = 2,
        plsTwoColumnLeft = 3,
        plsTwoColumnRight = 4,
    }

    public enum PDFPageModeStyle
    {
        pmsUserDefault = 0,
        pmsUseNone = 1,
        pmsUseOutlines = 2,
        pmsUseThumbs = 3,
        pmsFullScreen = 4,
    }

    public enum PDFHorzTextAlignment
    {
        htaLeft = 0,
        htaRight = 1,
        htaCenter = 2,
    }

    public enum PDFVertTextAlignment
    {
        vtaBaseline = 0,
        vtaTop = 1,
        vtaBottom = 2,
        vtaCenter = 3,
    }

    public enum PDFFontType
    {
        fontType1 = 0,
        fontTrueType = 1,
    }

    public enum PDFBackGroundStyle
    {
        bsTransparent = 0,
        bsOpaque = 1,
    }

    public enum PDFParaAlignment
    {
        alignNULL = 0,
        alignLeft = 1,
        alignRight = 2,
        alignCenter = 3,
    }

    public enum PDFDestinationStyle
    {
        dsXYZ = 0,
        dsFit = 1,
        dsFitHorz = 2,
        dsFitVert = 3,
        dsFitRect = 4,
    }

    public enum PDFLinkHighlightAction
    {
        lhaUserDefault = 0,
        lhaNone = 1,
        lhaInvert = 2,
        lhaOutline = 3,
        lhaPush = 4,
    }

    [ComImport, Guid("0B39C201-B325-450F-8017-032EC9BAE749")]
    public class PDFDocumentClass
    {
    }

    [ComVisible(true), Guid("0B39C401-B325-450F-8017-032EC9BAE749")]
    [InterfaceType(ComInterfaceType.InterfaceIsIDispatch)]
    public interface PDFPageEvents
    {
        [DispId(1)] void PageRemoved(PDFPage page);
    }

    [ComImport, Guid("0B39C101-B325-450F-8017-032EC9BAE749")]
    [InterfaceType(ComInterfaceType.InterfaceIsIDispatch)]
    public interface PDFDocument
    {
        [DispId(1)] void SavePDFFile(string fileName);
        [DispId(2)] PDFPages Pages { get; }
        [DispId(3)] PDFFonts Fonts { get; }
        [DispId(4)] PDFTemplates Templates { get; }
        [DispId(5)] PDFImages Images { get; }
        [DispId(6)] object Tag { get; set; }
        [DispId(7)] PDFBookmarks Bookmarks { get; }
        [DispId(8)] PDFViewerPreferences ViewerPreferences { get; }
    }

    [ComImport, Guid("0B39C102-B325-450F-8017-032EC9BAE749")]
    [InterfaceType(ComInterfaceType.InterfaceIsIDispatch)]
    public interface PDFPages
    {
        [DispId(1)] PDFPage Add([Optional, DefaultParameterValue("")] string sKey,
            [Optional] object before, [Optional] object after);
        [DispId(0)] PDFPage this[object vntIndexKey] { get; }
        [DispId(2)] int count { get; }
        [DispId(3)] void Remove(object vntIndexKey);
        [DispId(-4)] System.Collections.IEnumerator GetEnumerator();
        [DispId(4)] bool KeyExists(object vntIndexKey);
        [DispId(5)] void ReOrder(string key, [Optional] object before, [Optional] object after);
    }

    [ComImport, Guid("0B39C107-B325-450F-8017-032EC9BAE749")]
    [InterfaceType(ComInterfaceType.InterfaceIsIDispatch)]
    public interface PDFTemplates
    {
        [DispId(1)] PDFTemplate Add([Optional, DefaultParameterValue("")] string sKey,
            [Optional] object before, [Optional] object after);
        [DispId(0)] PDFTemplate this[object vntIndexKey] { get; }
        [DispId(2)] int count { get; }
        [DispId(-4)] System.Collections.IEnumerator GetEnumerator();
        [DispId(3)] bool KeyExists(object vntIndexKey);
    }

    [ComImport, Guid("0B39C10B-B325-450F-8017-032EC9BAE749")]
    [InterfaceType(ComInterfaceType.InterfaceIsIDispatch)]
    public interface PDFImages
    {
        [DispId(1)] PDFImage Add([Optional, DefaultParameterValue("")] string sKey,
            [Optional] object before, [Optional] object after);
        [DispId(0)] PDFImage this[object vntIndexKey] { get; }
        [DispId(2)] int count { get; }
        [DispId(-4)] System.Collections.IEnumerator GetEnumerator();
        [DispId(3)] bool KeyExists(object vntIndexKey);
    }

    [ComImport, Guid("0B39C10D-B325-450F-8017-032EC9BAE749")]
    [InterfaceType(ComInterfaceType.InterfaceIsIDispatch)]
    public interface PDFTextBoxes
    {
        [DispId(1)] PDFTextBox Add([Optional, DefaultParameterValue("")] string sKey,
            [Optional] object before, [Optional] object after);
        [DispId(0)] PDFTextBox this[object vntIndexKey] { get; }
        [DispId(2)] int count { get; }
        [DispId(3)] void Remove(object vntIndexKey);
        [DispId(-4)] System.Collections.IEnumerator GetEnumerator();
        [DispId(4)] bool KeyExists(object vntIndexKey);
        [DispId(5)] void ReOrder(string key, [Optional] object before, [Optional] object after);
    }

    [ComImport, Guid("0B39C10F-B325-450F-8017-032EC9BAE749")]
    [InterfaceType(ComInterfaceType.InterfaceIsIDispatch)]
    public interface PDFBookmarks
    {
        [DispId(1)] PDFBookmark Add([Optional, DefaultParameterValue("")] string sKey,
            [Optional] object before, [Optional] object after);
        [DispId(0)] PDFBookmark this[object vntIndexKey] { get; }
        [DispId(2)] int count { get; }
        [DispId(3)] void Remove(object vntIndexKey);
        [DispId(-4)] System.Collections.IEnumerator GetEnumerator();
        [DispId(4)] bool KeyExists(object vntIndexKey);
        [DispId(5)] void ReOrder(string key, [Optional] object before, [Optional] object after);
    }

    [ComImport, Guid("0B39C112-B325-450F-8017-032EC9BAE749")]
    [InterfaceType(ComInterfaceType.InterfaceIsIDispatch)]
    public interface PDFHyperLinks
    {
        [DispId(1)] PDFHyperLink Add([Optional, DefaultParameterValue("")] string sKey,
            [Optional] object before, [Optional] object after);
        [DispId(0)] PDFHyperLink this[object vntIndexKey] { get; }
        [DispId(2)] int count { get; }
        [DispId(3)] void Remove(object vntIndexKey);
        [DispId(-4)] System.Collections.IEnumerator GetEnumerator();
        [DispId(4)] bool KeyExists(object vntIndexKey);
    }

    [ComImport, Guid("0B39C103-B325-450F-8017-032EC9BAE749")]
    [InterfaceType(ComInterfaceType.InterfaceIsIDispatch)]
    public interface PDFViewerPreferences
    {
        [DispId(1)] PDFPageLayoutStyle PageLayout { get; set; }
        [DispId(2)] PDFPageModeStyle PageMode { get; set; }
        [DispId(3)] bool HideToolbar { get; set; }
        [DispId(4)] bool HideMenubar { get; set; }
        [DispId(5)] bool HideWindowUI { get; set; }
        [DispId(6)] bool FitWindow { get; set; }
        [DispId(7)] bool CenterWindow { get; set; }
        [DispId(8)] PDFPageModeStyle NonFullScreenPageMode { get; set; }
    }

    [ComImport, Guid("0B39C104-B325-450F-8017-032EC9BAE749")]
    [InterfaceType(ComInterfaceType.InterfaceIsIDispatch)]
    public interface PDFPage
    {
        [DispId(1)] string Key { get; }
        [DispId(2)] PDFFont Font { get; set; }
        [DispId(3)] void SetPageExtents(float width, float height);
        [DispId(4)] void SetClipBox(float left, float bottom, float right, float top);
        [DispId(5)] void GetClipBox(ref float left, ref float bottom, ref float right,
            ref float top);
        [DispId(6)] PDFDocument ParentDocument { get; }
        [DispId(7)] float Width { get; set; }
        [DispId(8)] float Height { get; set; }
        [DispId(9)] PDFGraphicsState GraphicsState { get; }
        [DispId(10)] PDFTextBoxes TextBoxes { get; }
        [DispId(11)] void DrawText(string text, float x, float y);
        [DispId(12)] void DrawTextAligned(string text, float left, float bottom, float width,
            float height, PDFHorzTextAlignment horzAlignment = PDFHorzTextAlignment.htaLeft,
            PDFVertTextAlignment vertAlignment = PDFVertTextAlignment.vtaBaseline);
        [DispId(13)] void DrawLine(float x1, float y1, float x2, float y2);
        [DispId(14)] void DrawLineTo(float x, float y);
        [DispId(15)] void SetCurPos(float x, float y);
        [DispId(16)] void GetCurPos(ref float x, ref float y);
        [DispId(17)] void DrawRect(float left, float bottom, float width, float height,
            bool stroke = true, bool fill = false);
        [DispId(18)] void DrawTemplate(PDFTemplate template, [Optional] object x,
            [Optional] object y);
        [DispId(19)] void DrawImage(PDFImage image, float x, float y, [Optional] object width,
            [Optional] object height, bool maintainAspectRatio = true);
        [DispId(20)] object Tag { get; set; }
        [DispId(21)] PDFImage Thumbnail { get; set; }
        [DispId(22)] PDFHyperLinks HyperLinks { get; }
    }

    [ComImport, Guid("0B39C105-B325-450F-8017-032EC9BAE749")]
    [InterfaceType(ComInterfaceType.InterfaceIsIDispatch)]
    public interface PDFGraphicsState
    {
        [DispId(1)] int FillColor { get; set; }
        [DispId(2)] int StrokeColor { get; set; }
        [DispId(3)] float LineWidth { get; set; }
        [DispId(4)] float LineDashOn { get; }
        [DispId(5)] float LineDashOff { get; }
        [DispId(6)] void SetLineDashPattern(float dashOn, float dashOff);
        [DispId(7)] float FillGrayColor { set; }
        [DispId(8)] float StrokeGrayColor { set; }
        [DispId(9)] void Push();
        [DispId(10)] bool Pop();
        [DispId(11)] void Translate(float tx, float ty);
        [DispId(12)] void ScaleXY(float sx, float sy);
        [DispId(13)] void Rotate(float angle);
        [DispId(14)] void Skew(float xangle, float yangle);
        [DispId(15)] void SetTransformationMatrix(float a, float b, float c, float d, float e,
            float f);
    }

    [ComImport, Guid("0B39C106-B325-450F-8017-032EC9BAE749")]
    [InterfaceType(ComInterfaceType.InterfaceIsIDispatch)]
    public interface PDFTemplate
    {
        [DispId(1)] float Left { get; set; }
        [DispId(2)] float Top { get; set; }
        [DispId(3)] float Bottom { get; set; }
        [DispId(4)] float Right { get; set; }
        [DispId(5)] float Width { get; set; }
        [DispId(6)] float Height { get; set; }
        [DispId(7)] void SetClipBox(float left, float bottom, float right, float top);
        [DispId(8)] void GetClipBox(ref float left, ref float bottom, ref float right,
            ref float top);
        [DispId(9)] bool AutoSizeClipBox { get; set; }
        [DispId(10)] void ExpandClipBoxToFitTextBoxes();
        [DispId(11)] string Key { get; }
        [DispId(12)] PDFFont Font { get; set; }
        [DispId(13)] PDFGraphicsState GraphicsState { get; }
        [DispId(14)] PDFTextBoxes TextBoxes { get; }
        [DispId(15)] object Tag { get; set; }
        [DispId(16)] void DrawText(string text, float x, float y);
        [DispId(17)] void DrawTextAligned(string text, float left, float bottom, float width,
            float height, PDFHorzTextAlignment horzAlignment = PDFHorzTextAlignment.htaLeft,
            PDFVertTextAlignment vertAlignment = PDFVertTextAlignment.vtaBaseline);
        [DispId(18)] void DrawLine(float x1, float y1, float x2, float y2);
        [DispId(19)] void DrawLineTo(float x, float y);
        [DispId(20)] void SetCurPos(float x, float y);
        [DispId(21)] void GetCurPos(ref float x, ref float y);
        [DispId(22)] void DrawRect(float left, float bottom, float width, float height,
            bool stroke = true, bool fill = false);
        [DispId(23)] void DrawImage(PDFImage image, float x, float y, [Optional] object width,
            [Optional] object height, bool maintainAspectRatio = true);
    }

    [ComImport, Guid("0B39C108-B325-450F-8017-032EC9BAE749")]
    [InterfaceType(ComInterfaceType.InterfaceIsIDispatch)]
    public interface PDFFont
    {
        [DispId(1)] PDFFont Clone();
        [DispId(2)] float Size { get; set; }
        [DispId(3)] string FontFace { get; }
        [DispId(4)] PDFFontType FontType { get; }
        [DispId(5)] void GetTextExtents(string text, ref float width, ref float height);
        [DispId(6)] float TextWidth(string text);
        [DispId(7)] float TextHeight([Optional] object text);
        [DispId(8)] float Ascender { get; }
        [DispId(9)] float Descender { get; }
        [DispId(10)] float Leading { get; }
        [DispId(11)] float FontBoxTop { get; }
        [DispId(12)] float FontBoxLeft { get; }
        [DispId(13)] float FontBoxRight { get; }
        [DispId(14)] float FontBoxBottom { get; }
        [DispId(15)] bool Italic { get; set; }
        [DispId(16)] bool Bold { get; set; }
        [DispId(17)] bool StrikeOut { get; set; }
        [DispId(18)] bool Underline { get; set; }
        [DispId(19)] bool Subscript { get; set; }
        [DispId(20)] bool Superscript { get; set; }
    }

    [ComImport, Guid("0B39C109-B325-450F-8017-032EC9BAE749")]
    [InterfaceType(ComInterfaceType.InterfaceIsIDispatch)]
    public interface PDFFonts
    {
        [DispId(1)] PDFFont Add(string faceName, PDFFontType fontType = PDFFontType.fontType1,
            bool embed = false);
        [DispId(0)] PDFFont this[object vntIndexKey, PDFFontType fontType] { get; }
        [DispId(2)] int count(PDFFontType fontType);
        [DispId(3)] bool FontExists(string faceName, PDFFontType fontType);
        [DispId(4)] string[] AvailableFonts(PDFFontType fontType, bool embeddable = false);
    }

    [ComImport, Guid("0B39C10A-B325-450F-8017-032EC9BAE749")]
    [InterfaceType(ComInterfaceType.InterfaceIsIDispatch)]
    public interface PDFImage
    {
        [DispId(1)] bool Interpolate { get; set; }
        [DispId(2)] string Key { get; }
        [DispId(3)] string FileName { get; set; }
        [DispId(4)] int Width { get; }
        [DispId(5)] int Height { get; }
        [DispId(6)] object Tag { get; set; }
    }

    [ComImport, Guid("0B39C10C-B325-450F-8017-032EC9BAE749")]
    [InterfaceType(ComInterfaceType.InterfaceIsIDispatch)]
    public interface PDFTextBox
    {
        [DispId(1)] object Parent { get; }
        [DispId(2)] string Key { get; }
        [DispId(3)] float Left { get; set; }
        [DispId(4)] float Top { get; set; }
        [DispId(5)] float Bottom { get; set; }
        [DispId(6)] float Right { get; set; }
        [DispId(7)] float Width { get; set; }
        [DispId(8)] float Height { get; set; }
        [DispId(9)] void Move(float left, [Optional] object top, [Optional] object width,
            [Optional] object height);
        [DispId(10)] bool WordWrap { get; set; }
        [DispId(11)] bool AutoSize { get; set; }
        [DispId(12)] void AutoSizeNow();
        [DispId(13)] float MarginLeft { get; set; }
        [DispId(14)] float MarginTop { get; set; }
        [DispId(15)] float MarginRight { get; set; }
        [DispId(16)] float MarginBottom { get; set; }
        [DispId(17)] void SetMargins(float left, float top, float right, float bottom);
        [DispId(18)] void Copy(PDFTextBox source);
        [DispId(19)] void SetBorderDashPattern(float dashOn, float dashOff);
        [DispId(20)] object Tag { get; set; }
        [DispId(21)] int BackColor { get; set; }
        [DispId(22)] int BorderColor { get; set; }
        [DispId(23)] PDFBackGroundStyle BackStyle { get; set; }
        [DispId(24)] float BorderWidth { get; set; }
        [DispId(25)] string Text { get; set; }
        [DispId(26)] int SelStart { get; set; }
        [DispId(27)] int SelLength { get; set; }
        [DispId(28)] string SelText { get; set; }
        [DispId(29)] PDFFont SelFont { get; set; }
        [DispId(30)] float SelFontSize { get; set; }
        [DispId(31)] object SelColor { get; set; }
        [DispId(32)] object SelUnderline { get; set; }
        [DispId(33)] object SelStrikeOut { get; set; }
        [DispId(34)] object SelItalic { get; set; }
        [DispId(35)] object SelBold { get; set; }
        [DispId(36)] object SelSubscript { get; set; }
        [DispId(37)] object SelSuperscript { get; set; }
        [DispId(38)] PDFParaAlignment SelAlignment { get; set; }
        [DispId(39)] PDFGraphicsState GraphicsState { get; }
    }

    [ComImport, Guid("0B39C10E-B325-450F-8017-032EC9BAE749")]
    [InterfaceType(ComInterfaceType.InterfaceIsIDispatch)]
    public interface PDFBookmark
    {
        [DispId(1)] string Title { get; set; }
        [DispId(2)] bool Expanded { get; set; }
        [DispId(3)] PDFBookmarks SubBookmarks { get; }
        [DispId(4)] PDFLinkDestination Destination { get; }
        [DispId(5)] object Tag { get; set; }
        [DispId(6)] string Key { get; }
    }

    [ComImport, Guid("0B39C110-B325-450F-8017-032EC9BAE749")]
    [InterfaceType(ComInterfaceType.InterfaceIsIDispatch)]
    public interface PDFLinkDestination
    {
        [DispId(1)] PDFPage page { get; set; }
        [DispId(2)] PDFDestinationStyle DestinationMode { get; set; }
        [DispId(3)] float Left { get; set; }
        [DispId(4)] float Right { get; set; }
        [DispId(5)] float Bottom { get; set; }
        [DispId(6)] float Top { get; set; }
        [DispId(7)] float Zoom { get; set; }
        [DispId(8)] void SetRegion(float left, float bottom, float width = 0, float height = 0);
        [DispId(9)] float Width { get; set; }
        [DispId(10)] float Height { get; set; }
    }

    [ComImport, Guid("0B39C111-B325-450F-8017-032EC9BAE749")]
    [InterfaceType(ComInterfaceType.InterfaceIsIDispatch)]
    public interface PDFHyperLink
    {
        [DispId(1)] float Left { get; set; }
        [DispId(2)] float Right { get; set; }
        [DispId(3)] float Bottom { get; set; }
        [DispId(4)] float Top { get; set; }
        [DispId(5)] float Width { get; set; }
        [DispId(6)] float Height { get; set; }
        [DispId(7)] PDFLinkDestination Destination { get; }
        [DispId(8)] PDFLinkHighlightAction LinkHighlightAction { get; set; }
        [DispId(9)] void SetRegion(float left, float bottom, float width, float height);
        [DispId(10)] int BorderColor { get; set; }
        [DispId(11)] float BorderWidth { get; set; }
        [DispId(12)] void SetBorderDashPattern(float dashOn, float dashOff);
        [DispId(13)] object Tag { get; set; }
        [DispId(14)] string Key { get; }
    }
}
