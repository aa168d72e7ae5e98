// Walks over collections.

#include "Client.h"

namespace {

ComPtr<IEnumVARIANT> WalkOver(const ComPtr<_PDFPages>& pages) {
  ComPtr<IUnknown> made;
  ComPtr<IEnumVARIANT> walk;
  CHECK_OK(pages->get_NewEnum(&made));
  CHECK_OK(made.As(&walk));
  return walk;
}

// The next one's key, or "-" when there is none.
std::wstring NextKey(const ComPtr<IEnumVARIANT>& walk) {
  Variant next;
  if (walk->Next(1, &next, nullptr) != S_OK) return L"-";
  ComPtr<_PDFPage> page;
  Bstr key;
  CHECK(next->vt == VT_DISPATCH);
  CHECK_OK(next->pdispVal->QueryInterface(IID_PPV_ARGS(&page)));
  CHECK_OK(page->get_Key(&key));
  return static_cast<BSTR>(key);
}

ComPtr<_PDFDocument> DocumentOfThree() {
  auto document = NewDocument();
  for (const wchar_t* key : {L"a", L"b", L"c"}) AddPage(document, key);
  return document;
}

void NextSkipResetAndClone() {
  const auto document = DocumentOfThree();
  const auto walk = WalkOver(PagesOf(document));
  VARIANT several[5] = {};
  ULONG fetched = 77;
  CHECK_OK(walk->Next(2, several, &fetched));
  CHECK(fetched == 2);
  ComPtr<_PDFPage> page;
  CHECK_OK(PagesOf(document)->get_Item(Variant(2), &page));
  CHECK(static_cast<IDispatch*>(page.Get()) == several[1].pdispVal);
  for (VARIANT& one : several) VariantClear(&one);

  ComPtr<IEnumVARIANT> clone;
  CHECK_OK(walk->Clone(&clone));
  CHECK(walk->Next(5, several, &fetched) == S_FALSE);
  CHECK(fetched == 1);
  for (VARIANT& one : several) VariantClear(&one);
  CHECK(walk->Next(1, several, &fetched) == S_FALSE);
  CHECK(fetched == 0);
  CHECK(NextKey(clone) == L"c");
  CHECK_OK(walk->Reset());
  CHECK_OK(walk->Skip(1));
  CHECK(NextKey(walk) == L"b");
  CHECK(walk->Skip(5) == S_FALSE);
  CHECK(NextKey(walk) == L"-");
  CHECK_OK(walk->Next(0, several, &fetched));
  CHECK(FAILED(walk->Next(2, several, nullptr)));
  CHECK(walk->Next(1, nullptr, &fetched) == E_POINTER);
  CHECK(walk->Clone(nullptr) == E_POINTER);
}

void SeesThePagesAsTheyWere() {
  const auto document = DocumentOfThree();
  const auto walk = WalkOver(PagesOf(document));
  CHECK(NextKey(walk) == L"a");
  CHECK_OK(PagesOf(document)->Remove(Variant(L"b")));
  AddPage(document, L"d");
  CHECK(NextKey(walk) == L"b");
  CHECK(NextKey(walk) == L"c");
  CHECK(NextKey(walk) == L"-");
}

void KeepsWhatItWalksOver() {
  const auto walk = WalkOver(PagesOf(DocumentOfThree()));
  CHECK(NextKey(walk) == L"a");
  Variant next;
  CHECK_OK(walk->Next(1, &next, nullptr));
  ComPtr<_PDFPage> page;
  ComPtr<_PDFDocument> document;
  CHECK_OK(next->pdispVal->QueryInterface(IID_PPV_ARGS(&page)));
  CHECK_OK(page->get_ParentDocument(&document));
  LONG count = 0;
  CHECK_OK(PagesOf(document)->get_count(&count));
  CHECK(count == 3);
}

void OfNothing() { CHECK(NextKey(WalkOver(PagesOf(NewDocument()))) == L"-"); }

}  // namespace

void Test() {
  NextSkipResetAndClone();
  SeesThePagesAsTheyWere();
  KeepsWhatItWalksOver();
  OfNothing();
}
