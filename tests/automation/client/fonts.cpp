// The names of the fonts, as an array of strings.

#include "Client.h"

namespace {

std::vector<std::wstring> TextsOf(SAFEARRAY* array) {
  VARTYPE type = VT_EMPTY;
  LONG lower = -1;
  LONG upper = -1;
  CHECK_OK(SafeArrayGetVartype(array, &type));
  CHECK(type == VT_BSTR);
  CHECK(SafeArrayGetDim(array) == 1);
  CHECK_OK(SafeArrayGetLBound(array, 1, &lower));
  CHECK_OK(SafeArrayGetUBound(array, 1, &upper));
  CHECK(lower == 0);
  std::vector<std::wstring> texts;
  for (LONG i = lower; i <= upper; ++i) {
    Bstr text;
    CHECK_OK(SafeArrayGetElement(array, &i, &text));
    texts.emplace_back(text);
  }
  return texts;
}

ComPtr<_PDFFonts> FontsOf(const ComPtr<_PDFDocument>& document) {
  ComPtr<_PDFFonts> fonts;
  CHECK_OK(document->get_Fonts(&fonts));
  return fonts;
}

void StandardFaces() {
  const auto fonts = FontsOf(NewDocument());
  SAFEARRAY* array = nullptr;
  CHECK_OK(fonts->AvailableFonts(fontType1, VARIANT_FALSE, &array));
  const std::vector<std::wstring> expected = {
      L"Courier",     L"Courier-Bold",   L"Courier-BoldOblique",   L"Courier-Oblique",
      L"Helvetica",   L"Helvetica-Bold", L"Helvetica-BoldOblique", L"Helvetica-Oblique",
      L"Symbol",      L"Times-Bold",     L"Times-BoldItalic",      L"Times-Italic",
      L"Times-Roman", L"ZapfDingbats"};
  CHECK(TextsOf(array) == expected);
  SafeArrayDestroy(array);

  // The same as a string resource.
  wchar_t names[512] = {};
  const int length = LoadStringW(GetModuleHandleW(L"Folivar.dll"), 101, names, 512);
  std::wstring joined;
  for (const std::wstring& name : expected) joined += (joined.empty() ? L"" : L";") + name;
  CHECK(std::wstring(names, static_cast<std::size_t>(length)) == joined);
  for (const std::wstring& name : expected) {
    CHECK(FindResourceW(GetModuleHandleW(L"Folivar.dll"), name.c_str(), L"CUSTOM") != nullptr);
  }
}

void LateBound() {
  const auto fonts = FontsOf(NewDocument());
  Variant names;
  CHECK_OK(
      (LateCall{fonts.Get(), L"AvailableFonts", DISPATCH_METHOD})({Variant(fontTrueType)}, &names));
  CHECK(names->vt == (VT_ARRAY | VT_BSTR));
  const auto texts = TextsOf(names->parray);
  CHECK(texts.size() > 10);
  for (std::size_t i = 1; i < texts.size(); ++i) {
    CHECK(lstrcmpiW(texts[i - 1].c_str(), texts[i].c_str()) <= 0);
  }
}

}  // namespace

void Test() {
  StandardFaces();
  LateBound();
}
