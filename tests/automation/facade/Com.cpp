#include "Com.h"

#include <new>

#include "folivar/base/Error.h"

namespace com {
namespace {

folivar::Text DescriptionOfError() {
  ComPtr<IErrorInfo> error;
  BSTR text = nullptr;
  if (GetErrorInfo(0, &error) == S_OK) error->GetDescription(&text);
  return TextFrom(text);
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

folivar::Text TextFrom(BSTR text) {
  auto copied = folivar::Text::Of(
      std::u16string(reinterpret_cast<const char16_t*>(text), SysStringLen(text)));
  SysFreeString(text);
  return copied;
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

}  // namespace com
