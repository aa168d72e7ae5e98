// A host whose threads share an apartment: its calls reach the component's objects, which live in
// an apartment of their own, along the type library.

#include <thread>

#include "Client.h"

namespace {

void UseFromAnotherApartment() {
  CHECK_OK(CoInitializeEx(nullptr, COINIT_MULTITHREADED));
  {
    const auto document = NewDocument();
    if (document) {
      const auto page = AddPage(document, L"a");
      CHECK_OK(page->DrawLine(1, 2, 3, 4));
      Bstr key;
      CHECK_OK(page->get_Key(&key));
      CHECK(key == L"a");
      float x = 0;
      float y = 0;
      CHECK_OK(page->GetCurPos(&x, &y));
      CHECK(x == 3 && y == 4);
      ComPtr<_PDFPage> none;
      CHECK(PagesOf(document)->get_Item(Variant(7), &none) == Number(9));
      CHECK(!none);
      CHECK_OK(document->SavePDFFile(Bstr(L"apartments.pdf")));
    }
  }
  CoUninitialize();
}

}  // namespace

void Test() { std::thread(UseFromAnotherApartment).join(); }
