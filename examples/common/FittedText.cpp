#include "common/FittedText.h"

#include <utility>

using folivar::PDFFont;
using folivar::Text;
using folivar::TextView;

namespace {

// How long the line is that fits and ends at a blank or with the text; the first word at least.
std::size_t LineLength(const std::u16string& text, const PDFFont& font, float width) {
  std::size_t length = text.find(u' ');
  while (length < text.size()) {
    const std::size_t next = text.find(u' ', length + 1);
    if (font.TextWidth(text.substr(0, next)) > width) return length;
    length = next;
  }
  return text.size();
}

}  // namespace

std::u16string Shortened(TextView text, const PDFFont& font, float width) {
  if (font.TextWidth(text) <= width) return Text(text).Utf16();

  const std::u16string whole = Text(text).Utf16();
  const auto shortenedTo = [&whole](std::size_t length) {
    std::u16string start = whole.substr(0, length);
    while (start.ends_with(u' ')) start.pop_back();
    return start + u"...";
  };
  std::size_t fits = 0;
  std::size_t tooLong = whole.size();
  while (tooLong - fits > 1) {
    const std::size_t middle = fits + (tooLong - fits) / 2;
    (font.TextWidth(shortenedTo(middle)) <= width ? fits : tooLong) = middle;
  }
  return shortenedTo(fits);
}

std::vector<std::u16string> Wrapped(TextView text, const PDFFont& font, float width,
                                    std::size_t lineCount) {
  std::vector<std::u16string> lines;
  std::u16string rest = Text(text).Utf16();
  while (!rest.empty() && lines.size() + 1 < lineCount) {
    const std::size_t length = LineLength(rest, font, width);
    lines.push_back(Shortened(rest.substr(0, length), font, width));
    rest.erase(0, length + 1);
  }
  if (!rest.empty()) lines.push_back(Shortened(rest, font, width));
  return lines;
}
