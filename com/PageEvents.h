#pragma once

#include <wrl/client.h>

#include <vector>

#include "com/ComPrefix.h"
#include "com/PeerBase.h"
#include "folivar/base/Event.h"
#include "folivar/page/PDFPage.h"

namespace folivar::com {

// Who listens to a page: the connection point of the page's peer, of which it is a part and whose
// references it shares. It listens to the page itself while anybody listens to it.
class PageEvents final : public IConnectionPoint {
 public:
  explicit PageEvents(PeerBase& peer) : peer_(peer) {}
  PageEvents(const PageEvents&) = delete;
  PageEvents& operator=(const PageEvents&) = delete;

  // IUnknown
  STDMETHODIMP QueryInterface(REFIID iid, void** result) override;
  STDMETHODIMP_(ULONG) AddRef() override { return peer_.AddRef(); }
  STDMETHODIMP_(ULONG) Release() override { return peer_.Release(); }

  // IConnectionPoint
  STDMETHODIMP GetConnectionInterface(IID* result) override;
  STDMETHODIMP GetConnectionPointContainer(IConnectionPointContainer** result) override;
  STDMETHODIMP Advise(IUnknown* listener, DWORD* cookie) override;
  STDMETHODIMP Unadvise(DWORD cookie) override;
  STDMETHODIMP EnumConnections(IEnumConnections** result) override;

 private:
  struct Connection {
    DWORD cookie;
    Microsoft::WRL::ComPtr<IDispatch> listener;
  };

  bool IsConnected(DWORD cookie) const;
  // Tells all listeners; they may stop listening meanwhile, and then are not told.
  void RaisePageRemoved();

  PeerBase& peer_;
  std::vector<Connection> connections_;
  DWORD lastCookie_ = 0;
  Event<PDFPage&>::Subscription pageRemoved_;
};

}  // namespace folivar::com
