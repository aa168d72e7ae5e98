#define PY_SSIZE_T_CLEAN

#include "hosts/python/Texts.h"

#include <bit>

namespace folivar::python {
namespace {

constexpr bool kIsLittleEndian = std::endian::native == std::endian::little;

}  // namespace

bool Texts::Convert(PyObject* text, folivar_value& value) {
  // Gives the bytes of the text itself, if it is ASCII. With any other text Python keeps its UTF-8
  // from then on: memory for as long as the text lives, but the text is encoded only once.
  // PyUnicode_AsUTF8AndSize does the same; the limited API has it from 3.10 on.
  const char* utf8 = nullptr;
  Py_ssize_t length = 0;
  if (PyArg_Parse(text, "s#", &utf8, &length) != 0) {
    value.kind = FOLIVAR_TEXT;
    value.as.text = utf8;
    value.with.length = static_cast<std::size_t>(length);
    return true;
  }
  // Lone surrogates have no UTF-8.
  if (PyErr_ExceptionMatches(PyExc_UnicodeEncodeError) == 0) return false;
  PyErr_Clear();
  return ConvertCopy(text, value);
}

bool Texts::ConvertCopy(PyObject* text, folivar_value& value) {
  const char* const encoding = kIsLittleEndian ? "utf-16-le" : "utf-16-be";
  const Owned copy(PyUnicode_AsEncodedString(text, encoding, "surrogatepass"));
  if (!copies_) copies_ = Owned(PyList_New(0));
  if (!copy || !copies_ || PyList_Append(copies_.Get(), copy.Get()) != 0) return false;
  value.kind = FOLIVAR_UTF16;
  value.as.utf16 = reinterpret_cast<const std::uint16_t*>(PyBytes_AsString(copy.Get()));
  value.with.length = static_cast<std::size_t>(PyBytes_Size(copy.Get())) / 2;
  return true;
}

PyObject* Texts::FromUtf16(const std::uint16_t* text, std::size_t length) {
  int order = kIsLittleEndian ? -1 : 1;
  return PyUnicode_DecodeUTF16(reinterpret_cast<const char*>(text),
                               static_cast<Py_ssize_t>(2 * length), "surrogatepass", &order);
}

PyObject* Texts::FromUtf8(const char* text, std::size_t length) {
  return PyUnicode_DecodeUTF8(text, static_cast<Py_ssize_t>(length), "surrogatepass");
}

}  // namespace folivar::python
