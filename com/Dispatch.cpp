#include "com/Dispatch.h"

#include <cstddef>
#include <cstring>
#include <deque>
#include <utility>
#include <vector>

#include "com/Guard.h"
#include "com/TypeLibrary.h"
#include "com/Variants.h"
#include "folivar/base/Error.h"

namespace folivar::com {
namespace {

struct Call {
  ITypeInfo* info;
  void* object;
  DISPID id;
  WORD kinds;
  VARIANT* result;
  EXCEPINFO* exception;
  UINT* badArgument;

  HRESULT With(DISPPARAMS* arguments) const {
    const HRESULT failure =
        info->Invoke(object, id, kinds, arguments, result, exception, badArgument);
    // A member never answers so itself: an argument has another interface than the one wanted.
    return failure == E_NOINTERFACE ? DISP_E_TYPEMISMATCH : failure;
  }
};

bool IsGiven(const VARIANT& argument) {
  return argument.vt != VT_ERROR || argument.scode != DISP_E_PARAMNOTFOUND;
}

// The reference that an argument is, also when it stands in a variable; null when it is none.
const VARIANT* ReferenceIn(const VARIANT& argument) {
  if ((argument.vt & VT_BYREF) == 0) return nullptr;
  if (argument.vt != (VT_BYREF | VT_VARIANT)) return &argument;
  const VARIANT* inner = ReferenceIn(*argument.pvarVal);
  return inner == nullptr ? &argument : inner;
}

// Of a value that is kept in a VARIANT behind its type.
std::size_t SizeOf(VARTYPE type) {
  switch (type) {
    case VT_I1:
    case VT_UI1:
      return 1;
    case VT_I2:
    case VT_UI2:
    case VT_BOOL:
      return 2;
    case VT_I4:
    case VT_UI4:
    case VT_INT:
    case VT_UINT:
    case VT_R4:
      return 4;
    default:
      return 8;
  }
}

// Moves a value to where a reference to its type, or to a variable, leads.
void Store(VARIANT& value, const VARIANT& reference) {
  if (reference.vt == (VT_BYREF | VT_VARIANT)) {
    VariantClear(reference.pvarVal);
    *reference.pvarVal = value;
  } else if (value.vt == VT_DECIMAL) {
    *reference.pdecVal = value.decVal;
    reference.pdecVal->wReserved = 0;
  } else if (value.vt == VT_BSTR) {
    SysFreeString(std::exchange(*reference.pbstrVal, value.bstrVal));
  } else {
    std::memcpy(reference.byref, &value.byref, SizeOf(value.vt));
  }
  VariantInit(&value);
}

// Numbers of the member's type in place of the client's variables, for as long as the call lasts.
// Anything else that is no reference (a literal, an expression) gets a number of its own too, whose
// new value is lost.
class References {
 public:
  References(const MemberType& member, const DISPPARAMS& arguments)
      : given_(arguments), passed_(arguments.rgvarg, arguments.rgvarg + arguments.cArgs) {
    const std::size_t named = arguments.cNamedArgs;
    for (std::size_t i = 0; i < passed_.size(); ++i) {
      // Named arguments come first, the others behind them from last to first.
      const std::size_t parameter = i < named
                                        ? static_cast<std::size_t>(arguments.rgdispidNamedArgs[i])
                                        : passed_.size() - 1 - i;
      if (parameter >= member.referredTypes.size()) continue;
      const VARTYPE type = member.referredTypes[parameter];
      if (type != VT_EMPTY) Replace(i, type);
    }
    changed_ = given_;
    changed_.rgvarg = passed_.data();
  }

  DISPPARAMS* Arguments() { return &changed_; }

  // Converts the numbers to the types of the client's variables, and sets all of these or none.
  HRESULT GiveBack(UINT* badArgument) {
    for (Replaced& replaced : numbers_) {
      const VARIANT* reference = ReferenceIn(given_.rgvarg[replaced.place]);
      if (reference == nullptr || reference->vt == (VT_BYREF | VT_VARIANT)) continue;
      VARIANT* number = replaced.number.Get();
      const auto type = static_cast<VARTYPE>(reference->vt & ~VT_BYREF);
      const HRESULT failure = VariantChangeType(number, number, 0, type);
      if (FAILED(failure)) {
        if (badArgument != nullptr) *badArgument = static_cast<UINT>(replaced.place);
        return failure;
      }
    }
    for (Replaced& replaced : numbers_) {
      const VARIANT* reference = ReferenceIn(given_.rgvarg[replaced.place]);
      if (reference != nullptr) Store(*replaced.number.Get(), *reference);
    }
    return S_OK;
  }

 private:
  struct Replaced {
    std::size_t place;
    Variant number;
  };

  void Replace(std::size_t place, VARTYPE type) {
    VARIANT& argument = passed_[place];
    if (argument.vt == (VT_BYREF | type) || !IsGiven(argument)) return;
    Replaced& replaced = numbers_.emplace_back();
    replaced.place = place;
    VARIANT& number = *replaced.number.Get();
    // What is no number (a variable not set yet) begins as 0.
    if (FAILED(VariantCopyInd(&number, &argument)) || !replaced.number.ChangeTo(type)) {
      VariantClear(&number);
      number.vt = type;
      number.dblVal = 0;
    }
    argument.vt = static_cast<VARTYPE>(VT_BYREF | type);
    argument.byref = &number.dblVal;
  }

  DISPPARAMS given_;
  DISPPARAMS changed_{};
  std::vector<VARIANT> passed_;
  std::deque<Replaced> numbers_;
};

// Gets the object first, then its default member with the arguments.
HRESULT InvokeDefault(const Call& call, LCID locale, DISPPARAMS* arguments) {
  Variant owner;
  DISPPARAMS none{};
  Call get = call;
  get.result = owner.Get();
  const HRESULT failure = get.With(&none);
  if (FAILED(failure)) return failure;
  if (owner->vt != VT_DISPATCH || owner->pdispVal == nullptr) return DISP_E_BADPARAMCOUNT;
  return owner->pdispVal->Invoke(DISPID_VALUE, IID_NULL, locale,
                                 DISPATCH_METHOD | DISPATCH_PROPERTYGET, arguments, call.result,
                                 call.exception, call.badArgument);
}

}  // namespace

HRESULT Dispatch::GetTypeInfoCount(UINT* result) noexcept {
  if (result == nullptr) return E_POINTER;
  *result = 1;
  return S_OK;
}

HRESULT Dispatch::GetTypeInfo(const IID& interfaceId, UINT index, ITypeInfo** result) noexcept {
  return Guarded(interfaceId, [&] {
    RequirePointer(result);
    *result = nullptr;
    if (index != 0) throw Error(DISP_E_BADINDEX, "There is one type information only");
    *result = TypeLibrary::TypeOf(interfaceId).info;
    (*result)->AddRef();
  });
}

HRESULT Dispatch::GetIDsOfNames(const IID& interfaceId, const IID& reserved, LPOLESTR* names,
                                UINT count, DISPID* ids) noexcept {
  if (reserved != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
  if (names == nullptr || ids == nullptr) return E_POINTER;
  HRESULT result = S_OK;
  const HRESULT failure = Guarded(interfaceId, [&] {
    result = TypeLibrary::TypeOf(interfaceId).info->GetIDsOfNames(names, count, ids);
  });
  return FAILED(failure) ? failure : result;
}

HRESULT Dispatch::Invoke(const IID& interfaceId, void* object, DISPID id, const IID& reserved,
                         LCID locale, WORD kinds, DISPPARAMS* arguments, VARIANT* result,
                         EXCEPINFO* exception,
                         UINT* badArgument) noexcept {  // NOLINT(readability-non-const-parameter)
  if (reserved != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
  if (arguments == nullptr) return E_POINTER;
  HRESULT answer = S_OK;
  const HRESULT failure = Guarded(interfaceId, [&] {
    const InterfaceType& type = TypeLibrary::TypeOf(interfaceId);
    const Call call{type.info, object, id, kinds, result, exception, badArgument};
    const MemberType* member = type.Find(id, kinds);
    if (member != nullptr && arguments->cArgs > member->referredTypes.size()) {
      const bool goesOn = member->referredTypes.empty() && member->givesObject;
      answer = goesOn ? InvokeDefault(call, locale, arguments) : DISP_E_BADPARAMCOUNT;
    } else if (member != nullptr && member->HasReferences()) {
      References references(*member, *arguments);
      answer = call.With(references.Arguments());
      if (SUCCEEDED(answer)) answer = references.GiveBack(badArgument);
    } else {
      answer = call.With(arguments);
    }
  });
  return FAILED(failure) ? failure : answer;
}

}  // namespace folivar::com
