#pragma once

#include <cstdint>
#include <memory>

#include "folivar/base/Api.h"
#include "folivar/base/MemberKey.h"
#include "folivar/base/Tagged.h"
#include "folivar/base/Text.h"
#include "folivar/file/Reference.h"
#include "folivar/navigation/PDFLinkDestination.h"
#include "folivar/navigation/PDFLinkHighlightAction.h"
#include "folivar/navigation/Region.h"

namespace folivar {

class Internal;
class PDFPages;
class PDFText;
class SaveFile;

// A rectangle on a page that leads to a place in the document when it is clicked; made by
// PDFHyperLinks::Add. Its region is on its own page. A number that PDF cannot hold raises 6 when
// the document is saved.
class FOLIVAR_API PDFHyperLink final : public Tagged, public Region<PDFHyperLink> {
 public:
  // Where it leads; the same object each time. A link that leads nowhere is still written.
  std::shared_ptr<PDFLinkDestination> Destination();

  // lhaUserDefault at first; not checked.
  PDFLinkHighlightAction LinkHighlightAction() const { return highlight_; }
  void SetLinkHighlightAction(PDFLinkHighlightAction action) { highlight_ = action; }

  // 0x00BBGGRR; 0 at first. Deliberate: black, as 0, is not written, and is what readers take.
  std::int32_t BorderColor() const { return borderColor_; }
  void SetBorderColor(std::int32_t color) { borderColor_ = color; }

  // Points; 1 at first, 0 for no border.
  float BorderWidth() const { return borderWidth_; }
  void SetBorderWidth(float width) { borderWidth_ = width; }

  // Lengths of line and of gap; 1 and 0, a solid line, at first. A line of 0 is no border, whatever
  // its width.
  void SetBorderDashPattern(float dashOn, float dashOff);

  // The key given to PDFHyperLinks::Add; empty without one.
  const Text& Key() const { return key_.AsText(); }

  // For the library

  PDFHyperLink(const Internal&, TextView key);

  // The links of a page keep its number. The destination leads to `pages`.
  void WriteObject(const Internal&, SaveFile& file, Reference object,
                   const std::weak_ptr<PDFPages>& pages) const;

 private:
  void AppendAnnotation(PDFText& text, const std::weak_ptr<PDFPages>& pages) const;
  void AppendBorder(PDFText& text) const;

  MemberKey key_;
  PDFLinkDestination destination_;
  PDFLinkHighlightAction highlight_ = lhaUserDefault;
  std::int32_t borderColor_ = 0;
  float borderWidth_ = 1;
  float dashOn_ = 1;
  float dashOff_ = 0;
};

}  // namespace folivar
