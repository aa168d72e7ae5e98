// The system's fonts on Linux: fontconfig finds the files, which are then read like any font file.

#include <dlfcn.h>
#include <fontconfig/fontconfig.h>

#include <algorithm>
#include <memory>
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

  friend bool operator==(const FontPlace&, const FontPlace&) = default;
  friend bool operator<(const FontPlace& a, const FontPlace& b) {
    return std::tie(a.fileName, a.index) < std::tie(b.fileName, b.index);
  }
};

// Questions to fontconfig about the fonts that were there when it was first asked.
class FontSearch {
 public:
  explicit FontSearch(const Fontconfig& fontconfig)
      : fontconfig_(fontconfig), config_(fontconfig.ConfigReference(nullptr)) {}
  ~FontSearch() {
    if (config_) fontconfig_.ConfigDestroy(config_);
  }
  FontSearch(const FontSearch&) = delete;
  FontSearch& operator=(const FontSearch&) = delete;

  // The TrueType fonts of a family, or all of them for null; in the order of their names, so that
  // the same files always give the same choice.
  std::vector<FontPlace> Fonts(const Text* family) const {
    const auto pattern = PatternFor(family);
    const auto objects = Own(fontconfig_.ObjectSetBuild(FC_FILE, FC_INDEX, FC_FONTFORMAT, nullptr),
                             fontconfig_.ObjectSetDestroy);
    std::vector<FontPlace> places =
        PlacesIn(fontconfig_.FontList(config_, pattern.get(), objects.get()));
    std::sort(places.begin(), places.end());
    places.erase(std::unique(places.begin(), places.end()), places.end());
    return places;
  }

  // All TrueType fonts, those that fontconfig takes for the likeliest substitutes first.
  std::vector<FontPlace> Substitutes(const Text& family, bool isBold, bool isItalic) const {
    const auto pattern = PatternFor(&family);
    fontconfig_.PatternAddInteger(pattern.get(), FC_WEIGHT,
                                  isBold ? FC_WEIGHT_BOLD : FC_WEIGHT_REGULAR);
    fontconfig_.PatternAddInteger(pattern.get(), FC_SLANT,
                                  isItalic ? FC_SLANT_ITALIC : FC_SLANT_ROMAN);
    fontconfig_.ConfigSubstitute(config_, pattern.get(), FcMatchPattern);
    fontconfig_.DefaultSubstitute(pattern.get());
    FcResult result = FcResultNoMatch;
    return PlacesIn(fontconfig_.FontSort(config_, pattern.get(), FcFalse, nullptr, &result));
  }

 private:
  template <class T>
  static std::unique_ptr<T, void (*)(T*)> Own(T* object, void (*release)(T*)) {
    return {object, release};
  }

  std::unique_ptr<FcPattern, void (*)(FcPattern*)> PatternFor(const Text* family) const {
    auto pattern = Own(fontconfig_.PatternCreate(), fontconfig_.PatternDestroy);
    if (family) {
      fontconfig_.PatternAddString(pattern.get(), FC_FAMILY,
                                   reinterpret_cast<const FcChar8*>(family->Utf8().c_str()));
    }
    return pattern;
  }

  std::vector<FontPlace> PlacesIn(FcFontSet* found) const {
    const auto fonts = Own(found, fontconfig_.FontSetDestroy);
    std::vector<FontPlace> places;
    for (int i = 0; fonts && i < fonts->nfont; ++i) {
      FcPattern* const font = fonts->fonts[i];
      if (StringOf(font, FC_FONTFORMAT) != "TrueType") continue;
      FontPlace place{std::string(StringOf(font, FC_FILE)), 0};
      fontconfig_.PatternGetInteger(font, FC_INDEX, 0, &place.index);
      place.index &= 0xFFFF;  // the higher bits number the instances of a variable font
      places.push_back(std::move(place));
    }
    return places;
  }

  std::string_view StringOf(FcPattern* font, const char* object) const {
    FcChar8* text = nullptr;
    if (fontconfig_.PatternGetString(font, object, 0, &text) != FcResultMatch) return {};
    return reinterpret_cast<const char*>(text);
  }

  const Fontconfig& fontconfig_;
  FcConfig* config_;
};

class FontconfigFonts final : public SystemFonts {
 public:
  std::unique_ptr<SystemFace> SelectFace(const Text& name, bool isBold, bool isItalic) override {
    const Fontconfig* fontconfig = Fontconfig::Loaded();
    if (!fontconfig) return nullptr;
    const FontSearch search(*fontconfig);
    std::vector<FontFileFace> faces = FacesOfFamily(search, name);
    if (faces.empty()) {
      faces = FacesOfFamily(search, SubstituteFor(search, name, isBold, isItalic));
    }
    return faces.empty()
               ? nullptr
               : OpenFace(*std::min_element(faces.begin(), faces.end(), IsNearer{isBold, isItalic}),
                          isBold);
  }

  std::vector<Text> FaceNames() override {
    std::vector<Text> names;
    const Fontconfig* fontconfig = Fontconfig::Loaded();
    if (!fontconfig) return names;
    for (const FontFileFace& face : FacesAt(FontSearch(*fontconfig).Fonts(nullptr))) {
      names.push_back(face.family);
    }
    return names;
  }

 private:
  // Fontconfig knows a face under several names; the one that counts is the font's own for its
  // family of at most four styles.
  static std::vector<FontFileFace> FacesOfFamily(const FontSearch& search, const Text& name) {
    std::vector<FontFileFace> faces = FacesAt(search.Fonts(&name));
    std::erase_if(faces, [&](const FontFileFace& face) {
      return CompareIgnoringCase(face.family, name) != 0;
    });
    return faces;
  }

  static Text SubstituteFor(const FontSearch& search, const Text& name, bool isBold,
                            bool isItalic) {
    for (const FontPlace& place : search.Substitutes(name, isBold, isItalic)) {
      const std::vector<FontFileFace> faces = FacesAt({place});
      if (!faces.empty()) return faces.front().family;
    }
    return Text();
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
        if (std::cmp_equal(face.index, place.index)) faces.push_back(face);
      }
    }
    return faces;
  }

  // A font that cannot be read, or is damaged, counts as not installed.
  static std::vector<FontFileFace> ReadableFaces(const std::string& fileName) {
    try {
      return FacesInFile(Text(fileName));
    } catch (const Error&) {
      return {};
    }
  }
};

}  // namespace

std::shared_ptr<SystemFonts> SystemFonts::OfThisSystem() {
  return std::make_shared<FontconfigFonts>();
}

}  // namespace folivar
