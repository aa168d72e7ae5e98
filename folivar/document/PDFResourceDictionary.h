#pragma once

#include <array>
#include <cstddef>
#include <memory>

#include "folivar/document/KelCollection.h"
#include "folivar/file/PDFText.h"

namespace folivar {

class PDFFont;
class PDFFontInfo;
class XObject;

// The resources that one page or template uses, each once by its resource name, in the order of
// first use. Entries are never removed.
class PDFResourceDictionary {
 public:
  // Lists the font's face; doing so again is harmless, and costs next to nothing for the faces
  // listed last: every text drawn calls this.
  void AddFontResource(const PDFFont& font);

  // List a template or an image; doing so again is harmless.
  void AddTemplateResource(const std::shared_ptr<const XObject>& placed);
  void AddImageResource(const std::shared_ptr<const XObject>& image);

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
  using Faces = KelCollection<std::shared_ptr<const PDFFontInfo>>;
  using XObjects = KelCollection<std::shared_ptr<const XObject>>;

  Faces fonts_{"PDFResourceDictionary"};
  // Held by fonts_. Text changes to and fro between few faces.
  std::array<const PDFFontInfo*, 4> recentFaces_{};
  std::size_t oldestFace_ = 0;  // of the recent ones
  // Made on first use: most pages have none.
  std::unique_ptr<XObjects> templates_;
  std::unique_ptr<XObjects> images_;
};

}  // namespace folivar
