#include "Handle.h"

#include <memory>
#include <new>

#include "folivar/base/Error.h"

namespace facade {
namespace {

folivar::Text DescriptionOfError() {
  ComPtr<IErrorInfo> error;
  BSTR text = nullptr;
  if (GetErrorInfo(0, &error) == S_OK) error->GetDescription(&text);
  return Taken<folivar::Text>::From(text);
}

}  // namespace

void RaiseIfFailed(HRESULT result) {
  if (SUCCEEDED(result)) return;
  const bool isNumber = HRESULT_FACILITY(result) == FACILITY_CONTROL;
  throw folivar::Error(isNumber ? HRESULT_CODE(result) : result, DescriptionOfError().Utf8());
}

Bstr::Bstr(const folivar::Text& text)
    : held_(SysAllocStringLen(reinterpret_cast<const wchar_t*>(text.Utf16().data()),
                              static_cast<UINT>(text.Utf16().size()))) {
  if (held_ == nullptr) throw std::bad_alloc();
}

Variant::Variant(const folivar::Value& value) {
  VariantInit(&held_);
  if (value.IsMissing()) {
    held_.vt = VT_ERROR;
    held_.scode = DISP_E_PARAMNOTFOUND;
  } else if (const auto* flag = value.As<bool>()) {
    held_.vt = VT_BOOL;
    held_.boolVal = *flag ? VARIANT_TRUE : VARIANT_FALSE;
  } else if (const auto* text = value.As<folivar::Text>()) {
    const std::u16string& units = text->Utf16();
    held_.vt = VT_BSTR;
    held_.bstrVal = SysAllocStringLen(reinterpret_cast<const wchar_t*>(units.data()),
                                      static_cast<UINT>(units.size()));
  } else if (const auto* real = value.As<double>()) {
    held_.vt = VT_R8;
    held_.dblVal = *real;
  } else {
    held_.vt = VT_I4;
    held_.lVal = folivar::Int32From(value);
  }
}

folivar::Text Taken<folivar::Text>::From(BSTR text) {
  const std::unique_ptr<OLECHAR, decltype(&SysFreeString)> freed(text, &SysFreeString);
  return folivar::Text::Of(
      std::u16string(reinterpret_cast<const char16_t*>(text), SysStringLen(text)));
}

std::vector<folivar::Text> Taken<std::vector<folivar::Text>>::From(SAFEARRAY* texts) {
  const std::unique_ptr<SAFEARRAY, decltype(&SafeArrayDestroy)> freed(texts, &SafeArrayDestroy);
  std::vector<folivar::Text> taken;
  LONG last = 0;
  RaiseIfFailed(SafeArrayGetUBound(texts, 1, &last));
  LONG i = 0;
  for (RaiseIfFailed(SafeArrayGetLBound(texts, 1, &i)); i <= last; ++i) {
    BSTR text = nullptr;
    RaiseIfFailed(SafeArrayGetElement(texts, &i, &text));
    taken.push_back(Taken<folivar::Text>::From(text));
  }
  return taken;
}

}  // namespace facade
