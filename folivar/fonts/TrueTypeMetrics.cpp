#include "folivar/fonts/TrueTypeMetrics.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>

#include "folivar/base/CaseFold.h"
#include "folivar/document/Global.h"
#include "folivar/fonts/FontTableFields.h"

namespace folivar {
namespace {

// The name that the system delivers.
Text NameOf(SystemFace& face, const Text& wanted, Warnings& warnings) {
  Text name = face.Name();
  if (CompareIgnoringCase(name, wanted) != 0) {
    warnings.Show(Text("WARNING: Font '" + wanted.Utf8() + "' could not be found.  Using '" +
                       name.Utf8() + "' instead."));
  }
  return name;
}

// Only this licence forbids it; together with other bits it does not.
bool MayEmbed(const OS2Table& os2) {
  constexpr std::uint16_t kRestricted = 2;
  return os2.Licence() != kRestricted;
}

// Null for a font that forbids embedding or does not give its program.
std::shared_ptr<const std::string> ProgramToEmbed(SystemFace& face, const Text& name,
                                                  bool isEmbeddable, Warnings& warnings) {
  if (!isEmbeddable) {
    warnings.Show(Text("WARNING: Font " + name.Utf8() +
                       " is not licensed for embedding.  The font will not be embedded in the PDF "
                       "file."));
    return nullptr;
  }
  auto program = face.Program();
  return program && !program->empty() ? program : nullptr;
}

// Glyphs have no boxes here.
std::shared_ptr<const CharacterTable> CharactersOf(SystemFace& face) {
  std::array<std::int32_t, 256> widths = face.Widths();
  // Deliberate: line feed and form feed have no width, a carriage return keeps its own.
  widths['\n'] = 0;
  widths['\f'] = 0;
  auto characters = std::make_shared<CharacterTable>();
  for (std::size_t code = 0; code < widths.size(); ++code) {
    (*characters)[code].width = static_cast<float>(widths[code]);
  }
  return characters;
}

// In thousandths of the em, truncated toward zero.
float BoxSide(std::int16_t units, std::uint16_t unitsPerEm) {
  if (unitsPerEm == 0) return 0;
  const int thousandths = units * 1000 / unitsPerEm;
  return static_cast<float>(thousandths);
}

FontBox BoxOf(SystemFace& face) {
  const auto head = TableOf<HeadTable>(face);
  const std::uint16_t unitsPerEm = head.UnitsPerEm();
  return {BoxSide(head.XMin(), unitsPerEm), BoxSide(head.YMin(), unitsPerEm),
          BoxSide(head.XMax(), unitsPerEm), BoxSide(head.YMax(), unitsPerEm)};
}

// The codes that are written are bytes.
std::uint16_t CodeOf(std::uint16_t character) {
  constexpr std::uint16_t kLastCode = 255;
  return MinOf(character, kLastCode);
}

}  // namespace

std::shared_ptr<PDFFontInfo> LoadTrueTypeMetrics(const FaceWanted& wanted, SystemFace& face,
                                                 Warnings& warnings) {
  Text name = NameOf(face, wanted.name, warnings);
  const auto os2 = TableOf<OS2Table>(face);
  PDFFontInfo::Private own;
  if (wanted.embed) own.program = ProgramToEmbed(face, name, MayEmbed(os2), warnings);
  const SystemFace::TextMetrics text = face.Metrics();
  own.firstCharacter = CodeOf(text.firstCharacter);
  own.lastCharacter = CodeOf(text.lastCharacter);
  own.characters = CharactersOf(face);
  own.box = BoxOf(face);
  own.fileName = face.FileName();

  auto info = std::make_shared<PDFFontInfo>(std::move(own));
  // Deliberate: this and the thickness of the lines stay in the font's own units.
  info->m_CapHeight = TableOf<PCLTTable>(face).CapHeight();
  info->m_Ascender = static_cast<float>(text.ascent);
  info->m_Descender = -static_cast<float>(text.descent);
  info->m_FontType = fontTrueType;
  info->m_EmbedFont = info->Program() != nullptr;
  info->m_Embeddable = MayEmbed(os2);
  info->m_FontFace = std::move(name);
  info->m_StrikeoutPosition = info->m_Ascender / 3;
  info->m_StrikeoutSize = os2.StrikeoutSize();
  info->m_UnderlinePosition = info->m_Descender / 2;
  info->m_UnderlineSize = os2.StrikeoutSize();
  info->m_IsSymbolic = os2.IsSymbolic();
  info->m_IsItalic = wanted.isItalic;
  info->m_IsBold = wanted.isBold;
  return info;
}

bool IsEmbeddable(SystemFace& face) { return MayEmbed(TableOf<OS2Table>(face)); }

}  // namespace folivar
