#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "folivar/base/Api.h"
#include "folivar/base/Object.h"
#include "folivar/base/Text.h"
#include "folivar/base/Value.h"
#include "folivar/fonts/Embedding.h"
#include "folivar/fonts/PDFFontType.h"

namespace folivar {

struct FaceWanted;
class FaceWriter;
class FontFiles;
class Internal;
class ObjectNumbers;
class PDFFont;
class PDFFontInfo;
class SaveFile;
class SystemFace;
class SystemFonts;
class Warnings;
template <class T>
class KelCollection;

// The faces that a document uses; reached through PDFDocument::Fonts. It keeps one record for each
// face and hands out fonts, which share it. Faces are found by name without regard to case; names
// of TrueType faces without regard to blanks too, followed by their style:
// "TimesNewRoman,BoldItalic" is "Times New Roman,BoldItalic". A font type that is neither raises 5.
class FOLIVAR_API PDFFonts final : public Object {
 public:
  ~PDFFonts() override;

  // A new font of size 10 without decorations. A standard face that does not exist is replaced by
  // another, with a warning: "Arial-Bold" by Helvetica-Bold and "Times New Roman-Bold" by
  // Times-Bold (likewise others of these two families, where there is such a standard face),
  // anything else by Helvetica.
  //
  // A TrueType face is taken from the document's font files, else from the system's fonts, which
  // may put another in its place, with a warning. Raises 445 when there is no TrueType font at all.
  // Embedded, the font's file goes into the PDF, unless the font forbids it, which gives a
  // warning. Deliberate: a face that the document has already stays as it was added, embedded or
  // not. Raises 321 and the file errors (52, 53, 70, 75, 76) for a font file that cannot be read,
  // and 6 for one of more than 1 GiB that is to be embedded.
  std::shared_ptr<PDFFont> Add(TextView faceName, PDFFontType fontType = fontType1,
                               Embedding embedding = Embedding::kNone);

  // A new font of size 10 in the face at a position (from 1, in the order of creation) or with a
  // name, among the faces of this type. Raises 5 for an unknown name, 9 for a position outside 1 to
  // count, 13 for what is neither, 94 for Null, 6 for a number beyond 32 bits.
  std::shared_ptr<PDFFont> Item(const Value& indexOrKey, PDFFontType fontType);

  // How many faces of this type the document uses; fonts do not count.
  std::int32_t count(PDFFontType fontType) const;

  // Whether the document uses a face of this name and type.
  bool FontExists(TextView faceName, PDFFontType fontType) const;

  // The faces that can be added, sorted by name: for fontType1 the fourteen standard names, for
  // fontTrueType the families of the document's font files and of the system, each once; to be
  // embedded, only those whose upright face may be.
  std::vector<Text> AvailableFonts(PDFFontType fontType,
                                   Embedding embedding = Embedding::kNone) const;

  // For the library

  PDFFonts(const Internal&, std::shared_ptr<Warnings> warnings,
           std::shared_ptr<SystemFonts> systemFonts, std::shared_ptr<FontFiles> fontFiles);

  void NumberObjects(const Internal&, ObjectNumbers& numbers);
  void WriteObjects(const Internal&, SaveFile& file);

  // Whether there may be some; asks nothing of the system.
  bool ReadsFiles(const Internal&) const;
  // The document's font files, and those that its faces were read from, as far as they are known.
  std::vector<Text> FileNames(const Internal&) const;

  // The record of a TrueType face's style, for a font that changes to it: the one that is there,
  // else one that is made now; null when it is not there and must not be made.
  enum class IfAbsent { kMake, kLeave };
  std::shared_ptr<const PDFFontInfo> StyledFace(const Internal&, const PDFFontInfo& face,
                                                bool isBold, bool isItalic, IfAbsent ifAbsent);

 private:
  using FaceList = KelCollection<std::shared_ptr<const PDFFontInfo>>;

  const FaceList& FacesOf(PDFFontType fontType) const;
  std::shared_ptr<const PDFFontInfo> FindFaceRecord(const Text& name, PDFFontType fontType) const;
  std::vector<Text> TrueTypeFaceNames(bool embeddable) const;
  bool MayBeEmbedded(const Text& faceName) const;
  std::shared_ptr<PDFFont> AddStandardFace(const Text& faceName);
  std::shared_ptr<PDFFont> AddTrueTypeFace(const FaceWanted& wanted);
  std::unique_ptr<SystemFace> SelectFace(const FaceWanted& wanted) const;
  std::shared_ptr<PDFFont> AddFaceRecord(const std::shared_ptr<PDFFontInfo>& face,
                                         std::unique_ptr<FaceWriter> writer);
  std::string NextResourceName() const;
  std::shared_ptr<PDFFont> FontOf(std::shared_ptr<const PDFFontInfo> face);

  std::shared_ptr<Warnings> warnings_;
  std::shared_ptr<SystemFonts> systemFonts_;
  std::shared_ptr<FontFiles> fontFiles_;
  std::unique_ptr<FaceList> type1_;
  std::unique_ptr<FaceList> trueType_;
  std::vector<std::unique_ptr<FaceWriter>> writers_;  // of all faces, in the order of creation
};

}  // namespace folivar
