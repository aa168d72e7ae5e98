#pragma once

#include <vector>

#include "folivar/document/KelCollection.h"
#include "folivar/document/PDFText.h"

namespace folivar {

class FaceUser;
class PDFFontInfo;

// The resources that one page or template uses, each once, in the order of first use. Entries are
// never removed.
class PDFResourceDictionary {
 public:
  // Lists the font's face under its resource name; doing so again is harmless.
  void AddFontResource(const FaceUser& font);

  // Appends the "/Resources" value, with the object numbers of the save in progress:
  //
  //   <<
  //   /Font << /F0 6 0 R
  //    >>
  //   >>
  //
  // The first line ends with a blank.
  void BuildResourceText(PDFText& text) const;

 private:
  KelCollection fonts_;  // PDFFontInfo objects, by resource name
  // The same, held by fonts_: every text drawn registers its face, and nearly always it is here.
  std::vector<const PDFFontInfo*> faces_;
};

}  // namespace folivar
