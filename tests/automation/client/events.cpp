// The event of pages, and what its listeners may do while they are told.

#include <functional>
#include <utility>

#include "Client.h"

namespace {

// A listener that does what it is made with.
class Sink final : public IDispatch {
 public:
  explicit Sink(std::function<void(_PDFPage*)> action) : action_(std::move(action)) {}
  virtual ~Sink() = default;

  int Calls() const { return calls_; }
  ULONG References() const { return references_; }

  STDMETHODIMP QueryInterface(REFIID iid, void** result) override {
    const bool isKnown = iid == IID_IUnknown || iid == IID_IDispatch || iid == __uuidof(__PDFPage);
    *result = isKnown ? this : nullptr;
    if (isKnown) AddRef();
    return isKnown ? S_OK : E_NOINTERFACE;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
  STDMETHODIMP_(ULONG) Release() override { return --references_; }
  STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
  STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD kinds, DISPPARAMS* given, VARIANT*, EXCEPINFO*,
                      UINT*) override {
    ++calls_;
    CHECK(id == 1);
    CHECK((kinds & DISPATCH_METHOD) != 0);
    CHECK(given->cArgs == 1 && given->cNamedArgs == 0);
    CHECK(given->rgvarg[0].vt == VT_DISPATCH);
    ComPtr<_PDFPage> page;
    CHECK_OK(given->rgvarg[0].pdispVal->QueryInterface(IID_PPV_ARGS(&page)));
    action_(page.Get());
    return S_OK;
  }

 private:
  std::function<void(_PDFPage*)> action_;
  int calls_ = 0;
  ULONG references_ = 0;
};

ComPtr<IConnectionPoint> PointOf(const ComPtr<_PDFPage>& page) {
  ComPtr<IConnectionPointContainer> container;
  ComPtr<IConnectionPoint> point;
  CHECK_OK(page.As(&container));
  CHECK_OK(container->FindConnectionPoint(__uuidof(__PDFPage), &point));
  return point;
}

LONG CountOf(const ComPtr<_PDFDocument>& document) {
  LONG count = -1;
  CHECK_OK(PagesOf(document)->get_count(&count));
  return count;
}

void Points() {
  const auto document = NewDocument();
  const auto page = AddPage(document);
  ComPtr<IConnectionPointContainer> container;
  ComPtr<IConnectionPoint> point;
  CHECK_OK(page.As(&container));
  CHECK(container->FindConnectionPoint(IID_IDispatch, &point) == CONNECT_E_NOCONNECTION);
  CHECK(!point);
  point = PointOf(page);
  IID id;
  CHECK_OK(point->GetConnectionInterface(&id));
  CHECK(id == __uuidof(__PDFPage));
  ComPtr<IConnectionPointContainer> owner;
  CHECK_OK(point->GetConnectionPointContainer(&owner));
  CHECK(AreSame(owner, page));

  ComPtr<IEnumConnectionPoints> points;
  CHECK_OK(container->EnumConnectionPoints(&points));
  ComPtr<IConnectionPoint> listed;
  ULONG fetched = 0;
  CHECK_OK(points->Next(1, &listed, &fetched));
  CHECK(fetched == 1 && AreSame(listed, point));
  CHECK(points->Next(1, listed.ReleaseAndGetAddressOf(), &fetched) == S_FALSE);
  CHECK(fetched == 0);

  Sink sink([](_PDFPage*) {});
  DWORD cookie = 0;
  CHECK(point->Advise(nullptr, &cookie) == E_POINTER);
  CHECK(point->Advise(&sink, nullptr) == E_POINTER);
  ComPtr<IUnknown> deaf;
  CHECK_OK(PagesOf(document)->get_NewEnum(&deaf));
  CHECK(point->Advise(deaf.Get(), &cookie) == CONNECT_E_CANNOTCONNECT);
  CHECK(point->Unadvise(77) == CONNECT_E_NOCONNECTION);
  CHECK_OK(point->Advise(&sink, &cookie));
  CHECK(cookie != 0);
  ComPtr<IEnumConnections> connections;
  CHECK_OK(point->EnumConnections(&connections));
  CONNECTDATA connection{};
  CHECK_OK(connections->Next(1, &connection, &fetched));
  CHECK(connection.dwCookie == cookie);
  if (connection.pUnk != nullptr) connection.pUnk->Release();
  connections.Reset();
  CHECK_OK(point->Unadvise(cookie));
  CHECK(point->Unadvise(cookie) == CONNECT_E_NOCONNECTION);
  CHECK(sink.References() == 0);
}

void TellsOfRemoving() {
  const auto document = NewDocument();
  const auto page = AddPage(document, L"a");
  AddPage(document, L"b");
  // The page is still there while they are told.
  Sink sink([&](_PDFPage* told) {
    CHECK(told == page.Get());
    CHECK(CountOf(document) == 2);
  });
  DWORD cookie = 0;
  CHECK_OK(PointOf(page)->Advise(&sink, &cookie));
  CHECK_OK(PagesOf(document)->ReOrder(Bstr(L"a"), Variant::Missing(), Variant::Missing()));
  CHECK(sink.Calls() == 1);
  CHECK_OK(PagesOf(document)->Remove(Variant(L"b")));
  CHECK(sink.Calls() == 1);
  CHECK_OK(PagesOf(document)->ReOrder(Bstr(L"b"), Variant::Missing(), Variant::Missing()));
  AddPage(document, L"b");
  CHECK_OK(PagesOf(document)->Remove(Variant(L"a")));
  CHECK(sink.Calls() == 2);
  CHECK(CountOf(document) == 1);
  CHECK_OK(PointOf(page)->Unadvise(cookie));
}

void MayStopListeningMeanwhile() {
  const auto document = NewDocument();
  const auto page = AddPage(document, L"a");
  const auto point = PointOf(page);
  DWORD first = 0;
  DWORD second = 0;
  Sink other([](_PDFPage*) {});
  Sink sink([&](_PDFPage*) {
    CHECK_OK(point->Unadvise(first));
    CHECK_OK(point->Unadvise(second));
  });
  CHECK_OK(point->Advise(&sink, &first));
  CHECK_OK(point->Advise(&other, &second));
  CHECK_OK(PagesOf(document)->Remove(Variant(1)));
  CHECK(sink.Calls() == 1);
  CHECK(sink.References() == 0);
  CHECK(other.References() == 0);
  CHECK(CountOf(document) == 0);
}

void MayRemovePagesMeanwhile() {
  const auto document = NewDocument();
  const auto page = AddPage(document, L"a");
  AddPage(document, L"b");
  Sink sink([&](_PDFPage*) { CHECK_OK(PagesOf(document)->Remove(Variant(L"b"))); });
  DWORD cookie = 0;
  CHECK_OK(PointOf(page)->Advise(&sink, &cookie));
  CHECK_OK(PagesOf(document)->Remove(Variant(L"a")));
  CHECK(CountOf(document) == 0);
  CHECK_OK(PointOf(page)->Unadvise(cookie));

  // Even the page itself.
  const auto own = AddPage(document, L"c");
  AddPage(document, L"d");
  bool isNested = false;
  Sink greedy([&](_PDFPage*) {
    if (std::exchange(isNested, true)) return;
    CHECK_OK(PagesOf(document)->Remove(Variant(L"c")));
  });
  CHECK_OK(PointOf(own)->Advise(&greedy, &cookie));
  PagesOf(document)->Remove(Variant(L"c"));
  CHECK(CountOf(document) == 1);
  CHECK_OK(PointOf(own)->Unadvise(cookie));
}

void ListenersOutliveTheReferencesToThePage() {
  const auto document = NewDocument();
  Sink sink([](_PDFPage*) {});
  DWORD cookie = 0;
  CHECK_OK(PointOf(AddPage(document, L"a"))->Advise(&sink, &cookie));
  CHECK_OK(PagesOf(document)->Remove(Variant(L"a")));
  CHECK(sink.Calls() == 1);
  CHECK(sink.References() == 0);
}

// The destination's own listening, seen from here.
void DestinationsLetGo() {
  const auto document = NewDocument();
  const auto page = AddPage(document);
  ComPtr<_PDFBookmarks> bookmarks;
  ComPtr<_PDFBookmark> bookmark;
  ComPtr<_PDFLinkDestination> destination;
  CHECK_OK(document->get_Bookmarks(&bookmarks));
  CHECK_OK(bookmarks->Add(nullptr, Variant::Missing(), Variant::Missing(), &bookmark));
  CHECK_OK(bookmark->get_Destination(&destination));
  CHECK_OK(destination->putref_page(page.Get()));
  ComPtr<_PDFPage> target;
  CHECK_OK(PagesOf(document)->Remove(Variant(1)));
  CHECK_OK(destination->get_page(&target));
  CHECK(!target);
}

}  // namespace

void Test() {
  Points();
  TellsOfRemoving();
  MayStopListeningMeanwhile();
  MayRemovePagesMeanwhile();
  ListenersOutliveTheReferencesToThePage();
  DestinationsLetGo();
}
