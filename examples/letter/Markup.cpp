#include "Markup.h"

#include <cstddef>
#include <sstream>
#include <string_view>
#include <utility>

#include "common/InputError.h"
#include "common/InputText.h"

namespace {

// The spans of one block, from its text without the marks at the beginnings of lines.
class SpanReader {
 public:
  SpanReader(const std::string& path, int line) : path_(path), line_(line) {}

  std::vector<Span> Read(std::string_view text) {
    for (std::size_t place = 0; place < text.size(); ++place) {
      const char c = text[place];
      if (c == '\\' && place + 1 < text.size()) {
        current_.text += text[++place];
      } else if (text.substr(place, 2) == "**") {
        End();
        current_.isBold = !current_.isBold;
        ++place;
      } else if (c == '*') {
        End();
        current_.isItalic = !current_.isItalic;
      } else if (c == '{') {
        place = AddColumn(text, place);
      } else {
        current_.text += c;
      }
    }
    End();
    if (current_.isBold) throw InputError(path_, line_, "a '**' is never closed");
    if (current_.isItalic) throw InputError(path_, line_, "a '*' is never closed");
    return std::move(spans_);
  }

 private:
  std::size_t AddColumn(std::string_view text, std::size_t start) {
    const std::size_t end = text.find('}', start);
    if (end == std::string_view::npos) throw InputError(path_, line_, "a '{' is never closed");
    End();
    Span column = current_;
    column.text = text.substr(start + 1, end - start - 1);
    column.isColumn = true;
    spans_.push_back(std::move(column));
    return end;
  }

  void End() {
    if (!current_.text.empty()) spans_.push_back(current_);
    current_.text.clear();
  }

  const std::string& path_;
  int line_;
  Span current_;
  std::vector<Span> spans_;
};

bool Takes(std::string_view& line, std::string_view mark) {
  if (!line.starts_with(mark)) return false;
  line.remove_prefix(mark.size());
  if (line.starts_with(' ')) line.remove_prefix(1);
  return true;
}

}  // namespace

std::vector<Block> ReadMarkup(const std::string& path) {
  std::istringstream file(ReadInputFile(path));
  std::vector<Block> blocks;
  std::string text;
  bool isOpen = false;
  const auto close = [&] {
    if (isOpen) blocks.back().spans = SpanReader(path, blocks.back().line).Read(text);
    text.clear();
    isOpen = false;
  };

  std::string content;
  for (int number = 1; std::getline(file, content); ++number) {
    if (content.ends_with('\r')) content.pop_back();
    std::string_view line = content;
    if (line.find_first_not_of(' ') == std::string_view::npos) {
      close();
      continue;
    }
    const bool isHeading = Takes(line, "#");
    const bool isCentred = !isHeading && Takes(line, ">");
    if (isHeading || (isOpen && isCentred != blocks.back().isCentred)) close();
    if (!isOpen) {
      blocks.push_back({number, isHeading, isCentred, {}});
    } else {
      text += isCentred ? '\n' : ' ';
    }
    text += line;
    isOpen = true;
    if (isHeading) close();
  }
  close();
  return blocks;
}
