// What a failure brings with it: number, source and text, early and late bound.

#include "Client.h"

namespace {

void CheckError(const wchar_t* text, const IID& source) {
  ComPtr<IErrorInfo> error;
  CHECK_OK(GetErrorInfo(0, &error));
  if (!error) return;
  Bstr description;
  Bstr name;
  GUID id;
  CHECK_OK(error->GetDescription(&description));
  CHECK(description == text);
  CHECK_OK(error->GetSource(&name));
  CHECK(name == L"Folivar");
  CHECK_OK(error->GetGUID(&id));
  CHECK(id == source);
}

void EarlyBound() {
  const auto document = NewDocument();
  const auto pages = PagesOf(document);
  ComPtr<_PDFPage> page;
  ComPtr<ISupportErrorInfo> support;
  CHECK_OK(pages.As(&support));
  CHECK(support->InterfaceSupportsErrorInfo(__uuidof(_PDFPages)) == S_OK);
  CHECK(support->InterfaceSupportsErrorInfo(__uuidof(_PDFPage)) == S_FALSE);
  CHECK(pages->get_Item(Variant(3), &page) == Number(9));
  CheckError(L"PDFPages.Item: position 3 is outside 1 to 0", __uuidof(_PDFPages));
  CHECK(pages->get_Item(Variant(L"x"), &page) == Number(5));
  CheckError(L"PDFPages.Item: there is no key 'x'", __uuidof(_PDFPages));
  CHECK(!page);
  CHECK(document->SavePDFFile(Bstr(L"none\\a.pdf")) == Number(76));
  CheckError(
      L"PDFDocument.SavePDFFile: file 'none\\a.pdf': cannot be written: No such file or directory",
      __uuidof(_PDFDocument));

  ComPtr<_PDFImages> images;
  ComPtr<_PDFImage> image;
  CHECK_OK(document->get_Images(&images));
  CHECK_OK(images->Add(nullptr, Variant::Missing(), Variant::Missing(), &image));
  CHECK(image->put_FileName(Bstr(L"picture.gif")) == static_cast<HRESULT>(0x800403E8));
  CheckError(L"Error: Image type unknown for picture.gif.", __uuidof(_PDFImage));
}

void LateBound() {
  const auto document = NewDocument();
  const auto pages = PagesOf(document);
  EXCEPINFO exception{};
  CHECK(LateCall{pages.Get(), L"Remove", DISPATCH_METHOD}({Variant(3)}, nullptr, &exception) ==
        DISP_E_EXCEPTION);
  CHECK(exception.scode == Number(9));
  CHECK(std::wstring(exception.bstrSource) == L"Folivar");
  CHECK(std::wstring(exception.bstrDescription) ==
        L"PDFPages.Remove: position 3 is outside 1 to 0");
  SysFreeString(exception.bstrSource);
  SysFreeString(exception.bstrDescription);
  SysFreeString(exception.bstrHelpFile);
}

// An object that only says that it is a font.
class FalseFont final : public IUnknown {
 public:
  virtual ~FalseFont() = default;
  STDMETHODIMP QueryInterface(REFIID iid, void** result) override {
    const bool isKnown = iid == IID_IUnknown || iid == IID_IDispatch || iid == __uuidof(_PDFFont);
    *result = isKnown ? this : nullptr;
    return isKnown ? S_OK : E_NOINTERFACE;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return 2; }
  STDMETHODIMP_(ULONG) Release() override { return 1; }
};

void ForeignObjects() {
  const auto page = AddPage(NewDocument());
  FalseFont font;
  CHECK(page->putref_Font(reinterpret_cast<_PDFFont*>(&font)) == Number(13));
  CHECK(page->putref_Font(reinterpret_cast<_PDFFont*>(page.Get())) == Number(13));
  CHECK(page->putref_Font(nullptr) == Number(91));
}

// Set takes objects alone.
void TagsByReference() {
  const auto document = NewDocument();
  CHECK(document->putref_Tag(Variant(5)) == Number(424));
  CHECK(document->putref_Tag(Variant(static_cast<IDispatch*>(nullptr))) == S_OK);
  CHECK((LateCall{document.Get(), L"Tag", DISPATCH_PROPERTYPUTREF}({Variant(5)})) != S_OK);
}

// Of a type that does not exist, or a reference to a reference: KeyExists and ReOrder never fail.
void ValuesThatCannotBeCopied() {
  const auto document = NewDocument();
  AddPage(document, L"a");
  const auto pages = PagesOf(document);
  VARIANT unknown{};
  unknown.vt = 77;
  Variant position(1);
  Variant reference = Variant::To(position);
  const Variant nested = Variant::To(reference);
  for (const VARIANT& value : {unknown, static_cast<VARIANT>(nested)}) {
    ComPtr<_PDFPage> page;
    CHECK(pages->get_Item(value, &page) == Number(13));
    VARIANT_BOOL exists = VARIANT_TRUE;
    CHECK_OK(pages->KeyExists(value, &exists));
    CHECK(exists == VARIANT_FALSE);
    CHECK_OK(pages->ReOrder(Bstr(L"none"), value, Variant::Missing()));
    CHECK(document->put_Tag(value) == Number(13));
  }
}

// A whole number is too large whatever its type.
void LargeNumbers() {
  const auto pages = PagesOf(NewDocument());
  VARIANT number{};
  number.vt = VT_UI8;
  number.ullVal = ~0ULL;
  ComPtr<_PDFPage> page;
  CHECK(pages->get_Item(number, &page) == Number(6));
  number.vt = VT_I8;
  number.llVal = 1LL << 32;
  CHECK(pages->get_Item(number, &page) == Number(6));
}

}  // namespace

void Test() {
  EarlyBound();
  LateBound();
  ForeignObjects();
  TagsByReference();
  ValuesThatCannotBeCopied();
  LargeNumbers();
}
