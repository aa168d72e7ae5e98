#pragma once

#include <concepts>
#include <cstdint>
#include <memory>
#include <optional>
#include <type_traits>
#include <vector>

#include "folivar/base/Text.h"
#include "folivar/base/Value.h"
#include "folivar/page/PDFPage.h"
#include "folivar/page/PDFTemplate.h"
#include "hosts/c/folivar_object.h"

namespace folivar::hosts {

// What a call gives the host, of what the core answers. Written once.
class Answer {
 public:
  // `source` is the object called. `result` may be null, and the answer is then dropped.
  Answer(const folivar_object& source, bool wantsUtf16, folivar_value* result)
      : source_(source), wantsUtf16_(wantsUtf16), result_(result) {}

  void Give(float number) { Set(folivar_number(number)); }
  void Give(std::int32_t number) { Set(folivar_integer(number)); }
  void Give(const Text& text) {
    if (result_ != nullptr) *result_ = ValueOf(text);
  }
  template <std::same_as<bool> Flag>
  void Give(Flag flag) {
    Set(folivar_flag(flag));
  }
  template <class Enumeration>
  requires std::is_enum_v<Enumeration>
  void Give(Enumeration value) { Give(static_cast<std::int32_t>(value)); }
  template <class Single>
  void Give(const std::optional<Single>& value) {
    if (value) return Give(*value);
    Set(folivar_null());
  }
  template <std::derived_from<Object> Core>
  void Give(const std::shared_ptr<Core>& object) {
    if (result_ != nullptr) *result_ = ValueOf(object);
  }
  // A page or a template.
  void Give(const std::shared_ptr<Canvas>& canvas);
  // Texts or objects.
  template <class Element>
  void Give(const std::vector<Element>& elements) {
    if (result_ == nullptr) return;
    Array array(elements.size());
    for (const Element& element : elements) array.Add(ValueOf(element));
    *result_ = array.Keep();
  }
  // Of a tag.
  void Give(const Value& value);

 private:
  // An array that clears what it holds unless it is kept.
  class Array {
   public:
    explicit Array(std::size_t size) { values_.reserve(size); }
    ~Array();
    Array(const Array&) = delete;
    Array& operator=(const Array&) = delete;
    void Add(const folivar_value& value) { values_.push_back(value); }
    folivar_value Keep();

   private:
    std::vector<folivar_value> values_;
  };

  void Set(const folivar_value& value) {
    if (result_ != nullptr) *result_ = value;
  }
  folivar_value ValueOf(const Text& text) const;
  template <std::derived_from<Object> Core>
  folivar_value ValueOf(const std::shared_ptr<Core>& object) const {
    return folivar_of(object ? folivar_object::HandOut(object, source_) : nullptr);
  }

  const folivar_object& source_;
  bool wantsUtf16_;
  folivar_value* result_;
};

}  // namespace folivar::hosts
