#pragma once

#include <cstddef>
#include <memory>
#include <string_view>
#include <utility>

#include "folivar/document/PDFResourceDictionary.h"
#include "folivar/drawing/Point.h"
#include "folivar/file/PDFText.h"
#include "folivar/fonts/PDFFont.h"
#include "folivar/page/GRAPHICS_STATE.h"
#include "folivar/page/Stack.h"

namespace folivar {

class ByteSink;
class PDFDocument;
class XObject;

// What is drawn on: the content of one page or template, the resources it uses, its current font,
// its pen and the values of its graphics state. Shared by its owner and the owner's graphics state,
// so that either may outlive the other. A text box has one too, without a font, for what its
// graphics state writes.
class Surface {
 public:
  explicit Surface(std::weak_ptr<PDFDocument> document) : document_(std::move(document)) {}

  const std::weak_ptr<PDFDocument>& ParentDocument() const { return document_; }

  // Makes `font` current and lists it among the resources. Raises 91 for null and 5 for a font of
  // another document: its face would be missing in the file.
  void SetFont(std::shared_ptr<PDFFont> font);
  const std::shared_ptr<PDFFont>& Font() const { return font_; }

  // Appends one piece: all parts or, when one cannot be written, none.
  template <class... Parts>
  void AppendContent(const Parts&... parts) {
    content_.Append(parts...);
  }
  // For operations of several pieces.
  PDFText& Content() { return content_; }

  // The content between "q" and "Q", and behind it what draws the text boxes.
  std::size_t StreamLength(std::string_view textBoxes) const;
  void WriteStream(ByteSink& out, std::string_view textBoxes) const;

  PDFResourceDictionary& ResourceDictionary() { return resources_; }

  // Raises 5 for a font of another document than the current one's.
  void CheckIsOfDocument(const PDFFont& font) const;
  // Also when the document is gone.
  bool IsOfSameDocument(const Surface& other) const;
  // Raises 91 for null and 5 for an object of another document, which would be missing in the file.
  // `className` stands in the error's text: "PDFTemplate".
  void CheckIsOfDocument(const XObject* object, std::string_view className) const;

  // What the graphics state remembers of the values set, and what it has saved of them.
  GRAPHICS_STATE& State() { return state_; }
  const GRAPHICS_STATE& State() const { return state_; }
  Stack<GRAPHICS_STATE>& SavedStates() { return savedStates_; }

  // The pen: where DrawLineTo starts. 0, 0 at first.
  Point CurPos() const { return curPos_; }
  void SetCurPos(Point position) { curPos_ = position; }

 private:
  std::weak_ptr<PDFDocument> document_;
  PDFText content_;
  PDFResourceDictionary resources_;
  std::shared_ptr<PDFFont> font_;
  Point curPos_;
  GRAPHICS_STATE state_;
  Stack<GRAPHICS_STATE> savedStates_;
};

}  // namespace folivar
