#include "folivar/navigation/EscapeTitle.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <utility>

namespace folivar {
namespace {

// What PDFDocEncoding, in which readers take titles, has at other bytes than Windows code page
// 1252, in which the file is written; appendix D of the PDF reference. Sorted by character.
constexpr auto kEscapes = std::to_array<std::pair<char16_t, std::u16string_view>>({
    {u'\n', u"\\n"},     // line feed
    {u'\r', u"\\r"},     // carriage return
    {u'(', u"\\("},      // strings begin with it
    {u')', u"\\)"},      // and end
    {u'\\', u"\\\\"},    // escapes do
    {0x00A0, u" "},      // its byte is the euro sign
    {0x0131, u"\\232"},  // dotless i
    {0x0141, u"\\225"},  // L with stroke
    {0x0142, u"\\233"},  // l with stroke
    {0x0152, u"\\226"},  // OE
    {0x0153, u"\\234"},  // oe
    {0x0160, u"\\227"},  // S with caron
    {0x0161, u"\\235"},  // s with caron
    {0x0178, u"\\230"},  // Y with diaeresis
    {0x017D, u"\\231"},  // Z with caron
    {0x017E, u"\\236"},  // z with caron
    {0x0192, u"\\206"},  // florin
    {0x02C6, u"\\032"},  // circumflex
    {0x02C7, u"\\031"},  // caron
    {0x02D8, u"\\030"},  // breve
    {0x02D9, u"\\033"},  // dot above
    {0x02DA, u"\\036"},  // ring above
    {0x02DB, u"\\035"},  // ogonek
    {0x02DC, u"\\037"},  // small tilde
    {0x02DD, u"\\034"},  // double acute
    {0x2013, u"\\205"},  // en dash
    {0x2014, u"\\204"},  // em dash
    {0x2018, u"\\217"},  // left single quote
    {0x2019, u"\\220"},  // right single quote
    {0x201A, u"\\221"},  // low single quote
    {0x201C, u"\\215"},  // left double quote
    {0x201D, u"\\216"},  // right double quote
    {0x201E, u"\\214"},  // low double quote
    {0x2020, u"\\201"},  // dagger
    {0x2021, u"\\202"},  // double dagger
    {0x2022, u"\\200"},  // bullet
    {0x2026, u"\\203"},  // ellipsis
    {0x2030, u"\\213"},  // per mille
    {0x2039, u"\\210"},  // left angle quote
    {0x203A, u"\\211"},  // right angle quote
    {0x2044, u"\\207"},  // fraction slash
    {0x20AC, u"\\240"},  // euro
    {0x2122, u"\\222"},  // trade mark
    {0x2212, u"\\212"},  // minus
    {0xFB01, u"\\223"},  // fi
    {0xFB02, u"\\224"},  // fl
});

// Null for a character without a row.
const std::u16string_view* EscapeOf(char16_t unit) {
  const auto* row =
      std::lower_bound(kEscapes.begin(), kEscapes.end(), unit,
                       [](const auto& escape, char16_t wanted) { return escape.first < wanted; });
  return row != kEscapes.end() && row->first == unit ? &row->second : nullptr;
}

// Whether PDFDocEncoding has the character at the byte that code page 1252 has it at.
bool IsPlain(char16_t unit) {
  return unit == u'\t' || (unit >= u' ' && unit <= u'~') ||
         (unit > 0x00A0 && unit <= 0x00FF && unit != 0x00AD);
}

// Whether readers would take the title for PDFDocEncoding, and find every character there.
bool IsInPdfDocEncoding(std::u16string_view text) {
  // Byte order marks, of UTF-16 and of UTF-8.
  if (text.starts_with(u"\u00FE\u00FF") || text.starts_with(u"\u00EF\u00BB\u00BF")) return false;
  return std::all_of(text.begin(), text.end(),
                     [](char16_t unit) { return IsPlain(unit) || EscapeOf(unit) != nullptr; });
}

void AppendByte(std::u16string& escaped, unsigned byte) {
  constexpr std::u16string_view kDigits = u"01234567";
  escaped += {u'\\', kDigits[byte >> 6], kDigits[byte >> 3 & 7], kDigits[byte & 7]};
}

// "\376\377\004\026" for the Cyrillic letter U+0416: UTF-16 with its mark, byte by byte.
std::u16string EscapedUtf16(std::u16string_view text) {
  std::u16string escaped = u"\\376\\377";
  for (const char16_t unit : text) {
    AppendByte(escaped, unit >> 8);
    AppendByte(escaped, unit & 0xFF);
  }
  return escaped;
}

}  // namespace

Text EscapeTitle(TextView text) {
  const Text plain(text);
  const std::u16string_view units = plain.Utf16();
  if (!IsInPdfDocEncoding(units)) return Text::Of(EscapedUtf16(units));

  std::u16string escaped;
  escaped.reserve(units.size());
  for (const char16_t unit : units) {
    if (const std::u16string_view* escape = EscapeOf(unit)) {
      escaped += *escape;
    } else {
      escaped += unit;
    }
  }
  return Text::Of(std::move(escaped));
}

}  // namespace folivar
