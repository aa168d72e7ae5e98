// Walks over collections.

#include <cstdlib>

#include "Client.h"
#include "Import.h"

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

// The calls for memory are counted down; the one that reaches 0 fails.
int callsLeft = 0;
decltype(&std::malloc) allocate = nullptr;

void* Allocate(std::size_t size) { return --callsLeft == 0 ? nullptr : allocate(size); }

// Fails each call for memory of the component in turn, until `action` does all its work without.
template <class Action>
void FailEveryAllocation(const Action& action) {
  const Import import(GetModuleHandleW(L"Folivar.dll"), "malloc",
                      reinterpret_cast<void*>(&Allocate));
  CHECK(import.IsThere());
  allocate = import.Original<decltype(std::malloc)>();
  for (int failing = 1;; ++failing) {
    callsLeft = failing;
    action();
    if (callsLeft > 0) return;
  }
}

// Pages get what clients hold of them when they are first given away; here by the walk, because
// there was no memory for it when they were made.
void GivesAllOrNoneWithoutMemory() {
  const auto document = NewDocument();
  const auto pages = PagesOf(document);
  AddPage(document);
  FailEveryAllocation([&] {
    ComPtr<_PDFPage> page;
    pages->Add(nullptr, Variant::Missing(), Variant::Missing(), &page);
  });
  LONG count = 0;
  CHECK_OK(pages->get_count(&count));
  CHECK(count > 2);

  const auto walk = WalkOver(pages);
  int failures = 0;
  FailEveryAllocation([&] {
    VARIANT several[3] = {};
    ULONG fetched = 77;
    const HRESULT result = walk->Next(3, several, &fetched);
    if (FAILED(result)) {
      ++failures;
      CHECK(result == Number(7) && fetched == 0);
      for (const VARIANT& one : several) CHECK(one.vt == VT_EMPTY);
    } else {
      CHECK(result == S_OK && fetched == 3);
      ComPtr<_PDFPage> first;
      CHECK_OK(pages->get_Item(Variant(1), &first));
      CHECK(several[0].pdispVal == static_cast<IDispatch*>(first.Get()));
    }
    for (VARIANT& one : several) VariantClear(&one);
  });
  CHECK(failures > 0);
}

void OfNothing() { CHECK(NextKey(WalkOver(PagesOf(NewDocument()))) == L"-"); }

}  // namespace

void Test() {
  NextSkipResetAndClone();
  SeesThePagesAsTheyWere();
  KeepsWhatItWalksOver();
  GivesAllOrNoneWithoutMemory();
  OfNothing();
}
