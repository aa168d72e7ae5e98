#include "Script.h"

#include <windows.h>

#include <array>
#include <charconv>
#include <cstdlib>
#include <fstream>
#include <vector>

namespace {

constexpr const char* kPrelude =
    "Sub Expect(found, expected)\r\n"
    "  If found <> expected Then WScript.Echo \"found \" & found & \", not \" & expected\r\n"
    "End Sub\r\n";

class Recording {
 public:
  Recording() {
    const char* path = std::getenv("FOLIVAR_RECORD");
    if (path == nullptr) return;
    file_.open(path, std::ios::binary);
    file_ << kPrelude;
  }

  void Line(const std::string& line) { file_ << line << "\r\n"; }

 private:
  std::ofstream file_;
};

Recording& TheRecording() {
  static Recording recording;
  return recording;
}

std::vector<std::string> freeNames;
int names = 0;

}  // namespace

void Script::Line(const std::string& line) { TheRecording().Line(line); }

void Script::Expect(const std::string& expression, const std::string& value) {
  Line("Expect " + expression + ", " + value);
}

std::string Script::NewName() {
  if (freeNames.empty()) return "o" + std::to_string(++names);
  std::string name = freeNames.back();
  freeNames.pop_back();
  return name;
}

void Script::GiveBack(const std::string& name) {
  Line("Set " + name + " = Nothing");
  freeNames.push_back(name);
}

// "one ""two""" & Chr(10) & "three", in code page 1252, which has all that the documents show.
std::string Script::Literal(const folivar::Text& text) {
  std::string literal = "\"";
  for (const char16_t unit : text.Utf16()) {
    if (unit < 0x20) {
      literal += "\" & Chr(" + std::to_string(static_cast<unsigned>(unit)) + ") & \"";
    } else {
      const auto wide = static_cast<wchar_t>(unit);
      char narrow = 0;
      WideCharToMultiByte(1252, 0, &wide, 1, &narrow, 1, nullptr, nullptr);
      literal.append(unit == u'"' ? 2 : 1, narrow);
    }
  }
  return literal + '"';
}

std::string Script::Literal(float number) {
  std::array<char, 64> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number);
  return "CSng(" + std::string(digits.data(), end.ptr) + ")";
}

std::string Script::Literal(std::int32_t number) { return "CLng(" + std::to_string(number) + ")"; }

std::string Script::Literal(bool flag) { return flag ? "True" : "False"; }

std::string Script::Literal(const folivar::Value& value) {
  if (const auto* flag = value.As<bool>()) return Literal(*flag);
  if (const auto* text = value.As<folivar::Text>()) return Literal(*text);
  if (const auto* real = value.As<double>()) return Literal(static_cast<float>(*real));
  if (!value.IsMissing()) return Literal(folivar::Int32From(value));
  return "";
}
