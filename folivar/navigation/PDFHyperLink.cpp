#include "folivar/navigation/PDFHyperLink.h"

#include <string_view>

#include "folivar/base/InMember.h"
#include "folivar/base/Internal.h"
#include "folivar/base/KeyedName.h"
#include "folivar/file/SaveFile.h"

namespace folivar {
namespace {

// Empty for what is not written.
std::string_view HighlightLine(PDFLinkHighlightAction action) {
  switch (action) {
    case lhaNone:
      return "/H /N\n";
    case lhaInvert:
      return "/H /I\n";
    case lhaOutline:
      return "/H /O\n";
    case lhaPush:
      return "/H /P\n";
    default:
      return "";
  }
}

}  // namespace

PDFHyperLink::PDFHyperLink(const Internal& internal, TextView key)
    : key_(key), destination_(internal) {}

std::shared_ptr<PDFLinkDestination> PDFHyperLink::Destination() {
  return {Shared<PDFHyperLink>(), &destination_};
}

void PDFHyperLink::SetBorderDashPattern(float dashOn, float dashOff) {
  dashOn_ = dashOn;
  dashOff_ = dashOff;
}

void PDFHyperLink::WriteObject(const Internal&, SaveFile& file, Reference object,
                               const std::weak_ptr<PDFPages>& pages) const {
  AppendAnnotation(file.BeginObject(object), pages);
  file.EndObject();
}

//   << /Type /Annot
//   /Subtype /Link
//   /H /I
//   /Rect [ 10  10  110  30  ]
//   /Dest [ 4 0 R /Fit ]
//   /Border [0 0 2  [3 2 ]]
//   /C [1 0 0 ]
//   >>
void PDFHyperLink::AppendAnnotation(PDFText& text, const std::weak_ptr<PDFPages>& pages) const {
  OfObject([&] { return KeyedName("PDFHyperLink", Key()); },
           [&] {
             text.Append("<< /Type /Annot\n/Subtype /Link\n", HighlightLine(highlight_), "/Rect [ ",
                         Real{Left()}, " ", Real{Bottom()}, " ", Real{Right()}, " ", Real{Top()},
                         " ]\n");
             destination_.AppendDestination(Internal(), text, pages);
             AppendBorder(text);
           });
  // Deliberate: black is 0, which stands for the reader's own choice, and that is black.
  if (borderColor_ != 0) {
    text.Append("/C [", ColorShares{borderColor_}, "]\n");
  }
  text.Append(">>\n");
}

void PDFHyperLink::AppendBorder(PDFText& text) const {
  if (dashOn_ == 0 || borderWidth_ == 0) {
    // Deliberate: a border of gaps alone is how none is expressed; the width says 1 all the same.
    text.Append("/Border [0 0 1 [0 1]]\n");
  } else if (dashOff_ != 0 || borderWidth_ != 1) {
    text.Append("/Border [0 0 ", Real{borderWidth_}, " [", Real{dashOn_}, Real{dashOff_}, "]]\n");
  }
}

}  // namespace folivar
