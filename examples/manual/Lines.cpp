#include "Lines.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

namespace {

// How many bytes of the UTF-8 text fit into the width: whole characters, one at least.
std::size_t FittingLength(std::string_view text, const folivar::PDFFont& font, float width) {
  std::size_t fits = 0;
  for (std::size_t end = 1; end <= text.size(); ++end) {
    if (end < text.size() && (text[end] & 0xC0) == 0x80) continue;
    if (fits > 0 && font.TextWidth(text.substr(0, end)) > width) break;
    fits = end;
  }
  return fits;
}

class LineBreaker {
 public:
  LineBreaker(const BookStyle& style, float width) : style_(style), width_(width) {}

  std::vector<Line> Break(const std::vector<Span>& spans) {
    for (const Span& span : spans) TakeSpan(span);
    EndWord();
    if (!line_.empty()) EndLine();
    return std::move(lines_);
  }

 private:
  Piece PieceOf(const Span& span, std::string_view text) const {
    const TextStyle& style = style_.Of(span);
    return {std::string(text), &style, span.target, style.WidthOf(text)};
  }

  void TakeSpan(const Span& span) {
    for (std::string_view rest = span.text; !rest.empty();) {
      const std::size_t length = std::min(rest.find(' '), rest.size());
      if (length > 0) AddToWord(span, rest.substr(0, length));
      rest.remove_prefix(length);
      if (rest.empty()) return;
      EndWord();
      blank_ = &span;
      rest.remove_prefix(1);
    }
  }

  void AddToWord(const Span& span, std::string_view text) {
    word_.push_back(PieceOf(span, text));
    wordWidth_ += word_.back().width;
  }

  void EndWord() {
    if (word_.empty()) return;
    if (!line_.empty()) {
      Piece blank = PieceOf(*blank_, " ");
      if (lineWidth_ + blank.width + wordWidth_ > width_) {
        EndLine();
      } else {
        Append(std::move(blank));
      }
    }
    for (Piece& piece : word_) {
      if (wordWidth_ > width_) {
        AppendBroken(piece);
      } else {
        Append(std::move(piece));
      }
    }
    word_.clear();
    wordWidth_ = 0;
  }

  void AppendBroken(const Piece& piece) {
    const folivar::PDFFont& font = *piece.style->font;
    for (std::string_view rest = piece.text; !rest.empty();) {
      const std::string_view part = rest.substr(0, FittingLength(rest, font, width_ - lineWidth_));
      const float width = font.TextWidth(part);
      if (lineWidth_ + width > width_ && !line_.empty()) {
        EndLine();
        continue;
      }
      Append({std::string(part), piece.style, piece.target, width});
      rest.remove_prefix(part.size());
    }
  }

  void Append(Piece piece) {
    piece.left = lineWidth_;
    lineWidth_ += piece.width;
    if (!line_.empty() && line_.back().style == piece.style &&
        line_.back().target == piece.target) {
      line_.back().text += piece.text;
      line_.back().width += piece.width;
    } else {
      line_.push_back(std::move(piece));
    }
  }

  void EndLine() {
    lines_.push_back(std::exchange(line_, {}));
    lineWidth_ = 0;
  }

  const BookStyle& style_;
  float width_;
  std::vector<Line> lines_;
  Line line_;
  float lineWidth_ = 0;
  Line word_;  // since the last blank
  float wordWidth_ = 0;
  const Span* blank_ = nullptr;  // the span that the last blank is in
};

}  // namespace

std::vector<Line> BrokenIntoLines(const std::vector<Span>& spans, const BookStyle& style,
                                  float width) {
  return LineBreaker(style, width).Break(spans);
}

std::vector<std::string> Chopped(const std::string& text, const folivar::PDFFont& font,
                                 float width) {
  if (font.TextWidth(text) <= width) return {text};
  std::vector<std::string> lines;
  for (std::string_view rest = text; !rest.empty();) {
    const std::size_t length = FittingLength(rest, font, width);
    lines.emplace_back(rest.substr(0, length));
    rest.remove_prefix(length);
  }
  return lines;
}
