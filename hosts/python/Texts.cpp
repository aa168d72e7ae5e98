#include "hosts/python/Texts.h"

#include <bit>
#include <new>
#include <utility>

namespace folivar::python {
namespace {

static_assert(sizeof(wchar_t) == 4);

// False, with nothing said of `bytes`, unless all are of ASCII.
bool ToAscii(const wchar_t* characters, std::size_t count, char* bytes) {
  wchar_t all = 0;
  for (std::size_t i = 0; i < count; ++i) {
    all |= characters[i];
    bytes[i] = static_cast<char>(characters[i]);
  }
  return all < 0x80;
}

// Returns how many units there are.
std::size_t ToUtf16(const wchar_t* characters, std::size_t count, std::uint16_t* units) {
  std::uint16_t* next = units;
  for (std::size_t i = 0; i < count; ++i) {
    const auto character = static_cast<char32_t>(characters[i]);
    if (character < 0x10000) {
      *next++ = static_cast<std::uint16_t>(character);
      continue;
    }
    const char32_t beyond = character - 0x10000;
    *next++ = static_cast<std::uint16_t>(0xD800 + (beyond >> 10));
    *next++ = static_cast<std::uint16_t>(0xDC00 + (beyond & 0x3FF));
  }
  return static_cast<std::size_t>(next - units);
}

}  // namespace

bool Texts::Convert(PyObject* text, folivar_value& value) {
  const Py_ssize_t length = PyUnicode_GetLength(text);
  if (length < 0) return false;
  const auto count = static_cast<std::size_t>(length);
  wchar_t shortText[kShort / 2];
  std::unique_ptr<wchar_t[]> longText;
  wchar_t* characters = shortText;
  if (count > kShort / 2) {
    longText.reset(new (std::nothrow) wchar_t[count]);
    characters = longText.get();
  }
  std::uint16_t* const units = Room(2 * count);
  if (characters == nullptr || units == nullptr) {
    PyErr_NoMemory();
    return false;
  }
  if (PyUnicode_AsWideChar(text, characters, length) < 0) return false;
  auto* const bytes = reinterpret_cast<char*>(units);
  if (ToAscii(characters, count, bytes)) {
    value.kind = FOLIVAR_TEXT;
    value.as.text = bytes;
    value.with.length = count;
  } else {
    value.kind = FOLIVAR_UTF16;
    value.as.utf16 = units;
    value.with.length = ToUtf16(characters, count, units);
  }
  return true;
}

std::uint16_t* Texts::Room(std::size_t count) {
  if (count <= kShort - used_) return short_ + std::exchange(used_, used_ + count);
  std::unique_ptr<Long> made(new (std::nothrow) Long);
  if (made == nullptr) return nullptr;
  made->units.reset(new (std::nothrow) std::uint16_t[count]);
  made->next = std::move(long_);
  long_ = std::move(made);
  return long_->units.get();
}

PyObject* Texts::FromUtf16(const std::uint16_t* text, std::size_t length) {
  int order = std::endian::native == std::endian::little ? -1 : 1;
  return PyUnicode_DecodeUTF16(reinterpret_cast<const char*>(text),
                               static_cast<Py_ssize_t>(2 * length), "surrogatepass", &order);
}

PyObject* Texts::FromUtf8(const char* text, std::size_t length) {
  return PyUnicode_DecodeUTF8(text, static_cast<Py_ssize_t>(length), "surrogatepass");
}

}  // namespace folivar::python
