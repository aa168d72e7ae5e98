#pragma once

#include "com/ComPrefix.h"

namespace folivar::com {

// Late binding to the interfaces of the type library: the methods of IDispatch, for an object with
// the interface `interfaceId`.
class Dispatch {
 public:
  static HRESULT GetTypeInfoCount(UINT* result) noexcept;
  static HRESULT GetTypeInfo(const IID& interfaceId, UINT index, ITypeInfo** result) noexcept;

  static HRESULT GetIDsOfNames(const IID& interfaceId, const IID& reserved, LPOLESTR* names,
                               UINT count, DISPID* ids) noexcept;

  // ITypeInfo::Invoke, and what that leaves out:
  // - A variable of any type, or of none, is taken where the member wants a reference to a number;
  //   the result is converted to its type as the system converts.
  // - Arguments beyond those of the member are refused; but those of one that has none and gives an
  //   object go to the object's default member: doc.Pages(1) is doc.Pages.Item(1).
  // - An object of the wrong kind is a type mismatch on every system.
  static HRESULT Invoke(const IID& interfaceId, void* object, DISPID id, const IID& reserved,
                        LCID locale, WORD kinds, DISPPARAMS* arguments, VARIANT* result,
                        EXCEPINFO* exception, UINT* badArgument) noexcept;
};

}  // namespace folivar::com
