#include "com/Variants.h"

#include <any>
#include <cmath>
#include <cstdint>
#include <memory>
#include <new>
#include <string>
#include <utility>

#include "folivar/document/Error.h"
#include "folivar/document/InMember.h"

namespace folivar::com {
namespace {

constexpr std::int32_t kObjectRequired = 424;

using TagVariant = std::shared_ptr<const Variant>;

// The system's headers do not say that copying leaves the source alone.
using CopyFunction = decltype(&VariantCopy);
void Copy(CopyFunction copy, VARIANT* target, const VARIANT& source) {
  const HRESULT result = copy(target, const_cast<VARIANT*>(&source));
  if (result == E_OUTOFMEMORY) throw std::bad_alloc();
  if (FAILED(result)) throw Error::TypeMismatch("A value cannot be copied");
}

bool IsMissing(const VARIANT& value) {
  return value.vt == VT_ERROR && value.scode == DISP_E_PARAMNOTFOUND;
}

// Missing and Null as they are; nothing for all others.
std::optional<Value> AbsentFrom(const VARIANT& value) {
  if (IsMissing(value)) return Value();
  if (value.vt == VT_NULL) return Value::Null();
  return std::nullopt;
}

Value ConvertedNumber(Variant& number) {
  const bool isWhole = number->vt == VT_I8 || number->vt == VT_UI8;
  if (!number.ChangeTo(isWhole ? VT_I8 : VT_R8)) return Value::Host({});
  return isWhole ? Value(std::int64_t{number->llVal}) : Value(number->dblVal);
}

}  // namespace

Variant::Variant(const VARIANT& source) {
  VariantInit(&held_);
  Copy(&VariantCopyInd, &held_, source);
}

std::wstring WideFrom(const Text& text) { return {text.Utf16().begin(), text.Utf16().end()}; }

// wchar_t and char16_t are the same units here.
TextView ViewOf(BSTR text) {
  return std::u16string_view(reinterpret_cast<const char16_t*>(text), SysStringLen(text));
}

BSTR BstrFrom(const Text& text) {
  const std::u16string& units = text.Utf16();
  BSTR made = SysAllocStringLen(reinterpret_cast<const wchar_t*>(units.data()),
                                static_cast<UINT>(units.size()));
  if (made == nullptr) throw std::bad_alloc();
  return made;
}

Value IndexFrom(const VARIANT& index) {
  Variant held(index);
  if (held->vt == VT_BSTR) return Value(ViewOf(held->bstrVal));
  if (const auto absent = AbsentFrom(*held)) return *absent;
  return ConvertedNumber(held);
}

Value NumberFrom(const VARIANT& number) {
  Variant held(number);
  if (const auto absent = AbsentFrom(*held)) return *absent;
  return ConvertedNumber(held);
}

std::optional<float> SingleFrom(const char* member, const VARIANT& number) {
  return InMember(member, [&]() -> std::optional<float> {
    const Value value = NumberFrom(number);
    if (value.IsMissing()) return std::nullopt;
    const auto single = static_cast<float>(DoubleFrom(value));
    if (!std::isfinite(single)) throw Error::Overflow("A number does not fit into a single");
    return single;
  });
}

Value FlagFrom(const VARIANT& flag) {
  Variant held(flag);
  if (const auto absent = AbsentFrom(*held)) return *absent;
  if (!held.ChangeTo(VT_BOOL)) return Value::Host({});
  return Value(held->boolVal != VARIANT_FALSE);
}

std::optional<Text> TextFrom(const char* member, const VARIANT& text) {
  return InMember(member, [&]() -> std::optional<Text> {
    Variant held(text);
    const std::optional<Value> absent = AbsentFrom(*held);
    if (absent && absent->IsNull()) throw Error::InvalidNull("Null stands where a text is wanted");
    if (absent) return std::nullopt;
    if (!held.ChangeTo(VT_BSTR)) throw Error::TypeMismatch("A text is wanted");
    return Text(ViewOf(held->bstrVal));
  });
}

VARIANT VariantFrom(const Value& value) {
  VARIANT made;
  VariantInit(&made);
  if (const auto* flag = value.As<bool>()) {
    made.vt = VT_BOOL;
    made.boolVal = *flag ? VARIANT_TRUE : VARIANT_FALSE;
  } else if (value.IsNull()) {
    made.vt = VT_NULL;
  } else {
    made.vt = VT_I4;
    made.lVal = Int32From(value);
  }
  return made;
}

SAFEARRAY* ArrayFrom(const std::vector<Text>& texts) {
  SAFEARRAY* made = SafeArrayCreateVector(VT_BSTR, 0, static_cast<ULONG>(texts.size()));
  if (made == nullptr) throw std::bad_alloc();
  std::unique_ptr<SAFEARRAY, decltype(&SafeArrayDestroy)> kept(made, &SafeArrayDestroy);
  auto* element = static_cast<BSTR*>(made->pvData);
  for (const Text& text : texts) *element++ = BstrFrom(text);
  return kept.release();
}

Value TagFrom(const VARIANT& tag) {
  return Value::Host(TagVariant(std::make_shared<Variant>(tag)));
}

Value ObjectTagFrom(const VARIANT& tag) {
  const Variant held(tag);
  if (held->vt != VT_DISPATCH && held->vt != VT_UNKNOWN) {
    throw Error(kObjectRequired, "A tag that is set by reference must be an object");
  }
  return TagFrom(tag);
}

void CopyTag(const Value& tag, VARIANT* result) {
  if (const auto* host = tag.As<std::any>()) {
    Copy(&VariantCopy, result, ***std::any_cast<TagVariant>(host));
  }
}

}  // namespace folivar::com
