#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <type_traits>
#include <utility>
#include <vector>

#include "com/ComPrefix.h"
#include "com/Dispatch.h"
#include "com/Guard.h"
#include "com/HostObject.h"
#include "com/Module.h"
#include "com/Peers.h"
#include "com/TypeLibrary.h"
#include "com/Variants.h"
#include "folivar/base/Error.h"

namespace folivar::com {

// Arguments without a type, by what the member wants of them.
struct Index {
  const VARIANT& given;
};
struct Number {
  const VARIANT& given;
};
struct Flag {
  const VARIANT& given;
};
struct Single {
  const char* member;
  const VARIANT& given;
};

// The face of an object of the core on the automation interface, `Extra` being further interfaces.
//
// The object owns its face, which is therefore the same for the object's whole life, with the tag
// and the listeners that clients gave it. While clients hold references to the face, it holds the
// object and its document.
//
// A member of an interface is a line: it names the member of the core that does the work, and Call,
// Get and Fill convert arguments and results, and errors to what automation has.
template <class Core, class... Extra>
class Peer : public Automation<Core>::Interface,
             public ISupportErrorInfo,
             public IProvideClassInfo2,
             public IHostObject,
             public FacePeer,
             public Extra... {
 public:
  using Interface = typename Automation<Core>::Interface;

  Peer(const Shared<Core>& core, Document document) : core_(core), document_(std::move(document)) {
    Module::CountObject(1);
  }
  ~Peer() override { Module::CountObject(-1); }

  // IUnknown
  STDMETHODIMP QueryInterface(REFIID iid, void** result) override {
    if (result == nullptr) return E_POINTER;
    *result = nullptr;
    if (iid == IID_IUnknown || iid == IID_IDispatch || iid == __uuidof(Interface)) {
      *result = static_cast<Interface*>(this);
    } else if (iid == IID_ISupportErrorInfo) {
      *result = static_cast<ISupportErrorInfo*>(this);
    } else if (iid == IID_IProvideClassInfo || iid == IID_IProvideClassInfo2) {
      *result = static_cast<IProvideClassInfo2*>(this);
    } else if (iid == __uuidof(IHostObject)) {
      *result = static_cast<IHostObject*>(this);
    } else {
      ((iid == __uuidof(Extra) && (*result = static_cast<Extra*>(this))), ...);
    }
    if (*result == nullptr) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  STDMETHODIMP_(ULONG) AddRef() override {
    if (references_ == 0) {
      pinnedDocument_ = document_.lock();
      pinnedCore_ = core_.lock();
    }
    return ++references_;
  }
  STDMETHODIMP_(ULONG) Release() override {
    const ULONG left = --references_;
    if (left == 0) {
      // With the last of these this face may go.
      const auto document = std::move(pinnedDocument_);
      const auto core = std::move(pinnedCore_);
    }
    return left;
  }

  // IDispatch
  STDMETHODIMP GetTypeInfoCount(UINT* result) override {
    if (result == nullptr) return E_POINTER;
    *result = 1;
    return S_OK;
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
    return Dispatch::Invoke(__uuidof(Interface), static_cast<Interface*>(this), id, reserved,
                            locale, kinds, arguments, result, exception, badArgument);
  }

  // ISupportErrorInfo
  STDMETHODIMP InterfaceSupportsErrorInfo(REFIID iid) override {
    return iid == __uuidof(Interface) ? S_OK : S_FALSE;
  }

  // IProvideClassInfo2
  STDMETHODIMP GetClassInfo(ITypeInfo** result) override {
    return Guard([&] {
      RequirePointer(result);
      *result = nullptr;
      *result = TypeLibrary::ClassInfoOf(__uuidof(typename Automation<Core>::Class));
      (*result)->AddRef();
    });
  }
  // The events, for a class that has some.
  STDMETHODIMP GetGUID(DWORD kind, GUID* result) override {
    if (result == nullptr) return E_POINTER;
    *result = EventsId();
    const bool isThere = kind == GUIDKIND_DEFAULT_SOURCE_DISP_IID && *result != GUID_NULL;
    if (!isThere) *result = GUID_NULL;
    return isThere ? S_OK : E_INVALIDARG;
  }

  // IHostObject
  std::shared_ptr<Object> HostObject() override { return pinnedCore_; }

  // FacePeer
  IDispatch* Face() override { return static_cast<Interface*>(this); }

 protected:
  virtual const GUID& EventsId() const { return GUID_NULL; }

  // There as long as a client calls.
  Core& TheCore() const { return *pinnedCore_; }
  const Shared<PDFDocument>& TheDocument() const { return pinnedDocument_; }

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
      Give(result, std::invoke(member, TheCore(), Take(arguments)...));
    });
  }

  // Calls a member of the core that fills references; they are changed when it has succeeded.
  template <class Member, class... Results>
  HRESULT Fill(Member member, Results*... results) const noexcept {
    return Guard([&] {
      (RequirePointer(results), ...);
      std::invoke(member, TheCore(), *results...);
    });
  }

 private:
  // A value of an enumeration, whether listed or not.
  struct Choice {
    template <class Enumeration>
    requires std::is_enum_v<Enumeration>
    operator Enumeration() const { return static_cast<Enumeration>(value); }
    std::int32_t value;
  };

  // An object of the class that the member wants; null for null.
  struct Given {
    template <class Wanted>
    operator std::shared_ptr<Wanted>() const {
      auto wanted = std::dynamic_pointer_cast<Wanted>(object);
      if (object && !wanted) throw Error::TypeMismatch("An object is of the wrong class");
      return wanted;
    }
    std::shared_ptr<Object> object;
  };

  static TextView Take(BSTR text) { return ViewOf(text); }
  static float Take(float number) { return number; }
  static std::int32_t Take(LONG number) { return number; }
  static bool Take(VARIANT_BOOL flag) { return flag != VARIANT_FALSE; }
  static Value Take(const Index& index) { return IndexFrom(index.given); }
  static Value Take(const Number& number) { return NumberFrom(number.given); }
  static Value Take(const Flag& flag) { return FlagFrom(flag.given); }
  static std::optional<float> Take(const Single& number) {
    return SingleFrom(number.member, number.given);
  }
  static Given Take(IUnknown* face) { return {ObjectBehind(face)}; }
  template <class Enumeration>
  requires std::is_enum_v<Enumeration>
  static Choice Take(Enumeration value) { return {static_cast<std::int32_t>(value)}; }

  static void Give(float* result, float number) { *result = number; }
  static void Give(LONG* result, std::int32_t number) { *result = number; }
  static void Give(VARIANT_BOOL* result, bool flag) {
    *result = flag ? VARIANT_TRUE : VARIANT_FALSE;
  }
  static void Give(BSTR* result, const Text& text) { *result = BstrFrom(text); }
  static void Give(VARIANT* result, const Value& value) { *result = VariantFrom(value); }
  static void Give(SAFEARRAY** result, const std::vector<Text>& texts) {
    *result = ArrayFrom(texts);
  }
  template <class Result, class Enumeration>
  requires std::is_enum_v<Result> && std::is_enum_v<Enumeration>
  static void Give(Result* result, Enumeration value) { *result = static_cast<Result>(value); }
  template <class Result>
  void Give(typename Automation<Result>::Interface** result,
            const std::shared_ptr<Result>& object) const {
    *result = HandOut(object, document_);
  }
  // A page or a template.
  void Give(IDispatch** result, const std::shared_ptr<Object>& owner) const {
    if (auto page = std::dynamic_pointer_cast<PDFPage>(owner)) {
      *result = HandOut(page, document_);
    } else {
      *result = HandOut(std::dynamic_pointer_cast<PDFTemplate>(owner), document_);
    }
  }

  std::weak_ptr<Core> core_;
  Document document_;
  ULONG references_ = 0;
  // Held while clients hold references.
  Shared<PDFDocument> pinnedDocument_;
  Shared<Core> pinnedCore_;
};

// The face of an object that carries a tag.
template <class Core, class... Extra>
class TaggedPeer : public Peer<Core, Extra...> {
 public:
  using Peer<Core, Extra...>::Peer;

  STDMETHODIMP get_Tag(VARIANT* result) override {
    return this->Guard([&] {
      RequirePointer(result);
      VariantInit(result);
      CopyTag(this->TheCore().Tag(), result);
    });
  }
  STDMETHODIMP put_Tag(VARIANT tag) override {
    return this->Guard([&] { SetTag(TagFrom(tag)); });
  }
  STDMETHODIMP putref_Tag(VARIANT tag) override {
    return this->Guard([&] { SetTag(ObjectTagFrom(tag)); });
  }

 private:
  // Letting go of the old tag may run code of the client's, which then finds the new one.
  void SetTag(Value tag) {
    const Value old = this->TheCore().Tag();
    this->TheCore().SetTag(std::move(tag));
  }
};

}  // namespace folivar::com
