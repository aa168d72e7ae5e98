#include "folivar/navigation/PDFHyperLink.h"

#include <utility>

#include "folivar/document/Error.h"
#include "folivar/document/Internal.h"
#include "folivar/document/KeyedName.h"
#include "folivar/document/PDFText.h"

namespace folivar {

PDFHyperLink::PDFHyperLink(const Internal& internal, TextView key)
    : key_(key), destination_(internal) {}

std::shared_ptr<PDFLinkDestination> PDFHyperLink::Destination() {
  return {Shared<PDFHyperLink>(), &destination_};
}

void PDFHyperLink::SetBorderDashPattern(float dashOn, float dashOff) {
  dashOn_ = dashOn;
  dashOff_ = dashOff;
}

//   << /Type /Annot
//   /Subtype /Link
//   /H /I
//   /Rect [ 10  10  110  30  ]
//   /Dest [ 4 0 R /Fit ]
//   /Border [0 0 2  [3 2 ]]
//   /C [1 0 0 ]
//   >>
void PDFHyperLink::BuildAnnotationText(const Internal& internal, PDFText& text,
                                       const std::weak_ptr<PDFPages>& pages) const {
  text.Append("<< /Type /Annot\n/Subtype /Link\n");
  AppendHighlight(text);
  try {
    text.Append("/Rect [ ", Real{Left()}, " ", Real{Bottom()}, " ", Real{Right()}, " ", Real{Top()},
                " ]\n");
    destination_.AppendDestination(internal, text, pages);
    AppendBorder(text);
  } catch (const Error& error) {
    throw Error(error.Number(), KeyedName("PDFHyperLink", Key()) + ": " + error.what());
  }
  // Deliberate: black is 0, which stands for the reader's own choice, and that is black.
  if (borderColor_ != 0) {
    text.Append("/C [", RedShare(borderColor_), GreenShare(borderColor_), BlueShare(borderColor_),
                "]\n");
  }
  text.Append(">>\n");
}

void PDFHyperLink::AppendHighlight(PDFText& text) const {
  switch (highlight_) {
    case lhaUserDefault:
      break;
    case lhaNone:
      text.Append("/H /N\n");
      break;
    case lhaInvert:
      text.Append("/H /I\n");
      break;
    case lhaOutline:
      text.Append("/H /O\n");
      break;
    case lhaPush:
      text.Append("/H /P\n");
      break;
  }
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
