#pragma once

// What the clients share. Each defines Test(), which runs in an apartment of its own with the
// component at hand, and is a failure if one of its CHECKs was.

#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
//
#include <ocidl.h>
#include <ole2.h>
#include <olectl.h>
#include <wrl/client.h>

#include <initializer_list>
#include <string>
#include <vector>

#undef DrawText

#include "folivar_h.h"

using Microsoft::WRL::ComPtr;

void Test();

void Check(bool holds, const char* condition, const char* file, int line);
#define CHECK(...) Check((__VA_ARGS__), #__VA_ARGS__, __FILE__, __LINE__)
#define CHECK_OK(call) CHECK((call) == S_OK)

// A failure with an error number of the component.
constexpr HRESULT Number(int number) {
  return MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, number);
}

class Bstr {
 public:
  Bstr() = default;
  Bstr(const wchar_t* text) : held_(SysAllocString(text)) {}
  ~Bstr() { SysFreeString(held_); }
  Bstr(const Bstr&) = delete;
  Bstr& operator=(const Bstr&) = delete;

  operator BSTR() const { return held_; }
  BSTR* operator&() { return &held_; }
  bool operator==(const wchar_t* text) const {
    return std::wstring(held_, SysStringLen(held_)) == text;
  }

 private:
  BSTR held_ = nullptr;
};

class Variant {
 public:
  Variant() { VariantInit(&held_); }
  Variant(int number) : Variant() {
    held_.vt = VT_I4;
    held_.lVal = number;
  }
  Variant(double number) : Variant() {
    held_.vt = VT_R8;
    held_.dblVal = number;
  }
  Variant(bool flag) : Variant() {
    held_.vt = VT_BOOL;
    held_.boolVal = flag ? VARIANT_TRUE : VARIANT_FALSE;
  }
  Variant(const wchar_t* text) : Variant() {
    held_.vt = VT_BSTR;
    held_.bstrVal = SysAllocString(text);
  }
  Variant(IDispatch* object) : Variant() {
    held_.vt = VT_DISPATCH;
    held_.pdispVal = object;
    if (object != nullptr) object->AddRef();
  }
  template <class T>
  Variant(const ComPtr<T>& object) : Variant(static_cast<IDispatch*>(object.Get())) {}
  Variant(const Variant& other) : Variant() {
    VariantCopy(&held_, const_cast<VARIANT*>(&other.held_));
  }
  Variant& operator=(const Variant&) = delete;
  ~Variant() { VariantClear(&held_); }

  // An argument that is left out.
  static Variant Missing();
  // A reference to a number, or to anything else of this type.
  static Variant To(float& number) { return To(VT_R4, &number); }
  static Variant To(VARTYPE type, void* variable);
  // A reference to a variable.
  static Variant To(Variant& variable);

  operator VARIANT() const { return held_; }
  VARIANT* operator&() { return &held_; }
  const VARIANT* operator->() const { return &held_; }

 private:
  VARIANT held_;
};

ComPtr<_PDFDocument> NewDocument();
ComPtr<_PDFPages> PagesOf(const ComPtr<_PDFDocument>& document);
// A page with this key.
ComPtr<_PDFPage> AddPage(const ComPtr<_PDFDocument>& document, const wchar_t* key = L"");
ComPtr<_PDFFont> AddFont(const ComPtr<_PDFDocument>& document, const wchar_t* face);

template <class A, class B>
bool AreSame(const ComPtr<A>& a, const ComPtr<B>& b) {
  ComPtr<IUnknown> first;
  ComPtr<IUnknown> second;
  return a && b && SUCCEEDED(a.As(&first)) && SUCCEEDED(b.As(&second)) &&
         first.Get() == second.Get();
}

// Late binding, as scripts call. Arguments are in their order.
struct LateCall {
  IDispatch* object;
  const wchar_t* member;
  WORD kinds;

  HRESULT operator()(std::vector<Variant> arguments, VARIANT* result = nullptr,
                     EXCEPINFO* exception = nullptr) const;
};
