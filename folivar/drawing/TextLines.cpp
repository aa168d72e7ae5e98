#include "folivar/drawing/TextLines.h"

#include <algorithm>

namespace folivar {
namespace {

bool IsLineEnd(char byte) { return byte == '\n' || byte == '\r'; }

std::size_t LengthOfLine(std::string_view bytes) {
  return static_cast<std::size_t>(std::find_if(bytes.begin(), bytes.end(), IsLineEnd) -
                                  bytes.begin());
}

}  // namespace

TextLines::TextLines(std::string_view bytes, bool mayHaveLineEnds)
    : bytes_(bytes), firstLength_(bytes.size()) {
  if (!mayHaveLineEnds) return;
  firstLength_ = LengthOfLine(bytes);
  count_ = 0;
  for (auto line = begin(); line != end(); ++line) ++count_;
}

TextLines::Iterator& TextLines::Iterator::operator++() {
  isEnd_ = length_ == rest_.size();
  rest_.remove_prefix(length_);
  if (!isEnd_) rest_.remove_prefix(rest_.starts_with("\r\n") ? 2 : 1);
  length_ = isEnd_ ? 0 : LengthOfLine(rest_);
  return *this;
}

}  // namespace folivar
