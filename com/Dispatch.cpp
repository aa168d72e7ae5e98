#include "com/Dispatch.h"

#include <cstddef>
#include <deque>
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

// Numbers in place of the script's variables, for as long as the call lasts. Anything else that is
// no reference (a literal, an expression) gets a number of its own too, whose new value is lost.
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

  void GiveBack() {
    for (Replaced& replaced : numbers_) {
      const VARIANT& given = given_.rgvarg[replaced.place];
      if (given.vt == (VT_BYREF | VT_VARIANT)) {
        VariantClear(given.pvarVal);
        *given.pvarVal = *replaced.number;
      }
    }
  }

 private:
  struct Replaced {
    std::size_t place;
    Variant number;
  };

  void Replace(std::size_t place, VARTYPE type) {
    VARIANT& argument = passed_[place];
    const bool isReference = (argument.vt & VT_BYREF) != 0;
    if ((isReference && argument.vt != (VT_BYREF | VT_VARIANT)) || !IsGiven(argument)) return;
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
      if (SUCCEEDED(answer)) references.GiveBack();
    } else {
      answer = call.With(arguments);
    }
  });
  return FAILED(failure) ? failure : answer;
}

}  // namespace folivar::com
