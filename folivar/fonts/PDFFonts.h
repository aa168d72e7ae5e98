#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "folivar/document/Api.h"
#include "folivar/document/KeyedList.h"
#include "folivar/document/Object.h"
#include "folivar/document/ObjectWriter.h"
#include "folivar/document/Text.h"
#include "folivar/document/Value.h"
#include "folivar/fonts/PDFFontType.h"
#include "folivar/platform/Warnings.h"

namespace folivar {

class Internal;
class PDFFont;
class PDFFontInfo;

// The faces that a document uses; reached through PDFDocument::Fonts. It keeps one record for each
// face and hands out fonts, which share it. Faces are found by name without regard to case.
//
// TrueType faces are not available: adding one raises 445. A font type that is neither raises 5.
class FOLIVAR_API PDFFonts final : public Object, public ObjectWriter {
 public:
  PDFFonts(const Internal&, std::shared_ptr<Warnings> warnings);
  ~PDFFonts() override;

  // A new font of size 10 without decorations. A standard face that does not exist is replaced by
  // another, with a warning: "Arial-Bold" by Helvetica-Bold and "Times New Roman-Bold" by
  // Times-Bold (likewise others of these two families, where there is such a standard face),
  // anything else by Helvetica. `embed` concerns TrueType faces only.
  std::shared_ptr<PDFFont> Add(TextView faceName, PDFFontType fontType = fontType1,
                               bool embed = false);

  // A new font of size 10 in the face at a position (from 1, in the order of creation) or with a
  // name, among the faces of this type. Raises 5 for an unknown name, 9 for a position outside 1 to
  // count, 13 for what is neither, 94 for Null, 6 for a number beyond 32 bits.
  std::shared_ptr<PDFFont> Item(const Value& indexOrKey, PDFFontType fontType);

  // How many faces of this type the document uses; fonts do not count.
  std::int32_t count(PDFFontType fontType) const;

  // Whether the document uses a face of this name and type.
  bool FontExists(TextView faceName, PDFFontType fontType) const;

  // The faces that can be added: for fontType1 the fourteen standard names, sorted.
  std::vector<Text> AvailableFonts(PDFFontType fontType, bool embeddable = false) const;

 private:
  // ObjectWriter
  void NumberObjects(ObjectNumbers& numbers) override;
  void WriteObjects(SaveFile& file) override;

  using FaceList = KeyedList<std::shared_ptr<PDFFontInfo>>;

  const FaceList& FacesOf(PDFFontType fontType) const;
  std::shared_ptr<PDFFontInfo> FindFaceRecord(TextView name, PDFFontType fontType) const;
  std::shared_ptr<PDFFontInfo> AddStandardFace(const Text& faceName);
  void AddFaceRecord(std::shared_ptr<PDFFontInfo> face);
  std::string NextResourceName() const;
  std::shared_ptr<PDFFont> FontOf(std::shared_ptr<PDFFontInfo> face);

  std::shared_ptr<Warnings> warnings_;
  FaceList type1_{"PDFFonts"};
  FaceList trueType_{"PDFFonts"};
  std::vector<std::shared_ptr<PDFFontInfo>> all_;  // in the order of creation
};

}  // namespace folivar
