#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "folivar/textbox/TextBoxFrame.h"

namespace folivar {

class AnsiText;
class MeasuredFormat;
class PDFFont;
class PDFText;
class RunList;
class TextLayout;
struct TextLine;

// Writes a text box as the operators that draw it: what the box's graphics state has written, its
// clip path, background, text, decorations and border. Raises 6 for a number that PDF cannot hold,
// with part of the box written.
class TextBoxRenderer {
 public:
  // Appends to `content`.
  TextBoxRenderer(PDFText& content, const TextBoxGeometry& geometry, const TextBoxFrame& frame)
      : content_(content), geometry_(geometry), frame_(frame) {}

  void Render(std::string_view ownContent, const AnsiText& text, const RunList& runs);

 private:
  struct Point {
    float x;
    float y;
  };
  // Of a decoration; from `start` to the right.
  struct Stroke {
    float lineWidth;
    Point start;
    float end;
  };

  void AppendFrame();
  void AppendPath();
  void AppendLines(TextLayout& layout);
  void AppendLine(const TextLayout& layout, const TextLine& line, Point start);
  void AppendSegment(std::string_view bytes, const MeasuredFormat& format);
  bool IsPlain(std::string_view bytes);
  void Decorate(const PDFFont& font, Point start, float end);
  void AppendDecorations();
  void AppendBorder();

  PDFText& content_;
  const TextBoxGeometry& geometry_;
  const TextBoxFrame& frame_;
  std::string_view text_;
  std::size_t nextEscape_ = 0;           // of the text, as far as it has been looked for
  std::vector<std::string> beginnings_;  // what chooses each format; empty until it is needed
  std::vector<Stroke> strokes_;
};

}  // namespace folivar
