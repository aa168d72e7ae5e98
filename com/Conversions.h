#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <tuple>
#include <type_traits>
#include <vector>

#include "com/ComPrefix.h"
#include "com/PeerBase.h"
#include "com/Peers.h"
#include "com/Variants.h"
#include "folivar/base/Error.h"

namespace folivar::com {

// Arguments without a type, by what the member wants of them.
struct Index {
  const VARIANT& given;
};
struct Number {
  const VARIANT& given;
};
struct Flag {
  const VARIANT& given;
};
struct Single {
  const char* member;
  const VARIANT& given;
};

// Flags that the core has a type for.
struct PaintFlags {
  VARIANT_BOOL stroke;
  VARIANT_BOOL fill;
};
struct RatioFlag {
  VARIANT_BOOL maintain;
};
struct EmbedFlag {
  VARIANT_BOOL embed;
};

// A value of an enumeration, whether listed or not.
struct Choice {
  template <class Enumeration>
  requires std::is_enum_v<Enumeration>
  operator Enumeration() const { return static_cast<Enumeration>(value); }
  std::int32_t value;
};

// An object of the class that the member wants; null for null.
struct Given {
  template <class Wanted>
  operator std::shared_ptr<Wanted>() const {
    auto wanted = std::dynamic_pointer_cast<Wanted>(object);
    if (object && !wanted) throw Error::TypeMismatch("an object is of the wrong class");
    return wanted;
  }
  Shared<Object> object;
};

// What the core takes for a client's argument.
inline TextView Take(BSTR text) { return ViewOf(text); }
inline float Take(float number) { return number; }
inline std::int32_t Take(LONG number) { return number; }
inline bool Take(VARIANT_BOOL flag) { return flag != VARIANT_FALSE; }
inline Value Take(const Index& index) { return IndexFrom(index.given); }
inline Value Take(const Number& number) { return NumberFrom(number.given); }
inline Value Take(const Flag& flag) { return FlagFrom(flag.given); }
inline std::optional<float> Take(const Single& number) {
  return SingleFrom(number.member, number.given);
}
inline Paint Take(const PaintFlags& flags) {
  if (!Take(flags.stroke)) return Take(flags.fill) ? Paint::kFill : Paint::kNone;
  return Take(flags.fill) ? Paint::kStrokeAndFill : Paint::kStroke;
}
inline AspectRatio Take(const RatioFlag& flag) {
  return Take(flag.maintain) ? AspectRatio::kKeep : AspectRatio::kStretch;
}
inline Embedding Take(const EmbedFlag& flag) {
  return Take(flag.embed) ? Embedding::kEmbed : Embedding::kNone;
}
inline Given Take(IUnknown* pointer) { return {ObjectBehind(pointer)}; }
template <class Enumeration>
requires std::is_enum_v<Enumeration> Choice Take(Enumeration value) {
  return {static_cast<std::int32_t>(value)};
}

// The numbers of an answer that a client gets one by one.
inline auto Spread(const ClipBox& box) {
  return std::tuple(box.left, box.bottom, box.right, box.top);
}
inline auto Spread(const Point& point) { return std::tuple(point.x, point.y); }
inline auto Spread(const TextExtents& extents) { return std::tuple(extents.width, extents.height); }

// Gives a client what the core answers; with an object goes the document that it belongs to.
inline void Give(float* result, float number, const Document&) { *result = number; }
inline void Give(LONG* result, std::int32_t number, const Document&) { *result = number; }
inline void Give(VARIANT_BOOL* result, bool flag, const Document&) {
  *result = flag ? VARIANT_TRUE : VARIANT_FALSE;
}
inline void Give(BSTR* result, const Text& text, const Document&) { *result = BstrFrom(text); }
template <class Answer>
void Give(VARIANT* result, const std::optional<Answer>& answer, const Document&) {
  *result = VariantFrom(answer);
}
inline void Give(SAFEARRAY** result, const std::vector<Text>& texts, const Document&) {
  *result = ArrayFrom(texts);
}
template <class Result, class Enumeration>
requires std::is_enum_v<Result> && std::is_enum_v<Enumeration>
void Give(Result* result, Enumeration value, const Document&) {
  *result = static_cast<Result>(value);
}
template <class Core>
void Give(typename PeerOf<Core>::Interface** result, const Shared<Core>& object,
          const Document& document) {
  *result = HandOut(object, document);
}
// A page or a template.
inline void Give(IDispatch** result, const Shared<Canvas>& owner, const Document& document) {
  if (auto page = std::dynamic_pointer_cast<PDFPage>(owner)) {
    *result = HandOut(page, document);
  } else {
    *result = HandOut(std::dynamic_pointer_cast<PDFTemplate>(owner), document);
  }
}

}  // namespace folivar::com
