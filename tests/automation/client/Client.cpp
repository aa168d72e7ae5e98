#include "Client.h"

#include <algorithm>
#include <cstdio>

namespace {

int failures = 0;

}  // namespace

void Check(bool holds, const char* condition, const char* file, int line) {
  if (holds) return;
  std::printf("%s:%d: %s\n", file, line, condition);
  ++failures;
}

Variant Variant::Missing() {
  Variant missing;
  missing.held_.vt = VT_ERROR;
  missing.held_.scode = DISP_E_PARAMNOTFOUND;
  return missing;
}

Variant Variant::To(VARTYPE type, void* variable) {
  Variant reference;
  reference.held_.vt = static_cast<VARTYPE>(VT_BYREF | type);
  reference.held_.byref = variable;
  return reference;
}

Variant Variant::To(Variant& variable) {
  Variant reference;
  reference.held_.vt = VT_BYREF | VT_VARIANT;
  reference.held_.pvarVal = &variable.held_;
  return reference;
}

ComPtr<_PDFDocument> NewDocument() {
  ComPtr<_PDFDocument> document;
  CHECK_OK(CoCreateInstance(__uuidof(PDFDocument), nullptr, CLSCTX_INPROC_SERVER,
                            IID_PPV_ARGS(&document)));
  return document;
}

ComPtr<_PDFPages> PagesOf(const ComPtr<_PDFDocument>& document) {
  ComPtr<_PDFPages> pages;
  CHECK_OK(document->get_Pages(&pages));
  return pages;
}

ComPtr<_PDFPage> AddPage(const ComPtr<_PDFDocument>& document, const wchar_t* key) {
  ComPtr<_PDFPage> page;
  CHECK_OK(PagesOf(document)->Add(Bstr(key), Variant::Missing(), Variant::Missing(), &page));
  return page;
}

ComPtr<_PDFFont> AddFont(const ComPtr<_PDFDocument>& document, const wchar_t* face) {
  ComPtr<_PDFFonts> fonts;
  ComPtr<_PDFFont> font;
  CHECK_OK(document->get_Fonts(&fonts));
  CHECK_OK(fonts->Add(Bstr(face), fontType1, VARIANT_FALSE, &font));
  return font;
}

HRESULT LateCall::operator()(std::vector<Variant> arguments, VARIANT* result,
                             EXCEPINFO* exception) const {
  DISPID id = DISPID_UNKNOWN;
  auto* name = const_cast<wchar_t*>(member);
  const HRESULT unknown = object->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &id);
  if (FAILED(unknown)) return unknown;
  std::vector<VARIANT> reversed(arguments.rbegin(), arguments.rend());
  DISPID value = DISPID_PROPERTYPUT;
  DISPPARAMS given{reversed.data(), nullptr, static_cast<UINT>(reversed.size()), 0};
  if ((kinds & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0) {
    given.rgdispidNamedArgs = &value;
    given.cNamedArgs = 1;
  }
  return object->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, kinds, &given, result, exception,
                        nullptr);
}

int main() {
  CHECK_OK(CoInitialize(nullptr));
  Test();
  CoUninitialize();
  std::printf(failures == 0 ? "DONE\n" : "%d failed\n", failures);
  return failures == 0 ? 0 : 1;
}
