// A result that has nowhere to go: every member of every interface answers E_POINTER, whatever its
// arguments are. What the members are is read from the type library.

#include <cstdio>
#include <map>

#include "Client.h"

namespace {

using Objects = std::map<std::wstring, ComPtr<IDispatch>>;

void Put(Objects& objects, IDispatch* object) {
  ComPtr<ITypeInfo> info;
  Bstr name;
  CHECK_OK(object->GetTypeInfo(0, LOCALE_USER_DEFAULT, &info));
  CHECK_OK(info->GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr));
  objects[static_cast<BSTR>(name)] = object;
}

// Calls all getters and Add to reach an object of each interface.
Objects OneOfEach() {
  Objects objects;
  Put(objects, NewDocument().Get());
  for (std::size_t before = 0; before != objects.size();) {
    before = objects.size();
    for (const auto& [name, object] : Objects(objects)) {
      for (const wchar_t* member :
           {L"Pages", L"Fonts", L"Templates", L"Images", L"Bookmarks", L"ViewerPreferences",
            L"GraphicsState", L"TextBoxes", L"HyperLinks", L"Font", L"Destination"}) {
        Variant reached;
        const LateCall get{object.Get(), member, DISPATCH_PROPERTYGET};
        if (get({}, &reached) == S_OK) Put(objects, reached->pdispVal);
      }
      Variant added;
      const LateCall add{object.Get(), L"Add", DISPATCH_METHOD};
      if (add({Variant(L"Courier")}, &added) == S_OK) Put(objects, added->pdispVal);
    }
  }
  return objects;
}

bool IsReference(const ELEMDESC& parameter) {
  return (parameter.paramdesc.wParamFlags & PARAMFLAG_FOUT) != 0;
}

// Calls a slot of the table of methods with nothing in every argument.
HRESULT CallWithNothing(IDispatch* object, const FUNCDESC& function) {
  const auto count = static_cast<std::size_t>(function.cParams);
  std::vector<VARTYPE> types(count);
  std::vector<VARIANT> nothing(count, VARIANT{});
  std::vector<VARIANT*> arguments(count);
  for (std::size_t i = 0; i < count; ++i) {
    const TYPEDESC& type = function.lprgelemdescParam[i].tdesc;
    types[i] = type.vt == VT_PTR ? static_cast<VARTYPE>(VT_BYREF | VT_R4) : type.vt;
    if (type.vt == VT_USERDEFINED) types[i] = VT_I4;
    nothing[i].vt = types[i];
    arguments[i] = &nothing[i];
    // A VARIANT by value is passed as it is.
    if (type.vt == VT_VARIANT) nothing[i].vt = VT_EMPTY;
  }
  Variant result;
  CHECK_OK(DispCallFunc(object, static_cast<ULONG_PTR>(function.oVft), CC_STDCALL, VT_ERROR,
                        static_cast<UINT>(count), types.data(), arguments.data(), &result));
  return result->scode;
}

int CheckMembers(const std::wstring& name, IDispatch* object) {
  ComPtr<ITypeInfo> info;
  ComPtr<ITypeInfo> table;
  HREFTYPE reference = 0;
  CHECK_OK(object->GetTypeInfo(0, LOCALE_USER_DEFAULT, &info));
  CHECK_OK(info->GetRefTypeOfImplType(static_cast<UINT>(-1), &reference));
  CHECK_OK(info->GetRefTypeInfo(reference, &table));
  int members = 0;
  FUNCDESC* function = nullptr;
  for (UINT i = 0; table->GetFuncDesc(i, &function) == S_OK; ++i) {
    bool hasResult = false;
    for (SHORT p = 0; p < function->cParams; ++p) {
      hasResult = hasResult || IsReference(function->lprgelemdescParam[p]);
    }
    if (hasResult) {
      ++members;
      const HRESULT answer = CallWithNothing(object, *function);
      if (answer != E_POINTER) {
        std::printf("%ls, member %ld: %lx\n", name.c_str(), function->memid, answer);
      }
      CHECK(answer == E_POINTER);
    }
    table->ReleaseFuncDesc(function);
  }
  return members;
}

}  // namespace

void Test() {
  const Objects objects = OneOfEach();
  CHECK(objects.size() == 18);
  int members = 0;
  for (const auto& [name, object] : objects) members += CheckMembers(name, object.Get());
  CHECK(members == 169);
}
