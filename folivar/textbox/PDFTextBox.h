#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "folivar/base/Api.h"
#include "folivar/base/MemberKey.h"
#include "folivar/base/Tagged.h"
#include "folivar/base/Text.h"
#include "folivar/base/Value.h"
#include "folivar/textbox/PDFBackGroundStyle.h"
#include "folivar/textbox/PDFParaAlignment.h"

namespace folivar {

class Canvas;
class Internal;
class PDFFont;
class PDFGraphicsState;
class PDFText;
class Surface;

// A rectangle of rich text on a page or a template; made by PDFTextBoxes::Add. Its text is edited
// as in a rich-text control: place a selection, then read or set its text or its format. The box is
// drawn when the document is saved, as it is then: behind one another in the order of the
// collection, over what was drawn on the page or template itself.
//
// Lengths and coordinates are points, measured from the owner's bottom left corner; the box reaches
// from Top downwards. No setter checks its value. A sum beyond a single raises 6, and so does, when
// the document is saved, a number that PDF cannot hold.
//
// Positions in the text count UTF-16 units from 0.
class FOLIVAR_API PDFTextBox final : public Tagged {
 public:
  ~PDFTextBox() override;

  // The PDFPage or PDFTemplate that the box is on. Raises 91 when it is gone.
  std::shared_ptr<Canvas> Parent() const;

  // The key given to PDFTextBoxes::Add; empty without one.
  const folivar::Text& Key() const { return key_.AsText(); }

  // The edges. Left and Top are 0 at first; setting them moves the box. Setting the bottom above
  // the top, or the right edge to the left of the left one, makes it the edge on the other side and
  // that edge the opposite one.
  float Left() const;
  void SetLeft(float left);
  float Top() const;
  void SetTop(float top);
  float Bottom() const;
  void SetBottom(float bottom);
  float Right() const;
  void SetRight(float right);

  // At first as wide as a "W" in the default font, and, deliberate, only as high as its descender
  // is deep plus both margins. A negative width extends the box to the left, a negative height
  // upwards; what is kept is positive.
  float Width() const;
  void SetWidth(float width);
  float Height() const;
  void SetHeight(float height);

  // Sets Left, then Top, Width and Height as far as they are given.
  void Move(float left, std::optional<float> top = {}, std::optional<float> width = {},
            std::optional<float> height = {});

  // Whether lines break at blanks where the width less the margins, rounded to whole points, would
  // be reached; true at first. A word that is too wide has a line of its own and is not broken.
  // Otherwise lines end at "\n" only.
  bool WordWrap() const;
  void SetWordWrap(bool wordWrap);

  // Whether the box is sized to its text when it is drawn; false at first.
  //
  // Sizing makes the box as high as its lines and, without word wrap, as wide as its widest line,
  // plus the margins. Deliberate: with word wrap every sizing widens the box by both margins, so
  // that each save of the document draws it wider.
  bool AutoSize() const;
  void SetAutoSize(bool autoSize);
  // Sets AutoSize and sizes the box at once.
  void AutoSizeNow();

  // The space between the edges and the text; 2 each at first.
  float MarginLeft() const;
  void SetMarginLeft(float margin);
  float MarginTop() const;
  void SetMarginTop(float margin);
  float MarginRight() const;
  void SetMarginRight(float margin);
  float MarginBottom() const;
  void SetMarginBottom(float margin);
  void SetMargins(float left, float top, float right, float bottom);

  // Takes over another box's place, size, margins, wrapping, sizing, selection and text with its
  // formats; each format gets a font of its own. Colours, border and tag stay. Raises 91 for null
  // and 5 for a box of another document. A box copied into itself stays as it is.
  void Copy(const std::shared_ptr<PDFTextBox>& source);

  // Colours are 0x00BBGGRR: a white background, not shown unless BackStyle is bsOpaque (at first it
  // is bsTransparent), and a black border of width 1. A border width of 0 is no border.
  std::int32_t BackColor() const;
  void SetBackColor(std::int32_t color);
  PDFBackGroundStyle BackStyle() const;
  void SetBackStyle(PDFBackGroundStyle style);
  std::int32_t BorderColor() const;
  void SetBorderColor(std::int32_t color);
  float BorderWidth() const;
  void SetBorderWidth(float width);
  // Lengths of line and of gap; 1 and 0, a solid line, at first. A line of 0 with a gap that is not
  // 0 is no border.
  void SetBorderDashPattern(float dashOn, float dashOff);

  // The whole text, with "\n" for every line end. Setting it keeps the format at the text's
  // beginning for all of it and puts the caret at its end. Deliberate: with formats in three runs
  // or more, the text is set, some of the formats stay, and 9 is raised; the selection is kept as
  // far as it lies in the new text. Raises 5 for text that is not UTF-8 and 6 for one of more than
  // 2^31 - 1 units.
  const folivar::Text& Text() const;
  void SetText(TextView text);

  // Where the selection, or the caret, begins. Setting it makes it a caret; positions outside the
  // text are moved to its nearer end.
  std::int32_t SelStart() const;
  void SetSelStart(std::int32_t start);
  // How much is selected, from SelStart on. A negative length selects backwards from SelStart, and
  // the selection never leaves the text. Raises 6 when the sum is beyond 32 bits.
  std::int32_t SelLength() const;
  void SetSelLength(std::int32_t length);

  // The selected text. Setting it replaces the selection and leaves the caret behind the new text,
  // which takes the format of the run that it is put into. Deliberate: when the selection spans
  // runs, the first keeps its length, so that formats no longer belong to the text that they
  // belonged to; and one run too many may be removed, or 9 raised before the text changes. Raises 5
  // and 6 as SetText.
  folivar::Text SelText() const;
  void SetSelText(TextView text);

  // The formats of the selection, or of the caret: where text is in one format, that is one run.
  // Deliberate: a selection that spans runs, even of the same format, has no font (null), size 0,
  // no colour and no flags (nothing), and alignment alignNULL.
  //
  // Setting a format gives it to exactly the selection. A caret gets an empty run, which text set
  // through SelText takes up. A setter that fails leaves the text and its formats as they look,
  // or, when a font cannot change its style, as far as it came.

  // The font itself: what is changed in it shows in the box. All of the selection then shares the
  // font set, also with the host. Setting null changes nothing; a font of another document raises
  // 5.
  std::shared_ptr<PDFFont> SelFont() const;
  void SetSelFont(std::shared_ptr<PDFFont> font);
  // Points.
  float SelFontSize() const;
  void SetSelFontSize(float points);
  // 0x00BBGGRR; black at first. Setting it raises 94 for Null, 13 for what is no number and 6
  // beyond 32 bits.
  std::optional<std::int32_t> SelColor() const;
  void SetSelColor(const Value& color);

  // Flags, those of PDFFont. To set one, all numbers but 0 are true; raises 94 for Null and 13 for
  // what is neither a flag nor a number.
  std::optional<bool> SelBold() const;
  void SetSelBold(const Value& bold);
  std::optional<bool> SelItalic() const;
  void SetSelItalic(const Value& italic);
  std::optional<bool> SelUnderline() const;
  void SetSelUnderline(const Value& underline);
  std::optional<bool> SelStrikeOut() const;
  void SetSelStrikeOut(const Value& strikeOut);
  std::optional<bool> SelSubscript() const;
  void SetSelSubscript(const Value& subscript);
  std::optional<bool> SelSuperscript() const;
  void SetSelSuperscript(const Value& superscript);

  // alignLeft at first. Setting it aligns every paragraph that the selection touches; alignNULL
  // changes nothing. Deliberate: aligned is the text from the "\n" before the paragraph up to the
  // one behind it or, in the last paragraph, up to the last unit, which is left out. A line is
  // aligned as its first unit is.
  PDFParaAlignment SelAlignment() const;
  void SetSelAlignment(PDFParaAlignment alignment);

  // The box's own, made on first use and the same object each time: its operators come before the
  // box's frame and text, and end with the box.
  std::shared_ptr<PDFGraphicsState> GraphicsState();

  // For the library

  PDFTextBox(const Internal&, std::weak_ptr<Canvas> parent, std::shared_ptr<Surface> parentSurface,
             TextView key);

  // Null when it is gone.
  std::shared_ptr<Canvas> Owner(const Internal&) const { return parent_.lock(); }
  // Lists the faces of all text that is drawn among the owner's resources.
  void RegisterFaces(const Internal&) const;
  // Appends what draws the box, which is sized first if it sizes itself.
  void RenderTextBox(const Internal&, PDFText& content);

 private:
  struct Contents;

  void AutoSizeBox();

  MemberKey key_;
  std::weak_ptr<Canvas> parent_;
  std::shared_ptr<Surface> parentSurface_;
  // Both null at first: the graphics state, and what takes its operators.
  std::shared_ptr<Surface> surface_;
  std::shared_ptr<PDFGraphicsState> graphicsState_;
  std::unique_ptr<Contents> own_;
};

}  // namespace folivar
