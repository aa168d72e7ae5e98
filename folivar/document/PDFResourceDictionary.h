#pragma once

#include <algorithm>
#include <memory>
#include <vector>

#include "folivar/document/KelCollection.h"
#include "folivar/file/PDFText.h"

namespace folivar {

class FaceUser;
class PDFFontInfo;
class XObject;

// The resources that one page or template uses, each once, in the order of first use. Entries are
// never removed.
class PDFResourceDictionary {
 public:
  // Lists the font's face under its resource name; doing so again is harmless.
  void AddFontResource(const FaceUser& font);
  // Whether that has been done: every text drawn asks.
  bool HasFace(const PDFFontInfo& face) const {
    return std::find(faces_.begin(), faces_.end(), &face) != faces_.end();
  }

  // List a template or an image under its resource name; doing so again is harmless.
  void AddTemplateResource(const std::shared_ptr<XObject>& object);
  void AddImageResource(const std::shared_ptr<XObject>& image);

  // Appends the "/Resources" value, with the object numbers of the save in progress:
  //
  //   <<
  //   /Font << /F0 6 0 R
  //    >>
  //   /XObject << /T1 8 0 R
  //    /I1 9 0 R
  //    >>
  //   >>
  //
  // The first line ends with a blank. "/Font" is always there, "/XObject" when it lists something.
  void BuildResourceText(PDFText& text) const;

 private:
  KelCollection fonts_;                    // PDFFontInfo objects, by resource name
  std::vector<const PDFFontInfo*> faces_;  // the same, held by fonts_
  // XObjects, by resource name; created on first use, because most pages have none.
  std::unique_ptr<KelCollection> templates_;
  std::unique_ptr<KelCollection> images_;
};

}  // namespace folivar
