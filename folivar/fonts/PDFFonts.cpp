#include "folivar/fonts/PDFFonts.h"

#include <array>
#include <cstddef>
#include <string_view>
#include <utility>

#include "folivar/document/CaseFold.h"
#include "folivar/document/Error.h"
#include "folivar/document/InMember.h"
#include "folivar/document/Internal.h"
#include "folivar/fonts/PDFFont.h"
#include "folivar/fonts/PDFFontInfo.h"
#include "folivar/fonts/StandardFaces.h"

namespace folivar {
namespace {

constexpr std::string_view kFallbackFace = "Helvetica";

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

std::size_t SubstituteFor(const Text& name) {
  const auto counterpart = FindStandardFace(CounterpartName(name));
  return counterpart ? *counterpart : *FindStandardFace(kFallbackFace);
}

}  // namespace

PDFFonts::PDFFonts(const Internal&, std::shared_ptr<Warnings> warnings)
    : warnings_(std::move(warnings)) {}

PDFFonts::~PDFFonts() = default;

std::shared_ptr<PDFFont> PDFFonts::Add(TextView faceName, PDFFontType fontType, bool) {
  const Text name = InMember("PDFFonts.Add", [&] { return Text(faceName); });
  if (auto face = FindFaceRecord(name, fontType)) return FontOf(std::move(face));
  if (fontType != fontType1) {
    throw Error::ActionNotSupported("Font '" + name.Utf8() + "': TrueType fonts are not available");
  }
  return FontOf(AddStandardFace(name));
}

std::shared_ptr<PDFFont> PDFFonts::Item(const Value& indexOrKey, PDFFontType fontType) {
  return FontOf(FacesOf(fontType).Item(indexOrKey));
}

std::int32_t PDFFonts::count(PDFFontType fontType) const {
  return static_cast<std::int32_t>(FacesOf(fontType).Count());
}

bool PDFFonts::FontExists(TextView faceName, PDFFontType fontType) const {
  return FacesOf(fontType).KeyExists(faceName);
}

std::vector<Text> PDFFonts::AvailableFonts(PDFFontType fontType, bool) const {
  std::vector<Text> names;
  if (&FacesOf(fontType) != &type1_) return names;
  names.reserve(kStandardFaceCount);
  for (std::size_t face = 0; face < kStandardFaceCount; ++face) {
    names.emplace_back(StandardFaceName(face));
  }
  return names;
}

const PDFFonts::FaceList& PDFFonts::FacesOf(PDFFontType fontType) const {
  switch (fontType) {
    case fontType1:
      return type1_;
    case fontTrueType:
      return trueType_;
  }
  throw Error::InvalidArgument("FontType " + std::to_string(fontType) +
                               " is neither fontType1 nor fontTrueType");
}

std::shared_ptr<PDFFontInfo> PDFFonts::FindFaceRecord(TextView name, PDFFontType fontType) const {
  const FaceList& faces = FacesOf(fontType);
  return faces.KeyExists(name) ? faces.Item(name) : nullptr;
}

std::shared_ptr<PDFFontInfo> PDFFonts::AddStandardFace(const Text& faceName) {
  auto standardFace = FindStandardFace(faceName);
  if (!standardFace) {
    standardFace = SubstituteFor(faceName);
    const std::string substitute(StandardFaceName(*standardFace));
    warnings_->Show(Text("WARNING: Font '" + faceName.Utf8() + "' could not be found.  Using '" +
                         substitute + "' instead."));
    if (auto face = FindFaceRecord(substitute, fontType1)) return face;
  }
  auto face = std::make_shared<PDFFontInfo>();
  face->m_PDFName = NextResourceName();
  face->LoadStandardMetrics(*standardFace);
  AddFaceRecord(face);
  return face;
}

void PDFFonts::AddFaceRecord(std::shared_ptr<PDFFontInfo> face) {
  all_.reserve(all_.size() + 1);
  FaceList& faces = face->m_FontType == fontType1 ? type1_ : trueType_;
  faces.Add(face, face->BaseFontName(), {}, {});
  all_.push_back(std::move(face));
}

// "/F0" for the first face.
std::string PDFFonts::NextResourceName() const {
  return "/F" + std::to_string(type1_.Count() + trueType_.Count());
}

std::shared_ptr<PDFFont> PDFFonts::FontOf(std::shared_ptr<PDFFontInfo> face) {
  return std::make_shared<PDFFont>(Internal(), std::move(face), Shared<PDFFonts>());
}

void PDFFonts::NumberObjects(ObjectNumbers& numbers) {
  for (const auto& face : all_) face->NumberObjects(numbers);
}

void PDFFonts::WriteObjects(SaveFile& file) {
  for (const auto& face : all_) face->WriteObjects(file);
}

}  // namespace folivar
