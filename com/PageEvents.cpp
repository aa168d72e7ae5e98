#include "com/PageEvents.h"

#include <algorithm>

#include "com/Enumerator.h"
#include "com/Guard.h"

namespace folivar::com {
namespace {

using Microsoft::WRL::ComPtr;

constexpr DISPID kPageRemoved = 1;

// Listeners are called by dispatch id. Those that know the event interface say so; others are taken
// for ones that know the ids.
ComPtr<IDispatch> ListenerFrom(IUnknown* listener) {
  ComPtr<IDispatch> known;
  if (FAILED(listener->QueryInterface(__uuidof(__PDFPage), &known))) {
    listener->QueryInterface(IID_IDispatch, &known);
  }
  return known;
}

}  // namespace

STDMETHODIMP PageEvents::QueryInterface(REFIID iid, void** result) {
  if (result == nullptr) return E_POINTER;
  const bool isThere = iid == IID_IUnknown || iid == IID_IConnectionPoint;
  *result = isThere ? this : nullptr;
  if (!isThere) return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

STDMETHODIMP PageEvents::GetConnectionInterface(IID* result) {
  if (result == nullptr) return E_POINTER;
  *result = __uuidof(__PDFPage);
  return S_OK;
}

STDMETHODIMP PageEvents::GetConnectionPointContainer(IConnectionPointContainer** result) {
  return peer_.QueryInterface(IID_IConnectionPointContainer, reinterpret_cast<void**>(result));
}

STDMETHODIMP PageEvents::Advise(IUnknown* listener, DWORD* cookie) {
  if (listener == nullptr || cookie == nullptr) return E_POINTER;
  *cookie = 0;
  const ComPtr<IDispatch> known = ListenerFrom(listener);
  if (!known) return CONNECT_E_CANNOTCONNECT;
  return Guarded(IID_IConnectionPoint, [&] {
    connections_.push_back({lastCookie_ + 1, known});
    *cookie = ++lastCookie_;
    if (pageRemoved_.IsSubscribed()) return;
    auto page = std::static_pointer_cast<PDFPage>(peer_.TheObject());
    pageRemoved_ = page->PageRemoved().Subscribe([this](PDFPage&) { RaisePageRemoved(); });
  });
}

STDMETHODIMP PageEvents::Unadvise(DWORD cookie) {
  const auto found =
      std::find_if(connections_.begin(), connections_.end(),
                   [&](const Connection& connection) { return connection.cookie == cookie; });
  if (found == connections_.end()) return CONNECT_E_NOCONNECTION;
  // Letting go of it may run code of the client's, which then finds it gone.
  const Connection last = std::move(*found);
  connections_.erase(found);
  if (connections_.empty()) pageRemoved_.Reset();
  return S_OK;
}

STDMETHODIMP PageEvents::EnumConnections(IEnumConnections** result) {
  return Guarded(IID_IConnectionPoint, [&] {
    RequirePointer(result);
    *result = nullptr;
    const auto give = [](const Connection& connection, CONNECTDATA& element) {
      element = {connection.listener.Get(), connection.cookie};
      element.pUnk->AddRef();
    };
    *result = Enumerate<IEnumConnections, CONNECTDATA>(connections_, give);
  });
}

bool PageEvents::IsConnected(DWORD cookie) const {
  return std::any_of(connections_.begin(), connections_.end(),
                     [&](const Connection& connection) { return connection.cookie == cookie; });
}

void PageEvents::RaisePageRemoved() {
  const std::vector<Connection> connections = connections_;
  const ComPtr<IDispatch> page = peer_.ClassInterface();
  for (const Connection& connection : connections) {
    if (!IsConnected(connection.cookie)) continue;
    VARIANT argument;
    VariantInit(&argument);
    argument.vt = VT_DISPATCH;
    argument.pdispVal = page.Get();
    DISPPARAMS arguments = {&argument, nullptr, 1, 0};
    // What a listener answers changes nothing.
    connection.listener->Invoke(kPageRemoved, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD,
                                &arguments, nullptr, nullptr, nullptr);
  }
}

}  // namespace folivar::com
