#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <utility>

#include "folivar.h"

namespace folivar::test {

// An object that the library has given, let go of at the end.
template <class T>
class Held {
 public:
  explicit Held(T* object = nullptr) : object_(object) {}
  ~Held() { folivar_release(object_); }
  Held(Held&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  Held& operator=(Held&& other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }

  operator T*() const { return object_; }
  folivar_object* Any() const { return folivar_any(object_); }

 private:
  T* object_;
};

inline Held<folivar_PDFDocument> NewDocument(const folivar_callback* warnings = nullptr) {
  folivar_PDFDocument* document = nullptr;
  EXPECT_EQ(folivar_PDFDocument_new(warnings, &document), 0) << folivar_last_error()->text;
  return Held<folivar_PDFDocument>(document);
}

inline Held<folivar_PDFPages> PagesOf(folivar_PDFDocument* document) {
  folivar_PDFPages* pages = nullptr;
  EXPECT_EQ(folivar_PDFDocument_Pages(document, &pages), 0);
  return Held<folivar_PDFPages>(pages);
}

inline Held<folivar_PDFPage> AddPage(folivar_PDFDocument* document, const char* key = "") {
  folivar_PDFPage* page = nullptr;
  EXPECT_EQ(
      folivar_PDFPages_Add(PagesOf(document), key, folivar_missing(), folivar_missing(), &page), 0)
      << folivar_last_error()->text;
  return Held<folivar_PDFPage>(page);
}

inline Held<folivar_PDFTextBox> AddTextBox(folivar_PDFPage* page) {
  folivar_PDFTextBoxes* boxes = nullptr;
  folivar_PDFTextBox* box = nullptr;
  EXPECT_EQ(folivar_PDFPage_TextBoxes(page, &boxes), 0);
  const Held<folivar_PDFTextBoxes> held(boxes);
  EXPECT_EQ(folivar_PDFTextBoxes_Add(boxes, "", folivar_missing(), folivar_missing(), &box), 0);
  return Held<folivar_PDFTextBox>(box);
}

// The text of a result, which it clears.
inline std::string TextOf(folivar_value& value) {
  EXPECT_EQ(value.kind, FOLIVAR_TEXT);
  std::string text(value.as.text, value.with.length);
  EXPECT_EQ(value.as.text[value.with.length], '\0');
  folivar_clear(&value);
  return text;
}

inline std::string KeyOf(folivar_PDFPage* page) {
  folivar_value key = folivar_missing();
  EXPECT_EQ(folivar_PDFPage_Key(page, &key), 0);
  return TextOf(key);
}

inline std::string LastText() { return folivar_last_error()->text; }

}  // namespace folivar::test
