#include "ManualReader.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "common/InputError.h"
#include "common/InputText.h"

namespace {

constexpr std::string_view kFence = "```";
constexpr std::size_t kTab = 8;

// A link whose heading is not known yet.
struct Reference {
  std::size_t block;
  std::size_t span;
  std::string title;
  int line;
};

// Splits the text of one block, whose line ends are still there, into spans.
class SpanReader {
 public:
  SpanReader(const std::string& path, int line) : path_(path), line_(line) {}

  std::vector<Span> Read(std::string_view text) {
    for (std::size_t place = 0; place < text.size(); ++place) {
      const char c = text[place];
      if (c == '`') {
        place = TakeEnclosed(text, place, '`', Style::kCode);
      } else if (c == '[') {
        place = TakeEnclosed(text, place, ']', StyleHere());
        references_.push_back({0, spans_.size() - 1, spans_.back().text, line_});
      } else if (text.substr(place, 2) == "**") {
        Toggle(boldLine_);
        ++place;
      } else if (c == '*') {
        Toggle(italicLine_);
      } else {
        const bool isEscaped = c == '\\' && place + 1 < text.size();
        TakeCharacter(text[isEscaped ? ++place : place]);
      }
    }
    End();
    if (boldLine_ != 0) throw InputError(path_, boldLine_, "a '**' is never closed");
    if (italicLine_ != 0) throw InputError(path_, italicLine_, "a '*' is never closed");
    return std::move(spans_);
  }

  // Of the spans read, in order; their blocks are not known here.
  const std::vector<Reference>& References() const { return references_; }

 private:
  Style StyleHere() const {
    if (boldLine_ != 0) return italicLine_ != 0 ? Style::kBoldItalic : Style::kBold;
    return italicLine_ != 0 ? Style::kItalic : Style::kPlain;
  }

  // The line on which a style began is 0 while it is off.
  void Toggle(int& line) {
    End();
    line = line == 0 ? line_ : 0;
  }

  void TakeCharacter(char c) {
    if (c == '\n') ++line_;
    text_ += c == '\n' ? ' ' : c;
  }

  // Everything up to the closing mark becomes a span; returns the mark's place.
  std::size_t TakeEnclosed(std::string_view text, std::size_t open, char close, Style style) {
    End();
    const int line = line_;
    const std::size_t end = text.find(close, open + 1);
    if (end == std::string_view::npos) {
      throw InputError(path_, line, std::string("a '") + text[open] + "' is never closed");
    }
    for (const char c : text.substr(open + 1, end - open - 1)) TakeCharacter(c);
    spans_.push_back({std::exchange(text_, {}), style, {}});
    return end;
  }

  void End() {
    if (!text_.empty()) spans_.push_back({std::exchange(text_, {}), StyleHere(), {}});
  }

  const std::string& path_;
  int line_;
  int boldLine_ = 0;
  int italicLine_ = 0;
  std::string text_;
  std::vector<Span> spans_;
  std::vector<Reference> references_;
};

// A line of code, with blanks for its tabs.
std::string WithoutTabs(std::string_view line) {
  std::string text;
  for (const char c : line) {
    if (c == '\t') {
      text.append(kTab - text.size() % kTab, ' ');
    } else {
      text += c;
    }
  }
  return text;
}

// 1 to 3 for a heading, 0 for any other line.
int LevelOf(std::string_view line) {
  const std::size_t level = std::min(line.find_first_not_of('#'), line.size());
  return level <= 3 && line.substr(level).starts_with(' ') ? static_cast<int>(level) : 0;
}

class ManualReader {
 public:
  explicit ManualReader(const std::string& path) : path_(path) {}

  Manual Read() {
    const std::string content = ReadInputFile(path_);
    for (std::string_view rest = content; !rest.empty();) {
      const std::size_t end = std::min(rest.find('\n'), rest.size());
      std::string_view line = rest.substr(0, end);
      rest.remove_prefix(std::min(end + 1, rest.size()));
      ++line_;
      if (line.ends_with('\r')) line.remove_suffix(1);
      if (!IsUtf8(line)) throw InputError(path_, line_, "the text is not UTF-8");
      TakeLine(line);
    }
    if (codeLine_ != 0) throw InputError(path_, codeLine_, "the code is never closed");
    CloseText();
    if (manual_.title.empty()) throw InputError(path_, "there is no title");
    if (manual_.headings.empty()) throw InputError(path_, "there is no chapter");
    ResolveReferences();
    return std::move(manual_);
  }

 private:
  void TakeLine(std::string_view line) {
    if (codeLine_ != 0) {
      TakeCodeLine(line);
    } else if (line.starts_with(kFence)) {
      BeginCode();
    } else if (Trimmed(line).empty()) {
      CloseText();
    } else if (const int level = LevelOf(line); level != 0) {
      TakeHeading(level, line);
    } else if (line.starts_with("- ")) {
      BeginText(BlockKind::kItem, line.substr(2));
    } else if (isTextOpen_) {
      text_ += '\n';
      text_ += Trimmed(line);
    } else {
      BeginText(BlockKind::kParagraph, line);
    }
  }

  void BeginCode() {
    CloseText();
    CheckIsInChapter("code");
    codeLine_ = line_;
    manual_.blocks.push_back({BlockKind::kCode});
  }

  void TakeCodeLine(std::string_view line) {
    if (Trimmed(line) == kFence) {
      codeLine_ = 0;
    } else {
      manual_.blocks.back().lines.push_back(WithoutTabs(line));
    }
  }

  void TakeHeading(int level, std::string_view line) {
    CloseText();
    const auto depth = static_cast<std::size_t>(level);
    if (level > 1 && counts_[depth - 2] == 0) {
      throw InputError(path_, line_,
                       level == 2 ? "a section stands outside of all chapters"
                                  : "a subsection stands outside of all sections");
    }
    ++counts_[depth - 1];
    std::fill(counts_.begin() + level, counts_.end(), 0);
    std::string number = std::to_string(counts_[0]);
    for (std::size_t i = 1; i < depth; ++i) number += "." + std::to_string(counts_[i]);
    const std::string title = SingleLine(line.substr(depth));
    if (title.empty()) throw InputError(path_, line_, "a heading has no title");
    manual_.blocks.push_back({BlockKind::kHeading, manual_.headings.size()});
    manual_.headings.push_back({level, number, title});
  }

  void BeginText(BlockKind kind, std::string_view line) {
    CloseText();
    if (kind == BlockKind::kItem) CheckIsInChapter("a list");
    isTextOpen_ = true;
    kind_ = kind;
    textLine_ = line_;
    text_ = Trimmed(line);
  }

  void CloseText() {
    if (!isTextOpen_) return;
    isTextOpen_ = false;
    if (manual_.headings.empty()) {
      const std::string line = SingleLine(text_);
      if (manual_.title.empty()) {
        manual_.title = line;
      } else {
        manual_.titleLines.push_back(line);
      }
      return;
    }
    SpanReader reader(path_, textLine_);
    const std::size_t block = manual_.blocks.size();
    manual_.blocks.push_back({kind_, 0, reader.Read(text_)});
    for (Reference reference : reader.References()) {
      reference.block = block;
      references_.push_back(std::move(reference));
    }
  }

  void CheckIsInChapter(const std::string& what) const {
    if (manual_.headings.empty()) {
      throw InputError(path_, line_, what + " stands before the first chapter");
    }
  }

  // Sets the headings that links lead to.
  void ResolveReferences() {
    std::unordered_map<std::string_view, std::vector<std::size_t>> called;
    for (std::size_t index = 0; index < manual_.headings.size(); ++index) {
      called[manual_.headings[index].title].push_back(index);
    }
    for (const Reference& reference : references_) {
      const std::vector<std::size_t>& targets = called[reference.title];
      if (targets.size() != 1) {
        throw InputError(
            path_, reference.line,
            (targets.empty() ? "no heading is called '" : "more than one heading is called '") +
                reference.title + "'");
      }
      manual_.blocks[reference.block].spans[reference.span].target = targets.front();
    }
  }

  const std::string& path_;
  int line_ = 0;
  int codeLine_ = 0;  // where the open code began; 0 outside
  bool isTextOpen_ = false;
  BlockKind kind_ = BlockKind::kParagraph;  // of the open text
  int textLine_ = 0;
  std::string text_;
  std::array<int, 3> counts_{};  // of chapters, of sections in this one, ...
  std::vector<Reference> references_;
  Manual manual_;
};

}  // namespace

Manual ReadManual(const std::string& path) { return ManualReader(path).Read(); }
