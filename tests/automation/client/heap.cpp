// A host that makes documents all day: what its heaps hold does not grow.

#include <cstddef>
#include <cstdio>

#include "Client.h"

namespace {

// What a document of everything leaves no trace of; also its errors.
void MakeDocument() {
  const auto document = NewDocument();
  CHECK_OK(document->put_Tag(Variant(L"a tag")));
  ComPtr<_PDFTemplates> templates;
  ComPtr<_PDFTemplate> letterhead;
  CHECK_OK(document->get_Templates(&templates));
  CHECK_OK(templates->Add(Bstr(L"head"), Variant::Missing(), Variant::Missing(), &letterhead));
  CHECK_OK(letterhead->DrawText(Bstr(L"head"), 0, 0));
  for (const wchar_t* key : {L"first", L"second"}) {
    const auto page = AddPage(document, key);
    CHECK_OK(page->putref_Font(AddFont(document, L"Times-Roman").Get()));
    CHECK_OK(page->DrawText(Bstr(L"some text"), 72, 700));
    CHECK_OK(page->DrawTemplate(letterhead.Get(), Variant(1), Variant(2.5)));
    CHECK_OK(page->put_Tag(Variant(document.Get() == nullptr)));

    ComPtr<_PDFTextBoxes> boxes;
    ComPtr<_PDFTextBox> box;
    CHECK_OK(page->get_TextBoxes(&boxes));
    CHECK_OK(boxes->Add(Bstr(L"box"), Variant::Missing(), Variant::Missing(), &box));
    CHECK_OK(box->Move(10, Variant(20), Variant(L"30"), Variant::Missing()));
    CHECK_OK(box->put_Text(Bstr(L"text of a box")));
    CHECK_OK(box->put_SelLength(0));
    Bstr text;
    CHECK_OK(box->get_Text(&text));

    ComPtr<_PDFHyperLinks> links;
    ComPtr<_PDFHyperLink> link;
    ComPtr<_PDFLinkDestination> destination;
    CHECK_OK(page->get_HyperLinks(&links));
    CHECK_OK(links->Add(nullptr, Variant::Missing(), Variant::Missing(), &link));
    CHECK_OK(link->get_Destination(&destination));
    CHECK_OK(destination->putref_page(page.Get()));
  }
  Variant found;
  const LateCall pages{document.Get(), L"Pages", DISPATCH_METHOD | DISPATCH_PROPERTYGET};
  CHECK_OK(pages({Variant(L"second")}, &found));
  const auto collection = PagesOf(document);
  const LateCall remove{collection.Get(), L"Remove", DISPATCH_METHOD};
  EXCEPINFO exception{};
  CHECK(remove({Variant(L"third")}, nullptr, &exception) == DISP_E_EXCEPTION);
  SysFreeString(exception.bstrSource);
  SysFreeString(exception.bstrDescription);
  const LateCall drawTemplate{found->pdispVal, L"DrawTemplate", DISPATCH_METHOD};
  CHECK(drawTemplate({Variant(document)}) == DISP_E_TYPEMISMATCH);
  ComPtr<_PDFFonts> fonts;
  SAFEARRAY* names = nullptr;
  CHECK_OK(document->get_Fonts(&fonts));
  CHECK_OK(fonts->AvailableFonts(fontType1, VARIANT_FALSE, &names));
  SafeArrayDestroy(names);
}

std::size_t BusyBytes() {
  std::vector<HANDLE> heaps(256);
  const DWORD count = GetProcessHeaps(static_cast<DWORD>(heaps.size()), heaps.data());
  CHECK(count > 0 && count <= heaps.size());
  std::size_t bytes = 0;
  for (DWORD i = 0; i < count; ++i) {
    PROCESS_HEAP_ENTRY entry{};
    while (HeapWalk(heaps[i], &entry) != FALSE) {
      if ((entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0) bytes += entry.cbData;
    }
  }
  return bytes;
}

}  // namespace

void Test() {
  constexpr std::size_t kRounds = 5;
  constexpr int kDocuments = 500;
  const auto keepLoaded = NewDocument();
  std::vector<std::size_t> busy(kRounds);
  for (std::size_t& bytes : busy) {
    for (int i = 0; i < kDocuments; ++i) MakeDocument();
    bytes = BusyBytes();
  }
  // What is made once and kept has been made by the second round.
  for (std::size_t i = 2; i < kRounds; ++i) CHECK(busy[i] == busy[1]);
  std::printf("busy bytes:");
  for (const std::size_t bytes : busy) std::printf(" %llu", static_cast<unsigned long long>(bytes));
  std::printf("\n");
}
