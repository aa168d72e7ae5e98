#include "com/Variants.h"

#include <any>
#include <cmath>
#include <cstdint>
#include <memory>
#include <new>
#include <string>
#include <utility>

#include "folivar/base/Error.h"
#include "folivar/base/InMember.h"

namespace folivar::com {
namespace {

constexpr std::int32_t kObjectRequired = 424;

using TagVariant = std::shared_ptr<const Variant>;

// The system's headers do not say that copying leaves the source alone.
using CopyFunction = decltype(&VariantCopy);
bool Copy(CopyFunction copy, VARIANT* target, const VARIANT& source) {
  const HRESULT result = copy(target, const_cast<VARIANT*>(&source));
  if (result == E_OUTOFMEMORY) throw std::bad_alloc();
  return SUCCEEDED(result);
}

bool IsMissing(const VARIANT& value) {
  return value.vt == VT_ERROR && value.scode == DISP_E_PARAMNOTFOUND;
}

// Neither number, text nor flag, which the model refuses.
Value Unfit() { return Value::Host({}); }

// Missing and Null as they are; of anything else what `convert` makes of a copy of it.
template <class Convert>
Value ValueFrom(const VARIANT& argument, const Convert& convert) {
  Variant held;
  if (!held.CopyFrom(argument)) return Unfit();
  if (IsMissing(*held)) return {};
  if (held->vt == VT_NULL) return Value::Null();
  return convert(held);
}

Value AsNumber(Variant& held) { return held.ChangeTo(VT_R8) ? Value(held->dblVal) : Unfit(); }

Value AsFlag(Variant& held) {
  return held.ChangeTo(VT_BOOL) ? Value(held->boolVal != VARIANT_FALSE) : Unfit();
}

Value AsText(Variant& held) {
  return held.ChangeTo(VT_BSTR) ? Value(ViewOf(held->bstrVal)) : Unfit();
}

}  // namespace

Variant::Variant(const VARIANT& source) : Variant() {
  if (!CopyFrom(source)) throw Error::TypeMismatch("a value cannot be copied");
}

bool Variant::CopyFrom(const VARIANT& source) { return Copy(&VariantCopyInd, &held_, source); }

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
  return ValueFrom(
      index, [](Variant& held) { return held->vt == VT_BSTR ? AsText(held) : AsNumber(held); });
}

Value NumberFrom(const VARIANT& number) { return ValueFrom(number, AsNumber); }

std::optional<float> SingleFrom(const char* member, const VARIANT& number) {
  return InMember(member, [&]() -> std::optional<float> {
    const Value value = NumberFrom(number);
    if (value.IsMissing()) return std::nullopt;
    const auto single = static_cast<float>(DoubleFrom(value));
    if (!std::isfinite(single)) throw Error::Overflow("a number does not fit into a single");
    return single;
  });
}

Value FlagFrom(const VARIANT& flag) { return ValueFrom(flag, AsFlag); }

std::optional<Text> TextFrom(const char* member, const VARIANT& text) {
  return InMember(member, [&]() -> std::optional<Text> {
    const Value value = ValueFrom(text, AsText);
    if (value.IsMissing()) return std::nullopt;
    if (value.IsNull()) throw Error::InvalidNull("null stands where a text is wanted");
    const auto* given = value.As<Text>();
    if (given == nullptr) throw Error::TypeMismatch("a text is wanted");
    return *given;
  });
}

VARIANT VariantFrom(std::optional<bool> flag) {
  VARIANT made;
  VariantInit(&made);
  made.vt = flag ? VT_BOOL : VT_NULL;
  if (flag) made.boolVal = *flag ? VARIANT_TRUE : VARIANT_FALSE;
  return made;
}

VARIANT VariantFrom(std::optional<std::int32_t> number) {
  VARIANT made;
  VariantInit(&made);
  made.vt = number ? VT_I4 : VT_NULL;
  if (number) made.lVal = *number;
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
    throw Error(kObjectRequired, "a tag that is set by reference must be an object");
  }
  return TagFrom(tag);
}

void CopyTag(const Value& tag, VARIANT* result) {
  if (const auto* host = tag.As<std::any>()) {
    const VARIANT& held = ***std::any_cast<TagVariant>(host);
    if (!Copy(&VariantCopy, result, held)) throw Error::TypeMismatch("a tag cannot be copied");
  }
}

}  // namespace folivar::com
