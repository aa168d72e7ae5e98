#include "folivar/fonts/PDFFonts.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>
#include <utility>

#include "folivar/base/CaseFold.h"
#include "folivar/base/Error.h"
#include "folivar/base/InMember.h"
#include "folivar/base/Internal.h"
#include "folivar/base/Warnings.h"
#include "folivar/document/Global.h"
#include "folivar/document/KelCollection.h"
#include "folivar/fonts/FontFiles.h"
#include "folivar/fonts/PDFFont.h"
#include "folivar/fonts/PDFFontInfo.h"
#include "folivar/fonts/StandardFaceWriter.h"
#include "folivar/fonts/StandardFaces.h"
#include "folivar/fonts/StandardMetrics.h"
#include "folivar/fonts/SystemFonts.h"
#include "folivar/fonts/TrueTypeFaceWriter.h"
#include "folivar/fonts/TrueTypeMetrics.h"

namespace folivar {
namespace {

constexpr std::string_view kFallbackFace = "Helvetica";

#ifdef _WIN32
constexpr std::string_view kWhereInstalled = "installed";
#else
constexpr std::string_view kWhereInstalled = "installed where libfontconfig.so.1 finds it";
#endif

struct FamilyNames {
  std::u16string_view from;
  std::u16string_view to;
};

// Families of one type by the names of their counterparts of the other; the first that a name
// begins with counts, so "Times New Roman" stands before "Times".
constexpr auto kFamilies = std::to_array<FamilyNames>({
    {u"Helvetica", u"Arial"},
    {u"Arial", u"Helvetica"},
    {u"Times New Roman", u"Times"},
    {u"Times", u"Times New Roman"},
});

// "Arial-Bold" is "Helvetica-Bold" and the other way round; a name of no family is itself.
// Deliberate: the beginning is compared without regard to case, but replaced only as it is spelled
// in the table: "ARIAL" is itself.
Text CounterpartName(const Text& name) {
  for (const FamilyNames& family : kFamilies) {
    if (!StartsWithIgnoringCase(name, family.from)) continue;
    std::u16string counterpart = name.Utf16();
    const std::size_t place = counterpart.find(family.from);
    if (place != std::u16string::npos) {
      counterpart.replace(place, family.from.size(), family.to);
    }
    return Text(counterpart);
  }
  return name;
}

// The keys of TrueType faces are names like this.
Text WithoutBlanks(const Text& name) {
  std::u16string key = name.Utf16();
  std::erase(key, u' ');
  return Text(key);
}

std::size_t SubstituteFor(const Text& name) {
  const auto counterpart = FindStandardFace(CounterpartName(name));
  return counterpart ? *counterpart : *FindStandardFace(kFallbackFace);
}

std::vector<Text> StandardFaceNames() {
  std::vector<Text> names;
  names.reserve(kStandardFaceCount);
  for (std::size_t face = 0; face < kStandardFaceCount; ++face) {
    names.emplace_back(StandardFaceName(face));
  }
  return names;
}

}  // namespace

PDFFonts::PDFFonts(const Internal&, std::shared_ptr<Warnings> warnings,
                   std::shared_ptr<SystemFonts> systemFonts, std::shared_ptr<FontFiles> fontFiles)
    : warnings_(std::move(warnings)),
      systemFonts_(std::move(systemFonts)),
      fontFiles_(std::move(fontFiles)),
      type1_(std::make_unique<FaceList>("PDFFonts")),
      trueType_(std::make_unique<FaceList>("PDFFonts")) {}

PDFFonts::~PDFFonts() = default;

std::shared_ptr<PDFFont> PDFFonts::Add(TextView faceName, PDFFontType fontType,
                                       Embedding embedding) {
  return InMember("PDFFonts.Add", [&] {
    Text name(faceName);
    if (auto face = FindFaceRecord(name, fontType)) return FontOf(std::move(face));
    if (fontType == fontType1) return AddStandardFace(name);
    return AddTrueTypeFace({std::move(name), false, false, embedding == Embedding::kEmbed});
  });
}

std::shared_ptr<PDFFont> PDFFonts::Item(const Value& indexOrKey, PDFFontType fontType) {
  return InMember("PDFFonts.Item", [&] {
    const FaceList& faces = FacesOf(fontType);
    const Text* name = fontType == fontTrueType ? indexOrKey.As<Text>() : nullptr;
    return FontOf(faces.Item(name ? Value(WithoutBlanks(*name)) : indexOrKey));
  });
}

std::int32_t PDFFonts::count(PDFFontType fontType) const {
  return InMember("PDFFonts.count",
                  [&] { return static_cast<std::int32_t>(FacesOf(fontType).Count()); });
}

bool PDFFonts::FontExists(TextView faceName, PDFFontType fontType) const {
  return InMember("PDFFonts.FontExists",
                  [&] { return FindFaceRecord(Text(faceName), fontType) != nullptr; });
}

std::vector<Text> PDFFonts::AvailableFonts(PDFFontType fontType, Embedding embedding) const {
  return InMember("PDFFonts.AvailableFonts", [&] {
    return &FacesOf(fontType) == type1_.get() ? StandardFaceNames()
                                              : TrueTypeFaceNames(embedding == Embedding::kEmbed);
  });
}

std::vector<Text> PDFFonts::TrueTypeFaceNames(bool embeddable) const {
  std::vector<Text> names = fontFiles_->FaceNames();
  for (Text& name : systemFonts_->FaceNames()) names.push_back(std::move(name));
  SortStrings(names, -1, 0);
  names.erase(
      std::unique(names.begin(), names.end(),
                  [](const Text& a, const Text& b) { return CompareIgnoringCase(a, b) == 0; }),
      names.end());
  if (embeddable) {
    std::erase_if(names, [&](const Text& name) { return !MayBeEmbedded(name); });
  }
  return names;
}

// A font whose file has gone cannot be.
bool PDFFonts::MayBeEmbedded(const Text& faceName) const {
  try {
    const auto face = SelectFace({faceName});
    return face && IsEmbeddable(*face);
  } catch (const Error&) {
    return false;
  }
}

bool PDFFonts::ReadsFiles(const Internal& internal) const {
  return trueType_->Count() > 0 || !fontFiles_->IsEmpty(internal);
}

std::vector<Text> PDFFonts::FileNames(const Internal& internal) const {
  std::vector<Text> names = fontFiles_->FileNames(internal);
  trueType_->ForEach([&](const std::shared_ptr<const PDFFontInfo>& face) {
    if (!face->FileName().IsEmpty()) names.push_back(face->FileName());
  });
  return names;
}

std::shared_ptr<const PDFFontInfo> PDFFonts::StyledFace(const Internal&, const PDFFontInfo& face,
                                                        bool isBold, bool isItalic,
                                                        IfAbsent ifAbsent) {
  auto styled = FindFaceRecord(BaseFontNameOf(face.m_FontFace, isBold, isItalic), face.m_FontType);
  if (styled || ifAbsent == IfAbsent::kLeave) return styled;
  const auto font = AddTrueTypeFace({face.m_FontFace, isBold, isItalic, face.m_EmbedFont});
  return font->FontInfo(Internal());
}

const PDFFonts::FaceList& PDFFonts::FacesOf(PDFFontType fontType) const {
  switch (fontType) {
    case fontType1:
      return *type1_;
    case fontTrueType:
      return *trueType_;
  }
  throw Error::InvalidArgument("FontType " + std::to_string(fontType) +
                               " is neither fontType1 nor fontTrueType");
}

std::shared_ptr<const PDFFontInfo> PDFFonts::FindFaceRecord(const Text& name,
                                                            PDFFontType fontType) const {
  const FaceList& faces = FacesOf(fontType);
  const auto find = [&](const Text& key) {
    return faces.KeyExists(key) ? faces.Item(key) : nullptr;
  };
  return fontType == fontTrueType ? find(WithoutBlanks(name)) : find(name);
}

std::shared_ptr<PDFFont> PDFFonts::AddStandardFace(const Text& faceName) {
  auto standardFace = FindStandardFace(faceName);
  if (!standardFace) {
    standardFace = SubstituteFor(faceName);
    const std::string substitute(StandardFaceName(*standardFace));
    warnings_->Show(Text("WARNING: Font '" + faceName.Utf8() + "' could not be found.  Using '" +
                         substitute + "' instead."));
    if (auto face = FindFaceRecord(Text(substitute), fontType1)) return FontOf(std::move(face));
  }
  auto face = LoadStandardMetrics(*standardFace);
  return AddFaceRecord(face, std::make_unique<StandardFaceWriter>(face));
}

std::shared_ptr<PDFFont> PDFFonts::AddTrueTypeFace(const FaceWanted& wanted) {
  const auto selected = SelectFace(wanted);
  if (!selected) {
    throw Error::ActionNotSupported(
        "there is no TrueType font, neither among the document's font files nor " +
        std::string(kWhereInstalled) + ": install one, or add its file to FontFiles")
        .WithObject("font '" + wanted.name.Utf8() + "'");
  }
  auto face = LoadTrueTypeMetrics(wanted, *selected, *warnings_);
  // What the system put in the place of the face wanted may be here already.
  if (auto existing = FindFaceRecord(face->BaseFontName(), fontTrueType)) {
    return FontOf(std::move(existing));
  }
  return AddFaceRecord(face, std::make_unique<TrueTypeFaceWriter>(face));
}

std::unique_ptr<SystemFace> PDFFonts::SelectFace(const FaceWanted& wanted) const {
  auto face = fontFiles_->SelectFace(wanted.name, wanted.isBold, wanted.isItalic);
  if (face) return face;
  face = systemFonts_->SelectFace(wanted.name, wanted.isBold, wanted.isItalic);
  if (face) return face;
  // A system without fonts: any of the document's own is better than none.
  std::vector<Text> names = fontFiles_->FaceNames();
  if (names.empty()) return nullptr;
  SortStrings(names, -1, 0);
  return fontFiles_->SelectFace(names.front(), wanted.isBold, wanted.isItalic);
}

// The face gets its name only here: a host's warnings may have added others while it was loaded.
// Its first font is made before it is listed, so that it is not when memory runs out.
std::shared_ptr<PDFFont> PDFFonts::AddFaceRecord(const std::shared_ptr<PDFFontInfo>& face,
                                                 std::unique_ptr<FaceWriter> writer) {
  face->m_PDFName = NextResourceName();
  std::shared_ptr<PDFFont> font = FontOf(face);
  if (writers_.size() == writers_.capacity()) writers_.reserve(2 * writers_.size() + 1);
  FaceList& faces = face->m_FontType == fontType1 ? *type1_ : *trueType_;
  faces.Add(face, face->BaseFontName());
  writers_.push_back(std::move(writer));
  return font;
}

// "/F0" for the first face.
std::string PDFFonts::NextResourceName() const {
  return "/F" + std::to_string(type1_->Count() + trueType_->Count());
}

std::shared_ptr<PDFFont> PDFFonts::FontOf(std::shared_ptr<const PDFFontInfo> face) {
  return std::make_shared<PDFFont>(Internal(), std::move(face), Shared<PDFFonts>());
}

void PDFFonts::NumberObjects(const Internal&, ObjectNumbers& numbers) {
  for (const auto& writer : writers_) writer->NumberObjects(numbers);
}

void PDFFonts::WriteObjects(const Internal&, SaveFile& file) {
  for (const auto& writer : writers_) writer->WriteObjects(file);
}

}  // namespace folivar
