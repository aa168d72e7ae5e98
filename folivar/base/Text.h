#pragma once

#include <compare>
#include <concepts>
#include <cstddef>
#include <iosfwd>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include "folivar/base/Api.h"

namespace folivar {

class Internal;

template <class T, class Target>
concept ConvertsTo = std::is_convertible_v<const T&, Target>;

// std::filesystem::path, whose header few programs need.
template <class T>
concept NativePath = requires(const T& path) {
  { path.native() } -> std::same_as<const std::basic_string<typename T::value_type>&>;
  path.lexically_normal();
};

// A text argument: UTF-8 or UTF-16, borrowed for the length of the call. Anything that is a string
// of char, char8_t or char16_t converts to it. A null pointer is the empty text.
//
// A std::filesystem::path converts too, in the form in which its system has it.
//
// UTF-8 is checked where the text is used: what is not UTF-8 raises 5 and names the byte position.
// UTF-16 is taken as it is, lone surrogates included.
class FOLIVAR_API TextView {
 public:
  TextView() = default;
  TextView(const char* utf8) : TextView(utf8 ? std::string_view(utf8) : std::string_view()) {}
  TextView(const char16_t* utf16)
      : TextView(utf16 ? std::u16string_view(utf16) : std::u16string_view()) {}
  TextView(const char8_t* utf8)
      : TextView(utf8 ? std::u8string_view(utf8) : std::u8string_view()) {}

  template <ConvertsTo<std::string_view> String>
  TextView(const String& utf8) : TextView(std::string_view(utf8)) {}

  template <ConvertsTo<std::u8string_view> String>
  TextView(const String& utf8) : TextView(std::u8string_view(utf8)) {}

  template <ConvertsTo<std::u16string_view> String>
  TextView(const String& utf16) : TextView(std::u16string_view(utf16)) {}

  // Windows keeps UTF-16 as wchar_t.
  template <NativePath Path>
  TextView(const Path& path)
      : data_(path.native().data()),
        sizeAndForm_(2 * path.native().size() + (sizeof(typename Path::value_type) > 1 ? 1 : 0)) {}

  TextView(std::string_view utf8) : data_(utf8.data()), sizeAndForm_(2 * utf8.size()) {}
  TextView(std::u8string_view utf8) : data_(utf8.data()), sizeAndForm_(2 * utf8.size()) {}
  TextView(std::u16string_view utf16) : data_(utf16.data()), sizeAndForm_(2 * utf16.size() + 1) {}

  bool IsEmpty() const { return Size() == 0; }
  bool IsUtf16() const { return (sizeAndForm_ & 1) != 0; }

  // The text in the form it came in; the other form is empty.
  std::string_view Utf8() const {
    return IsUtf16() ? std::string_view()
                     : std::string_view(static_cast<const char*>(data_), Size());
  }
  std::u16string_view Utf16() const {
    return IsUtf16() ? std::u16string_view(static_cast<const char16_t*>(data_), Size())
                     : std::u16string_view();
  }

 private:
  std::size_t Size() const { return sizeAndForm_ / 2; }

  const void* data_ = nullptr;
  // Twice the units, plus 1 for UTF-16: a view of two words travels in registers.
  std::size_t sizeAndForm_ = 0;
};

// A text that the model keeps: UTF-16, as on the automation interface. Positions and lengths that
// hosts see count its units.
class FOLIVAR_API Text {
 public:
  Text() = default;
  // Raises 5 for text that is not UTF-8.
  explicit Text(TextView text);
  // Of UTF-16 units that need not be copied.
  static Text Of(std::u16string units) {
    Text text;
    text.units_ = std::move(units);
    return text;
  }

  bool IsEmpty() const { return units_.empty(); }
  const std::u16string& Utf16() const { return units_; }
  // A lone surrogate, which UTF-8 cannot say, becomes U+FFFD.
  std::string Utf8() const;

  operator TextView() const { return TextView(std::u16string_view(units_)); }

  // Unit by unit, telling letter cases apart.
  friend bool operator==(const Text&, const Text&) = default;
  friend bool operator==(const Text& a, TextView b) { return a == Text(b); }

  // Writes it in UTF-8. A template, because streams would make the automation component half as
  // large again.
  template <class Traits>
  friend std::basic_ostream<char, Traits>& operator<<(std::basic_ostream<char, Traits>& stream,
                                                      const Text& text) {
    return stream << text.Utf8();
  }

  // For the library

  // To be changed in place.
  std::u16string& Units(const Internal&) { return units_; }

 private:
  std::u16string units_;
};

}  // namespace folivar
