#include "tests/platform/FakeFontconfig.h"

#include <fontconfig/fontconfig.h>

#include <algorithm>
#include <string_view>

using folivar::test::FakeFontconfig;

// Of all that a pattern can say, the places where a font lies or is looked for.
struct _FcPattern {
  FakeFontconfig::Font font;
};
struct _FcConfig {};

namespace {

FakeFontconfig& Fake() {
  static FakeFontconfig fake;
  return fake;
}

// Whether there is memory to answer with.
bool MayAnswer() {
  int& left = Fake().answersLeft;
  if (left == 0) return false;
  if (left > 0) --left;
  return true;
}

// Whether nothing is null.
template <class... Object>
bool AreThere(const Object*... objects) {
  const bool areThere = (... && (objects != nullptr));
  if (!areThere) ++Fake().nullsSeen;
  return areThere;
}

template <class T>
T* Made() {
  if (!MayAnswer()) return nullptr;
  ++Fake().objectsLeft;
  return new T{};
}

template <class T>
void Release(T* object) {
  if (!AreThere(object)) return;
  --Fake().objectsLeft;
  delete object;
}

FcFontSet* FontsNamed(std::string_view family) {
  auto* const set = Made<FcFontSet>();
  if (!set) return nullptr;
  const auto& fonts = Fake().fonts;
  set->fonts = new FcPattern*[fonts.size()];
  for (const FakeFontconfig::Font& font : fonts) {
    if (!family.empty() && font.family != family) continue;
    set->fonts[set->nfont++] = new FcPattern{font};
  }
  return set;
}

const char* StringOf(const FakeFontconfig::Font& font, std::string_view object) {
  if (object == FC_FILE) return font.fileName.c_str();
  if (object == FC_FAMILY) return font.family.c_str();
  return "TrueType";
}

}  // namespace

extern "C" {

FakeFontconfig& FolivarFakeFontconfig() { return Fake(); }

FcBool FcInitBringUptoDate() { return MayAnswer() ? FcTrue : FcFalse; }

FcConfig* FcConfigReference(FcConfig*) {
  static FcConfig config;
  if (!MayAnswer()) return nullptr;
  ++Fake().objectsLeft;
  return &config;
}

void FcConfigDestroy(FcConfig* config) {
  if (AreThere(config)) --Fake().objectsLeft;
}

FcFontSet* FcConfigGetFonts(FcConfig* config, FcSetName) {
  AreThere(config);
  return nullptr;
}

FcBool FcConfigSubstitute(FcConfig* config, FcPattern* pattern, FcMatchKind) {
  return AreThere(config, pattern) && MayAnswer() ? FcTrue : FcFalse;
}

void FcDefaultSubstitute(FcPattern* pattern) { AreThere(pattern); }

FcFontSet* FcFontList(FcConfig* config, FcPattern* pattern, FcObjectSet* objects) {
  return AreThere(config, pattern, objects) ? FontsNamed(pattern->font.family) : nullptr;
}

FcFontSet* FcFontSort(FcConfig* config, FcPattern* pattern, FcBool, FcCharSet**, FcResult*) {
  return AreThere(config, pattern) ? FontsNamed("") : nullptr;
}

void FcFontSetDestroy(FcFontSet* set) {
  if (!AreThere(set)) return;
  std::for_each(set->fonts, set->fonts + set->nfont, [](FcPattern* font) { delete font; });
  delete[] set->fonts;
  Release(set);
}

FcObjectSet* FcObjectSetBuild(const char*, ...) { return Made<FcObjectSet>(); }

void FcObjectSetDestroy(FcObjectSet* objects) { Release(objects); }

FcPattern* FcPatternCreate() { return Made<FcPattern>(); }

void FcPatternDestroy(FcPattern* pattern) { Release(pattern); }

FcBool FcPatternAddInteger(FcPattern* pattern, const char*, int) {
  return AreThere(pattern) && MayAnswer() ? FcTrue : FcFalse;
}

FcBool FcPatternAddString(FcPattern* pattern, const char*, const FcChar8* text) {
  if (!AreThere(pattern) || !MayAnswer()) return FcFalse;
  pattern->font.family = reinterpret_cast<const char*>(text);
  return FcTrue;
}

FcResult FcPatternGetInteger(const FcPattern* pattern, const char*, int, int* value) {
  if (!AreThere(pattern)) return FcResultNoMatch;
  *value = 0;
  return FcResultMatch;
}

FcResult FcPatternGetString(const FcPattern* pattern, const char* object, int place,
                            FcChar8** text) {
  if (!AreThere(pattern) || place > 0) return FcResultNoMatch;
  *text = const_cast<FcChar8*>(reinterpret_cast<const FcChar8*>(StringOf(pattern->font, object)));
  return FcResultMatch;
}

}  // extern "C"
