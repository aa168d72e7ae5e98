// Which object is which, what it answers to, and what keeps what alive.

#include <functional>
#include <utility>

#include "Client.h"

namespace {

// Every interface of an object gives every other, and always the same IUnknown.
void CheckInterfaces(const ComPtr<IUnknown>& object, std::initializer_list<const IID*> ids) {
  for (const IID* from : ids) {
    ComPtr<IUnknown> first;
    CHECK_OK(object.CopyTo(*from, reinterpret_cast<void**>(first.GetAddressOf())));
    for (const IID* to : ids) {
      ComPtr<IUnknown> second;
      CHECK_OK(first.CopyTo(*to, reinterpret_cast<void**>(second.GetAddressOf())));
      CHECK(AreSame(first, second));
    }
    void* none = object.Get();
    CHECK(first->QueryInterface(IID_IPersistFile, &none) == E_NOINTERFACE);
    CHECK(none == nullptr);
    CHECK(first->QueryInterface(IID_IUnknown, nullptr) == E_POINTER);
  }
}

void Interfaces() {
  const auto document = NewDocument();
  const auto page = AddPage(document);
  ComPtr<IUnknown> object;
  CHECK_OK(page.As(&object));
  CheckInterfaces(
      object, {&IID_IUnknown, &IID_IDispatch, &__uuidof(_PDFPage), &IID_ISupportErrorInfo,
               &IID_IProvideClassInfo, &IID_IProvideClassInfo2, &IID_IConnectionPointContainer});
  CHECK_OK(document.As(&object));
  CheckInterfaces(object, {&IID_IUnknown, &IID_IDispatch, &__uuidof(_PDFDocument),
                           &IID_ISupportErrorInfo, &IID_IProvideClassInfo2});
  ComPtr<IConnectionPointContainer> events;
  CHECK(document.As(&events) == E_NOINTERFACE);
}

void OneFaceForAWholeLife() {
  const auto document = NewDocument();
  const auto pages = PagesOf(document);
  CHECK(AreSame(pages, PagesOf(document)));
  auto page = AddPage(document, L"a");
  const void* address = page.Get();
  CHECK_OK(page->put_Tag(Variant(42)));
  page.Reset();
  CHECK_OK(pages->get_Item(Variant(L"A"), &page));
  CHECK(page.Get() == address);
  Variant tag;
  CHECK_OK(page->get_Tag(&tag));
  CHECK(tag->vt == VT_I4 && tag->lVal == 42);

  ComPtr<_PDFDocument> parent;
  CHECK_OK(page->get_ParentDocument(&parent));
  CHECK(AreSame(parent, document));
}

void AFaceKeepsItsDocument() {
  auto document = NewDocument();
  auto page = AddPage(document);
  document.Reset();
  CHECK_OK(page->DrawLine(1, 2, 3, 4));
  CHECK_OK(page->get_ParentDocument(&document));
  CHECK_OK(document->SavePDFFile(Bstr(L"kept.pdf")));
  LONG count = 0;
  CHECK_OK(PagesOf(document)->get_count(&count));
  CHECK(count == 1);

  // Also from far below, and after it was taken out.
  ComPtr<_PDFGraphicsState> state;
  CHECK_OK(page->get_GraphicsState(&state));
  CHECK_OK(PagesOf(document)->Remove(Variant(1)));
  page.Reset();
  document.Reset();
  CHECK_OK(state->put_LineWidth(2));
}

// Of a page or a template that nobody else holds.
template <class Owner>
void ATextBoxKeepsItsOwner(ComPtr<Owner> owner, const std::function<void()>& forget) {
  const void* address = static_cast<IDispatch*>(owner.Get());
  ComPtr<_PDFTextBoxes> boxes;
  ComPtr<_PDFTextBox> box;
  CHECK_OK(owner->get_TextBoxes(&boxes));
  CHECK_OK(boxes->Add(nullptr, Variant::Missing(), Variant::Missing(), &box));
  boxes.Reset();
  owner.Reset();
  forget();
  ComPtr<IDispatch> parent;
  CHECK_OK(box->get_Parent(&parent));
  CHECK(parent.Get() == address);
  if (!parent) return;
  CHECK_OK(parent.As(&owner));
  parent.Reset();

  // Also when the collection alone is held, and when a walk over it is.
  CHECK_OK(owner->get_TextBoxes(&boxes));
  box.Reset();
  owner.Reset();
  CHECK_OK(boxes->get_Item(Variant(1), &box));
  CHECK_OK(box->get_Parent(&parent));
  parent.Reset();
  box.Reset();
  ComPtr<IUnknown> made;
  ComPtr<IEnumVARIANT> walk;
  CHECK_OK(boxes->get_NewEnum(&made));
  CHECK_OK(made.As(&walk));
  made.Reset();
  boxes.Reset();
  Variant next;
  CHECK_OK(walk->Next(1, &next, nullptr));
  if (next->vt != VT_DISPATCH) return;
  CHECK_OK(next->pdispVal->QueryInterface(IID_PPV_ARGS(&box)));
  CHECK_OK(box->get_Parent(&parent));
  CHECK(parent.Get() == address);
}

void TextBoxesKeepTheirOwners() {
  auto document = NewDocument();
  const auto pages = PagesOf(document);
  ATextBoxKeepsItsOwner(AddPage(document), [&] { CHECK_OK(pages->Remove(Variant(1))); });

  ComPtr<_PDFTemplates> templates;
  ComPtr<_PDFTemplate> made;
  auto shortLived = NewDocument();
  CHECK_OK(shortLived->get_Templates(&templates));
  CHECK_OK(templates->Add(nullptr, Variant::Missing(), Variant::Missing(), &made));
  ATextBoxKeepsItsOwner(std::exchange(made, nullptr), [&] {
    templates.Reset();
    shortLived.Reset();
  });
}

void ClassInformation() {
  const auto document = NewDocument();
  const auto page = AddPage(document);
  ComPtr<IProvideClassInfo2> provider;
  ComPtr<ITypeInfo> info;
  CHECK_OK(page.As(&provider));
  CHECK_OK(provider->GetClassInfo(&info));
  Bstr name;
  CHECK_OK(info->GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr));
  CHECK(name == L"PDFPage");
  GUID events;
  CHECK_OK(provider->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &events));
  CHECK(events == __uuidof(__PDFPage));
  CHECK(FAILED(provider->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID + 1, &events)));
  CHECK_OK(document.As(&provider));
  CHECK(FAILED(provider->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &events)));

  UINT count = 0;
  CHECK_OK(page->GetTypeInfoCount(&count));
  CHECK(count == 1);
  info.Reset();
  CHECK_OK(page->GetTypeInfo(0, LOCALE_USER_DEFAULT, &info));
  CHECK(page->GetTypeInfo(1, LOCALE_USER_DEFAULT, info.ReleaseAndGetAddressOf()) ==
        DISP_E_BADINDEX);
}

// What a copy of the DLL answers when it is asked itself.
HRESULT ClassObjectOf(HMODULE module, const CLSID& classId, const IID& iid, void** result) {
  using GetClassObject = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);
  const auto getClassObject = reinterpret_cast<GetClassObject>(
      reinterpret_cast<void*>(GetProcAddress(module, "DllGetClassObject")));
  CHECK(getClassObject != nullptr);
  return getClassObject == nullptr ? E_FAIL : getClassObject(classId, iid, result);
}

ComPtr<IClassFactory> FactoryOf(HMODULE module) {
  ComPtr<IClassFactory> factory;
  CHECK_OK(ClassObjectOf(module, __uuidof(PDFDocument), IID_PPV_ARGS(&factory)));
  return factory;
}

void Creation() {
  const auto document = NewDocument();
  ComPtr<IUnknown> made;
  CHECK(CoCreateInstance(__uuidof(PDFDocument), document.Get(), CLSCTX_INPROC_SERVER,
                         IID_PPV_ARGS(&made)) == CLASS_E_NOAGGREGATION);
  CHECK(FAILED(
      CoCreateInstance(__uuidof(PDFPage), nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&made))));

  const HMODULE module = GetModuleHandleW(L"Folivar.dll");
  CHECK(ClassObjectOf(module, __uuidof(PDFPage), IID_PPV_ARGS(&made)) == CLASS_E_CLASSNOTAVAILABLE);
  const auto factory = FactoryOf(module);
  if (!factory) return;
  ComPtr<_PDFDocument> other;
  CHECK_OK(factory->CreateInstance(nullptr, IID_PPV_ARGS(&other)));
  CHECK(!AreSame(other, document));
}

void Unloading() {
  using CanUnloadNow = HRESULT(STDAPICALLTYPE*)();
  auto document = NewDocument();
  const auto canUnloadNow = reinterpret_cast<CanUnloadNow>(
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"Folivar.dll"), "DllCanUnloadNow")));
  CHECK(canUnloadNow != nullptr);
  if (canUnloadNow == nullptr) return;
  CHECK(canUnloadNow() == S_FALSE);
  ComPtr<IClassFactory> factory;
  CHECK_OK(CoGetClassObject(__uuidof(PDFDocument), CLSCTX_INPROC_SERVER, nullptr,
                            IID_PPV_ARGS(&factory)));
  CHECK_OK(factory->LockServer(TRUE));
  document.Reset();
  CHECK(canUnloadNow() == S_FALSE);
  CHECK_OK(factory->LockServer(FALSE));

  // Who holds the factory may go on making documents.
  CHECK(canUnloadNow() == S_FALSE);
  CoFreeUnusedLibrariesEx(0, 0);
  CHECK(GetModuleHandleW(L"Folivar.dll") != nullptr);
  CHECK_OK(factory->CreateInstance(nullptr, IID_PPV_ARGS(&document)));
  document.Reset();
  ComPtr<IUnknown> sameFactory;
  CHECK_OK(factory.As(&sameFactory));
  factory.Reset();
  CHECK(canUnloadNow() == S_FALSE);
  sameFactory.Reset();
  CHECK(canUnloadNow() == S_OK);
}

// A second copy of the DLL in the process has objects of its own.
void AnotherCopy() {
  const auto document = NewDocument();
  std::wstring path(MAX_PATH, L'\0');
  GetModuleFileNameW(GetModuleHandleW(L"Folivar.dll"), path.data(), MAX_PATH);
  CHECK(CopyFileW(path.c_str(), L"copy.dll", FALSE) != FALSE);
  const HMODULE copy = LoadLibraryW(L"copy.dll");
  CHECK(copy != nullptr && copy != GetModuleHandleW(L"Folivar.dll"));
  if (copy == nullptr) return;
  if (const auto factory = FactoryOf(copy)) {
    ComPtr<_PDFDocument> other;
    CHECK_OK(factory->CreateInstance(nullptr, IID_PPV_ARGS(&other)));
    const auto page = AddPage(document);
    const auto foreign = AddFont(other, L"Courier");
    CHECK(page->putref_Font(foreign.Get()) == Number(13));
    const LateCall setFont{page.Get(), L"Font", DISPATCH_PROPERTYPUTREF};
    CHECK(setFont({Variant(foreign)}) == DISP_E_EXCEPTION);
    CHECK_OK(AddPage(other)->putref_Font(foreign.Get()));
  }
  CHECK(FreeLibrary(copy) != FALSE);
}

}  // namespace

void Test() {
  Interfaces();
  OneFaceForAWholeLife();
  AFaceKeepsItsDocument();
  TextBoxesKeepTheirOwners();
  ClassInformation();
  Creation();
  Unloading();
  AnotherCopy();
}
