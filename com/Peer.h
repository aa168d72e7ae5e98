#pragma once

#include <functional>
#include <tuple>

#include "com/ComPrefix.h"
#include "com/Conversions.h"
#include "com/Dispatch.h"
#include "com/Guard.h"
#include "com/PeerBase.h"
#include "com/Peers.h"

namespace folivar::com {

// The peer of an object of the class `Core`, `Extra` being further interfaces.
//
// A member of an interface is a line: it names the member of the core that does the work, and Call,
// Get and Fill convert arguments and results, and errors to what automation has.
template <class Core, class... Extra>
class Peer : public PeerOf<Core>::Interface, public PeerBase, public Extra... {
 public:
  using CoreClass = Core;
  using Interface = typename PeerOf<Core>::Interface;

  Peer(const Shared<Core>& core, const Document& document) : PeerBase(core, document) {}

  STDMETHODIMP QueryInterface(REFIID iid, void** result) override {
    return PeerBase::QueryInterface(iid, result);
  }
  STDMETHODIMP_(ULONG) AddRef() override { return PeerBase::AddRef(); }
  STDMETHODIMP_(ULONG) Release() override { return PeerBase::Release(); }

  STDMETHODIMP GetTypeInfoCount(UINT* result) override {
    return Dispatch::GetTypeInfoCount(result);
  }
  STDMETHODIMP GetTypeInfo(UINT index, LCID, ITypeInfo** result) override {
    return Dispatch::GetTypeInfo(__uuidof(Interface), index, result);
  }
  STDMETHODIMP GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID,
                             DISPID* ids) override {
    return Dispatch::GetIDsOfNames(__uuidof(Interface), reserved, names, count, ids);
  }
  STDMETHODIMP Invoke(DISPID id, REFIID reserved, LCID locale, WORD kinds, DISPPARAMS* arguments,
                      VARIANT* result, EXCEPINFO* exception, UINT* badArgument) override {
    return Dispatch::Invoke(__uuidof(Interface), ClassInterface(), id, reserved, locale, kinds,
                            arguments, result, exception, badArgument);
  }

  IDispatch* ClassInterface() override { return static_cast<Interface*>(this); }

 protected:
  const CLSID& ClassId() const override { return __uuidof(typename PeerOf<Core>::Class); }
  const IID& InterfaceId() const override { return __uuidof(Interface); }
  void* FindExtra([[maybe_unused]] REFIID iid) override {
    void* found = nullptr;
    ((iid == __uuidof(Extra) && (found = static_cast<Extra*>(this))), ...);
    return found;
  }

  // There as long as a client calls.
  Core& TheCore() const { return static_cast<Core&>(*TheObject()); }

  template <class Action>
  HRESULT Guard(const Action& action) const noexcept {
    return Guarded(__uuidof(Interface), action);
  }

  // Calls a member of the core that has no result.
  template <class Member, class... Arguments>
  HRESULT Call(Member member, const Arguments&... arguments) const noexcept {
    return Guard([&] { std::invoke(member, TheCore(), Take(arguments)...); });
  }

  // Calls a member of the core and gives its result to the client.
  template <class Result, class Member, class... Arguments>
  HRESULT Get(Result* result, Member member, const Arguments&... arguments) const noexcept {
    return Guard([&] {
      RequirePointer(result);
      *result = Result();
      Give(result, std::invoke(member, TheCore(), Take(arguments)...), TheDocument());
    });
  }

  // Reads several numbers at once of the core and gives each to the client.
  template <class Read, class... Results>
  HRESULT Fill(const Read& read, Results*... results) const noexcept {
    return Guard([&] {
      (RequirePointer(results), ...);
      std::tie(*results...) = Spread(std::invoke(read, TheCore()));
    });
  }
};

}  // namespace folivar::com
