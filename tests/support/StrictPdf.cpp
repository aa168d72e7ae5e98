#include "tests/support/StrictPdf.h"

#include <stdexcept>
#include <utility>

namespace folivar::test {
namespace {

[[noreturn]] void Fail(std::size_t position, const std::string& what) {
  throw std::runtime_error("byte " + std::to_string(position) + ": " + what);
}

std::string Quoted(std::string_view bytes) {
  std::string quoted = "'";
  for (const char byte : bytes) {
    if (byte == '\n') {
      quoted += "\\n";
    } else if (byte == '\r') {
      quoted += "\\r";
    } else {
      quoted += byte;
    }
  }
  return quoted + "'";
}

std::string Padded(std::size_t number) {
  const std::string digits = std::to_string(number);
  return std::string(10 - digits.size(), '0') + digits;
}

bool IsDigits(std::string_view word) {
  return !word.empty() && word.find_first_not_of("0123456789") == std::string_view::npos;
}

// Object numbers and lengths have at most ten digits.
std::size_t NumberFrom(std::string_view digits) {
  return digits.size() <= 10 ? std::stoul(std::string(digits)) : std::string_view::npos;
}

// Of words that are neither brackets, strings nor names.
bool IsKnownWord(std::string_view word) {
  if (word == "true" || word == "false" || word == "null" || word == "R") return true;
  if (word[0] == '-') word.remove_prefix(1);
  const std::size_t point = word.find('.');
  if (point == std::string_view::npos) return IsDigits(word);
  return IsDigits(word.substr(0, point)) && IsDigits(word.substr(point + 1));
}

bool IsHexDigit(char byte) {
  return std::string_view("0123456789ABCDEF").find(byte) != std::string_view::npos;
}
bool IsBlank(char byte) { return byte == ' ' || byte == '\n'; }
bool IsDelimiter(char byte) {
  return std::string_view("()<>[]{}/%").find(byte) != std::string_view::npos;
}

// Walks over the bytes; every step that does not find what it expects fails.
class Cursor {
 public:
  explicit Cursor(std::string_view bytes) : bytes_(bytes) {}

  std::size_t Position() const { return position_; }
  bool IsAtEnd() const { return position_ == bytes_.size(); }
  bool Sees(std::string_view text) const { return bytes_.substr(position_).starts_with(text); }

  void Expect(std::string_view text, const std::string& where) {
    if (!Sees(text)) {
      Fail(position_, where + ": " + Quoted(text) + " expected, found " +
                          Quoted(bytes_.substr(position_, text.size())));
    }
    position_ += text.size();
  }

  void Skip(std::size_t count, const std::string& where) {
    if (count > bytes_.size() - position_) Fail(position_, where + " reaches beyond the file");
    position_ += count;
  }

  // The next word of PDF syntax: a bracket, a string (without what is in it), a name, a number or a
  // keyword. Blanks before it are skipped.
  std::string_view NextWord(const std::string& where) {
    while (!IsAtEnd() && IsBlank(bytes_[position_])) ++position_;
    if (IsAtEnd()) Fail(position_, where + " has no end");
    if (Sees("<<") || Sees(">>")) return Take(2);
    const char first = bytes_[position_];
    if (first == '[' || first == ']') return Take(1);
    if (first == '(') return SkipString(where);
    if (first == '<') return SkipHexString(where);
    if (first != '/' && IsDelimiter(first)) Fail(position_, where + ": stray " + first);
    std::size_t size = 1;
    while (position_ + size < bytes_.size() && !IsBlank(bytes_[position_ + size]) &&
           !IsDelimiter(bytes_[position_ + size])) {
      ++size;
    }
    return Take(size);
  }

 private:
  std::string_view Take(std::size_t size) {
    position_ += size;
    return bytes_.substr(position_ - size, size);
  }

  std::string_view SkipString(const std::string& where) {
    const std::size_t start = position_;
    int depth = 0;
    do {
      if (IsAtEnd()) Fail(start, where + ": string without end");
      const char byte = bytes_[position_++];
      if (byte == '\\' && !IsAtEnd()) ++position_;
      if (byte == '(') ++depth;
      if (byte == ')') --depth;
    } while (depth > 0);
    return "()";
  }

  std::string_view SkipHexString(const std::string& where) {
    const std::size_t start = ++position_;
    while (!IsAtEnd() && IsHexDigit(bytes_[position_])) ++position_;
    if (!Sees(">")) Fail(position_, where + ": hexadecimal string without end");
    if ((position_ - start) % 2 != 0) Fail(position_, where + ": half a byte in a string");
    ++position_;
    return "()";
  }

  std::string_view bytes_;
  std::size_t position_ = 0;
};

struct ReferenceFound {
  std::size_t position;
  std::size_t number;
};

// What the words of one object, up to "stream" or "endobj", tell.
struct ObjectWords {
  bool isStream = false;
  std::string_view length;  // behind "/Length", empty without
  bool endsWithLineFeed = false;
  std::vector<ReferenceFound> references;
};

ObjectWords ReadWords(Cursor& cursor, std::string_view bytes, const std::string& where) {
  ObjectWords words;
  std::vector<std::string_view> open;
  std::vector<std::string_view> last;  // the words so far, without strings
  for (;;) {
    const std::string_view word = cursor.NextWord(where);
    const std::size_t position = cursor.Position() - word.size();
    if (word == "stream" || word == "endobj") {
      if (!open.empty()) Fail(position, where + ": a bracket is not closed");
      if (bytes[position - 1] != '\n')
        Fail(position, where + ": no line feed before " + Quoted(word));
      cursor.Expect("\n", where + ", behind " + Quoted(word));
      words.isStream = word == "stream";
      return words;
    }
    if (word == "<<" || word == "[") {
      open.push_back(word);
    } else if (word == ">>" || word == "]") {
      if (open.empty() || open.back() != (word == ">>" ? "<<" : "[")) {
        Fail(position, where + ": bracket " + Quoted(word) + " closes nothing");
      }
      open.pop_back();
    } else if (word != "()" && word[0] != '/' && !IsKnownWord(word)) {
      Fail(position, where + ": unknown word " + Quoted(word));
    }
    if (word == "R") {
      if (last.size() < 2 || last.back() != "0" || !IsDigits(last[last.size() - 2])) {
        Fail(position, where + ": a reference is not 'N 0 R'");
      }
      words.references.push_back({position, NumberFrom(last[last.size() - 2])});
    }
    if (open.size() == 1 && !last.empty() && last.back() == "/Length") words.length = word;
    if (open.size() == 1 && (word == "/Length1" || word == "/Image")) words.endsWithLineFeed = true;
    last.push_back(word);
  }
}

}  // namespace

StrictPdf::StrictPdf(std::string bytes) : bytes_(std::move(bytes)) {
  Cursor cursor(bytes_);
  cursor.Expect("%PDF-1.3\n%\xE2\xE3\xCF\xD3\n", "header");

  std::vector<ReferenceFound> references;
  while (!cursor.Sees("xref\n")) {
    const std::string name = "object " + std::to_string(objects_.size() + 1);
    Entry entry{};
    entry.position = cursor.Position();
    cursor.Expect(std::to_string(objects_.size() + 1) + " 0 obj\n", name);
    entry.text.start = cursor.Position();
    const ObjectWords words = ReadWords(cursor, bytes_, name);
    references.insert(references.end(), words.references.begin(), words.references.end());
    entry.isStream = words.isStream;
    if (words.isStream) {
      const std::size_t digits = words.length.size();
      if (!IsDigits(words.length) || (words.length[0] == '0' && digits != 1 && digits != 10)) {
        Fail(entry.position, name + ": no '/Length' in plain or in ten digits");
      }
      entry.data = {cursor.Position(), NumberFrom(words.length)};
      cursor.Skip(entry.data.size, name + ": the stream");
      cursor.Expect(words.endsWithLineFeed ? "\nendstream\n" : "endstream\n",
                    name + ": behind the stream's " + std::string(words.length) + " bytes");
      cursor.Expect("endobj\n", name);
    }
    entry.text.size = cursor.Position() - std::string_view("endobj\n").size() - entry.text.start;
    objects_.push_back(entry);
  }
  for (const ReferenceFound& reference : references) {
    if (reference.number < 1 || reference.number > Count()) {
      Fail(reference.position,
           "reference to object " + std::to_string(reference.number) + ", which does not exist");
    }
  }

  const std::size_t table = cursor.Position();
  const std::string size = std::to_string(Count() + 1);
  cursor.Expect("xref\n0 " + size + "\n", "cross-reference table");
  cursor.Expect("0000000000 65535 f \n", "entry 0");
  for (std::size_t i = 0; i < Count(); ++i) {
    cursor.Expect(Padded(objects_[i].position) + " 00000 n \n", "entry " + std::to_string(i + 1));
  }
  cursor.Expect("trailer\n<< /Size " + size + "\n/Root 1 0 R\n>>\nstartxref\n" +
                    std::to_string(table) + "\n%%EOF\n",
                "trailer");
  if (!cursor.IsAtEnd()) Fail(cursor.Position(), "bytes behind the end");
}

const StrictPdf::Entry& StrictPdf::At(std::size_t number) const {
  if (number < 1 || number > Count()) {
    throw std::runtime_error("there is no object " + std::to_string(number));
  }
  return objects_[number - 1];
}

std::string_view StrictPdf::Object(std::size_t number) const {
  const Extent& text = At(number).text;
  return std::string_view(bytes_).substr(text.start, text.size);
}

bool StrictPdf::IsStream(std::size_t number) const { return At(number).isStream; }

std::string_view StrictPdf::Stream(std::size_t number) const {
  const Entry& entry = At(number);
  if (!entry.isStream) {
    throw std::runtime_error("object " + std::to_string(number) + " is no stream");
  }
  return std::string_view(bytes_).substr(entry.data.start, entry.data.size);
}

}  // namespace folivar::test
