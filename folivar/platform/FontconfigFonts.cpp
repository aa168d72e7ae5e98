// The system's fonts on Linux: fontconfig finds the files, which are then read like any font file.

#include <dlfcn.h>
#include <fontconfig/fontconfig.h>

#include <algorithm>
#include <iterator>
#include <map>
#include <memory>
#include <mutex>
#include <new>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include "folivar/base/CaseFold.h"
#include "folivar/base/Error.h"
#include "folivar/fonts/FontFileFace.h"
#include "folivar/fonts/SystemFonts.h"

namespace folivar {
namespace {

// Fontconfig's functions, without the prefix "Fc". The library is loaded when the first TrueType
// face is asked for: programs that use none start without it, and a system that lacks it has no
// fonts but the document's own.
class Fontconfig {
 public:
  // Null on a system without fontconfig.
  static const Fontconfig* Loaded() {
    static const Fontconfig fontconfig;
    return fontconfig.isComplete_ ? &fontconfig : nullptr;
  }

 private:
  template <class Function>
  Function Find(const char* name) {
    auto function = reinterpret_cast<Function>(library_ ? dlsym(library_, name) : nullptr);
    if (!function) isComplete_ = false;
    return function;
  }

  void* library_ = dlopen("libfontconfig.so.1", RTLD_NOW | RTLD_LOCAL);  // for good
  bool isComplete_ = true;

 public:
  decltype(&::FcConfigDestroy) ConfigDestroy =
      Find<decltype(&::FcConfigDestroy)>("FcConfigDestroy");
  decltype(&::FcConfigGetFonts) ConfigGetFonts =
      Find<decltype(&::FcConfigGetFonts)>("FcConfigGetFonts");
  decltype(&::FcConfigReference) ConfigReference =
      Find<decltype(&::FcConfigReference)>("FcConfigReference");
  decltype(&::FcConfigSubstitute) ConfigSubstitute =
      Find<decltype(&::FcConfigSubstitute)>("FcConfigSubstitute");
  decltype(&::FcDefaultSubstitute) DefaultSubstitute =
      Find<decltype(&::FcDefaultSubstitute)>("FcDefaultSubstitute");
  decltype(&::FcFontList) FontList = Find<decltype(&::FcFontList)>("FcFontList");
  decltype(&::FcFontSetDestroy) FontSetDestroy =
      Find<decltype(&::FcFontSetDestroy)>("FcFontSetDestroy");
  decltype(&::FcFontSort) FontSort = Find<decltype(&::FcFontSort)>("FcFontSort");
  decltype(&::FcInitBringUptoDate) InitBringUptoDate =
      Find<decltype(&::FcInitBringUptoDate)>("FcInitBringUptoDate");
  decltype(&::FcObjectSetBuild) ObjectSetBuild =
      Find<decltype(&::FcObjectSetBuild)>("FcObjectSetBuild");
  decltype(&::FcObjectSetDestroy) ObjectSetDestroy =
      Find<decltype(&::FcObjectSetDestroy)>("FcObjectSetDestroy");
  decltype(&::FcPatternAddInteger) PatternAddInteger =
      Find<decltype(&::FcPatternAddInteger)>("FcPatternAddInteger");
  decltype(&::FcPatternAddString) PatternAddString =
      Find<decltype(&::FcPatternAddString)>("FcPatternAddString");
  decltype(&::FcPatternCreate) PatternCreate =
      Find<decltype(&::FcPatternCreate)>("FcPatternCreate");
  decltype(&::FcPatternDestroy) PatternDestroy =
      Find<decltype(&::FcPatternDestroy)>("FcPatternDestroy");
  decltype(&::FcPatternGetInteger) PatternGetInteger =
      Find<decltype(&::FcPatternGetInteger)>("FcPatternGetInteger");
  decltype(&::FcPatternGetString) PatternGetString =
      Find<decltype(&::FcPatternGetString)>("FcPatternGetString");
};

struct FontPlace {
  std::string fileName;
  int index = 0;
  std::vector<Text> families;  // all names of the family that fontconfig has

  bool IsSame(const FontPlace& other) const {
    return fileName == other.fileName && index == other.index;
  }
  friend bool operator<(const FontPlace& a, const FontPlace& b) {
    return std::tie(a.fileName, a.index) < std::tie(b.fileName, b.index);
  }
};

// What fontconfig gives nothing for when it has no memory left; handed back to it, a null pointer
// would end the process.
template <class Result>
Result Checked(Result result) {
  if (!result) throw std::bad_alloc();
  return result;
}

template <class T>
using Owned = std::unique_ptr<T, void (*)(T*)>;

// Questions to fontconfig about the fonts that are there when it begins.
class FontSearch {
 public:
  explicit FontSearch(const Fontconfig& fontconfig)
      : fontconfig_(fontconfig), config_(Configuration(fontconfig)) {}

  // Whether both are about the same fonts. A program may add some to those of a configuration.
  bool IsAboutSameFonts(const FontSearch& other) const {
    return config_ == other.config_ && fontCount_ == other.fontCount_;
  }

  // The TrueType fonts of a family, or all of them for null; in the order of their names, so that
  // the same files always give the same choice.
  std::vector<FontPlace> Fonts(const Text* family) const {
    const auto pattern = PatternFor(family);
    const Owned<FcObjectSet> objects(
        Checked(fontconfig_.ObjectSetBuild(FC_FILE, FC_INDEX, FC_FONTFORMAT, FC_FAMILY, nullptr)),
        fontconfig_.ObjectSetDestroy);
    std::vector<FontPlace> places =
        PlacesIn(fontconfig_.FontList(config_.get(), pattern.get(), objects.get()));
    std::sort(places.begin(), places.end());
    places.erase(std::unique(places.begin(), places.end(),
                             [](const FontPlace& a, const FontPlace& b) { return a.IsSame(b); }),
                 places.end());
    return places;
  }

  // All TrueType fonts, those that fontconfig takes for the likeliest substitutes first.
  std::vector<FontPlace> Substitutes(const Text& family, bool isBold, bool isItalic) const {
    const auto pattern = PatternFor(&family);
    Checked(fontconfig_.PatternAddInteger(pattern.get(), FC_WEIGHT,
                                          isBold ? FC_WEIGHT_BOLD : FC_WEIGHT_REGULAR));
    Checked(fontconfig_.PatternAddInteger(pattern.get(), FC_SLANT,
                                          isItalic ? FC_SLANT_ITALIC : FC_SLANT_ROMAN));
    Checked(fontconfig_.ConfigSubstitute(config_.get(), pattern.get(), FcMatchPattern));
    fontconfig_.DefaultSubstitute(pattern.get());
    FcResult result = FcResultNoMatch;
    return PlacesIn(fontconfig_.FontSort(config_.get(), pattern.get(), FcFalse, nullptr, &result));
  }

 private:
  // Fonts that were installed or removed count once fontconfig looks for them again, at most every
  // 30 seconds. Where it cannot, what it knows stays good.
  static Owned<FcConfig> Configuration(const Fontconfig& fontconfig) {
    fontconfig.InitBringUptoDate();
    return {Checked(fontconfig.ConfigReference(nullptr)), fontconfig.ConfigDestroy};
  }

  int CountFonts() const {
    int count = 0;
    for (const FcSetName name : {FcSetSystem, FcSetApplication}) {
      const FcFontSet* fonts = fontconfig_.ConfigGetFonts(config_.get(), name);
      if (fonts) count += fonts->nfont;
    }
    return count;
  }

  Owned<FcPattern> PatternFor(const Text* family) const {
    Owned<FcPattern> pattern(Checked(fontconfig_.PatternCreate()), fontconfig_.PatternDestroy);
    if (family) {
      Checked(fontconfig_.PatternAddString(
          pattern.get(), FC_FAMILY, reinterpret_cast<const FcChar8*>(family->Utf8().c_str())));
    }
    return pattern;
  }

  std::vector<FontPlace> PlacesIn(FcFontSet* found) const {
    const Owned<FcFontSet> fonts(Checked(found), fontconfig_.FontSetDestroy);
    std::vector<FontPlace> places;
    for (int i = 0; i < fonts->nfont; ++i) {
      FcPattern* const font = fonts->fonts[i];
      if (StringOf(font, FC_FONTFORMAT, 0) != "TrueType") continue;
      FontPlace place{std::string(StringOf(font, FC_FILE, 0)), 0, FamiliesOf(font)};
      fontconfig_.PatternGetInteger(font, FC_INDEX, 0, &place.index);
      place.index &= 0xFFFF;  // the higher bits number the instances of a variable font
      places.push_back(std::move(place));
    }
    return places;
  }

  std::vector<Text> FamiliesOf(FcPattern* font) const {
    std::vector<Text> families;
    for (int i = 0;; ++i) {
      const std::string_view family = StringOf(font, FC_FAMILY, i);
      if (family.empty()) return families;
      try {
        families.emplace_back(family);
      } catch (const Error&) {
        continue;  // it is not UTF-8: nobody can ask for it
      }
    }
  }

  // Empty for none.
  std::string_view StringOf(FcPattern* font, const char* object, int place) const {
    FcChar8* text = nullptr;
    if (fontconfig_.PatternGetString(font, object, place, &text) != FcResultMatch) return {};
    return reinterpret_cast<const char*>(text);
  }

  const Fontconfig& fontconfig_;
  Owned<FcConfig> config_;
  int fontCount_ = CountFonts();
};

// All TrueType fonts by the names of their families: a question to fontconfig takes the longer the
// more fonts there are, and after a list of all comes one for each.
class FontList {
 public:
  explicit FontList(FontSearch search)
      : search_(std::move(search)), places_(search_.Fonts(nullptr)) {
    for (const FontPlace& place : places_) {
      for (const Text& family : place.families) families_.emplace(FoldCase(family), &place);
    }
  }
  FontList(const FontList&) = delete;
  FontList& operator=(const FontList&) = delete;

  bool IsStillTrueFor(const FontSearch& search) const { return search_.IsAboutSameFonts(search); }

  const std::vector<FontPlace>& All() const { return places_; }

  std::vector<FontPlace> OfFamily(const Text& family) const {
    std::vector<FontPlace> places;
    const auto [first, last] = families_.equal_range(FoldCase(family));
    for (auto place = first; place != last; ++place) places.push_back(*place->second);
    return places;
  }

 private:
  FontSearch search_;
  std::vector<FontPlace> places_;
  std::multimap<std::u16string, const FontPlace*> families_;
};

class FontconfigFonts final : public SystemFonts {
 public:
  std::unique_ptr<SystemFace> SelectFace(const Text& name, bool isBold, bool isItalic) override {
    const Fontconfig* fontconfig = Fontconfig::Loaded();
    if (!fontconfig) return nullptr;
    const FontSearch search(*fontconfig);
    std::vector<FontFileFace> faces = FacesOfFamily(search, name);
    if (faces.empty()) faces = SubstitutesFor(search, name, isBold, isItalic);
    if (faces.empty()) return nullptr;
    return OpenFace(*std::min_element(faces.begin(), faces.end(), IsNearer{isBold, isItalic}),
                    isBold);
  }

  std::vector<Text> FaceNames() override {
    std::vector<Text> names;
    const Fontconfig* fontconfig = Fontconfig::Loaded();
    if (!fontconfig) return names;
    const auto list = std::make_shared<const FontList>(FontSearch(*fontconfig));
    for (const FontFileFace& face : FacesAt(list->All())) names.push_back(face.family);
    const std::lock_guard lock(mutex_);
    list_ = list;
    return names;
  }

 private:
  // Fontconfig knows a face under several names. The one that counts is the font's own for its
  // family of at most four styles; where that is none of a font's, any.
  std::vector<FontFileFace> FacesOfFamily(const FontSearch& search, const Text& name) {
    const std::vector<FontFileFace> faces = FacesAt(PlacesOfFamily(search, name));
    std::vector<FontFileFace> ofThisName;
    std::copy_if(
        faces.begin(), faces.end(), std::back_inserter(ofThisName),
        [&](const FontFileFace& face) { return CompareIgnoringCase(face.family, name) == 0; });
    return ofThisName.empty() ? faces : ofThisName;
  }

  std::vector<FontPlace> PlacesOfFamily(const FontSearch& search, const Text& name) {
    const std::shared_ptr<const FontList> list = ListFor(search);
    return list ? list->OfFamily(name) : search.Fonts(&name);
  }

  // Null when there is none that is still true.
  std::shared_ptr<const FontList> ListFor(const FontSearch& search) {
    const std::lock_guard lock(mutex_);
    if (list_ && !list_->IsStillTrueFor(search)) list_.reset();
    return list_;
  }

  // The first that can be read, with its family: some of the others may be nearer in style.
  std::vector<FontFileFace> SubstitutesFor(const FontSearch& search, const Text& name, bool isBold,
                                           bool isItalic) {
    for (const FontPlace& place : search.Substitutes(name, isBold, isItalic)) {
      std::vector<FontFileFace> faces = FacesAt({place});
      if (faces.empty()) continue;
      std::vector<FontFileFace> family = FacesOfFamily(search, faces.front().family);
      return family.empty() ? faces : family;
    }
    return {};
  }

  // The places of a collection's faces stand side by side.
  static std::vector<FontFileFace> FacesAt(const std::vector<FontPlace>& places) {
    std::vector<FontFileFace> faces;
    std::vector<FontFileFace> inFile;
    const std::string* fileName = nullptr;
    for (const FontPlace& place : places) {
      if (!fileName || place.fileName != *fileName) inFile = ReadableFaces(place.fileName);
      fileName = &place.fileName;
      for (const FontFileFace& face : inFile) {
        if (!std::cmp_equal(face.index, place.index)) continue;
        faces.push_back(face);
        faces.back().family = FamilyOf(face, place);
        if (faces.back().family.IsEmpty()) faces.pop_back();
      }
    }
    return faces;
  }

  // The font's own name, if fontconfig finds it by that: its configuration may call it another.
  static Text FamilyOf(const FontFileFace& face, const FontPlace& place) {
    const bool isKnown = std::any_of(
        place.families.begin(), place.families.end(),
        [&](const Text& family) { return CompareIgnoringCase(family, face.family) == 0; });
    return isKnown || place.families.empty() ? face.family : place.families.front();
  }

  // A font that cannot be read, or is damaged, counts as not installed.
  static std::vector<FontFileFace> ReadableFaces(const std::string& fileName) {
    try {
      return FacesInFile(Text(fileName));
    } catch (const Error&) {
      return {};
    }
  }

  std::mutex mutex_;
  std::shared_ptr<const FontList> list_;  // of the last time that all were listed
};

}  // namespace

std::shared_ptr<SystemFonts> SystemFonts::OfThisSystem() {
  return std::make_shared<FontconfigFonts>();
}

}  // namespace folivar
