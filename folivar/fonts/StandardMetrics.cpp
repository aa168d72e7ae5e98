#include "folivar/fonts/StandardMetrics.h"

#include <utility>

#include "folivar/fonts/StandardFaces.h"

namespace folivar {
namespace {

// They stay as long as the process, so they are shared without being owned.
std::shared_ptr<const CharacterTable> CharactersOf(const AfmMetrics& metrics) {
  return {std::shared_ptr<void>(), &metrics.characters};
}

}  // namespace

std::shared_ptr<PDFFontInfo> LoadStandardMetrics(std::size_t face) {
  const AfmMetrics& metrics = StandardFaceMetrics(face);
  PDFFontInfo::Private own;
  own.box = metrics.box;
  own.characters = CharactersOf(metrics);

  auto info = std::make_shared<PDFFontInfo>(std::move(own));
  info->m_CapHeight = metrics.capHeight;
  info->m_Ascender = metrics.ascender;
  info->m_Descender = metrics.descender;
  info->m_FontType = fontType1;
  info->m_FontFace = Text(StandardFaceName(face));
  info->m_StrikeoutPosition = info->m_Ascender / 3;
  info->m_StrikeoutSize = metrics.underlineThickness;
  info->m_UnderlinePosition = metrics.underlinePosition;
  info->m_UnderlineSize = metrics.underlineThickness;
  return info;
}

}  // namespace folivar
