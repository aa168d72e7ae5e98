// Writes down a type library, types by name and their members in their order, a line for each:
//
//   interface _PDFPages dual nonextensible
//     7  1 Function Add(Optional sKey As String = "", Optional Before As Variant, ...) As _PDFPage
//     8  0 Property Get Item(vntIndexKey As Variant) As _PDFPage
//
// that is slot in the table of methods, dispatch identifier, declaration. What has no help string
// is named in a line of its own, as is an identifier that two members share.
//
//   type_library <file>

#include <windows.h>
//
#include <oaidl.h>
#include <oleauto.h>
#include <wrl/client.h>

#include <cstdio>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>

namespace {

using Microsoft::WRL::ComPtr;

void RaiseIfFailed(HRESULT result) {
  if (FAILED(result)) throw std::runtime_error("failure " + std::to_string(result));
}

std::string Narrow(BSTR text) {
  return text == nullptr ? std::string() : std::string(text, text + SysStringLen(text));
}

struct Documentation {
  std::string name;
  std::string help;
};

template <class Described>
Documentation DocumentationOf(Described* described, MEMBERID member) {
  BSTR name = nullptr;
  BSTR help = nullptr;
  RaiseIfFailed(described->GetDocumentation(member, &name, &help, nullptr, nullptr));
  Documentation documentation{Narrow(name), Narrow(help)};
  SysFreeString(name);
  SysFreeString(help);
  return documentation;
}

std::string NameOf(ITypeInfo* info) { return DocumentationOf(info, MEMBERID_NIL).name; }

void WantHelp(const std::string& of, const std::string& help) {
  if (help.empty()) std::printf("! no help string: %s\n", of.c_str());
}

auto AttributesOf(ITypeInfo* info) {
  TYPEATTR* attributes = nullptr;
  RaiseIfFailed(info->GetTypeAttr(&attributes));
  const auto release = [info](TYPEATTR* read) { info->ReleaseTypeAttr(read); };
  return std::unique_ptr<TYPEATTR, decltype(release)>(attributes, release);
}

auto FunctionOf(ITypeInfo* info, UINT index) {
  FUNCDESC* function = nullptr;
  RaiseIfFailed(info->GetFuncDesc(index, &function));
  const auto release = [info](FUNCDESC* read) { info->ReleaseFuncDesc(read); };
  return std::unique_ptr<FUNCDESC, decltype(release)>(function, release);
}

std::string TypeName(ITypeInfo* info, const TYPEDESC& type) {
  static const std::map<VARTYPE, const char*> kNames = {
      {VT_BOOL, "Boolean"},    {VT_BSTR, "String"},     {VT_DISPATCH, "Object"},
      {VT_HRESULT, "HRESULT"}, {VT_I4, "Long"},         {VT_R4, "Single"},
      {VT_UNKNOWN, "Unknown"}, {VT_VARIANT, "Variant"}, {VT_VOID, "Nothing"}};
  if (type.vt == VT_PTR) return TypeName(info, *type.lptdesc);
  if (type.vt == VT_SAFEARRAY) return TypeName(info, *type.lptdesc) + "()";
  if (type.vt == VT_USERDEFINED) {
    ComPtr<ITypeInfo> defined;
    RaiseIfFailed(info->GetRefTypeInfo(type.hreftype, &defined));
    return NameOf(defined.Get());
  }
  const auto name = kNames.find(type.vt);
  return name == kNames.end() ? "type " + std::to_string(type.vt) : name->second;
}

std::string Literal(const VARIANT& value) {
  switch (value.vt) {
    case VT_BSTR:
      return '"' + Narrow(value.bstrVal) + '"';
    case VT_BOOL:
      return value.boolVal != VARIANT_FALSE ? "True" : "False";
    case VT_I4:
      return std::to_string(value.lVal);
    case VT_R4:
      return value.fltVal == 0 ? "0!" : std::to_string(value.fltVal) + "!";
    default:
      return "a value of type " + std::to_string(value.vt);
  }
}

std::string Parameter(ITypeInfo* info, const std::string& name, const ELEMDESC& parameter) {
  const PARAMDESC& passing = parameter.paramdesc;
  std::string text;
  if ((passing.wParamFlags & PARAMFLAG_FOPT) != 0) text += "Optional ";
  if ((passing.wParamFlags & PARAMFLAG_FOUT) != 0) {
    text += (passing.wParamFlags & PARAMFLAG_FIN) != 0 ? "ByRef " : "Out ";
  }
  text += name + " As " + TypeName(info, parameter.tdesc);
  if ((passing.wParamFlags & PARAMFLAG_FHASDEFAULT) != 0) {
    text += " = " + Literal(passing.pparamdescex->varDefaultValue);
  }
  return text;
}

bool IsPut(const FUNCDESC& function) {
  return (function.invkind & (INVOKE_PROPERTYPUT | INVOKE_PROPERTYPUTREF)) != 0;
}

// A method is a Function when it has a result. What a property is set to has no name of its own.
std::string Declaration(ITypeInfo* info, const FUNCDESC& function) {
  BSTR names[32] = {};
  UINT found = 0;
  RaiseIfFailed(info->GetNames(function.memid, names, 32, &found));
  std::string list;
  std::string result;
  for (SHORT i = 0; i < function.cParams; ++i) {
    const ELEMDESC& parameter = function.lprgelemdescParam[i];
    const bool isResult = (parameter.paramdesc.wParamFlags & PARAMFLAG_FRETVAL) != 0;
    const auto name = static_cast<UINT>(i) + 1;
    const bool isValue = IsPut(function) && i + 1 == function.cParams;
    if (isResult) {
      result = " As " + TypeName(info, parameter.tdesc);
    } else {
      list += list.empty() ? "" : ", ";
      list += Parameter(info, isValue ? "value" : Narrow(names[name]), parameter);
    }
  }
  const char* kind = result.empty() ? "Sub" : "Function";
  if (function.invkind == INVOKE_PROPERTYGET) kind = "Property Get";
  if (function.invkind == INVOKE_PROPERTYPUT) kind = "Property Let";
  if (function.invkind == INVOKE_PROPERTYPUTREF) kind = "Property Set";
  std::string text = std::string(kind) + " " + Narrow(names[0]) + "(" + list + ")" + result;
  for (UINT i = 0; i < found; ++i) SysFreeString(names[i]);
  if ((function.wFuncFlags & FUNCFLAG_FRESTRICTED) != 0) text += " restricted";
  if ((function.wFuncFlags & FUNCFLAG_FHIDDEN) != 0) text += " hidden";
  return text;
}

void WriteFunctions(ITypeInfo* info, bool hasSlots) {
  std::map<std::pair<MEMBERID, INVOKEKIND>, std::string> seen;
  const UINT count = AttributesOf(info)->cFuncs;
  for (UINT i = 0; i < count; ++i) {
    const auto function = FunctionOf(info, i);
    const Documentation member = DocumentationOf(info, function->memid);
    WantHelp(NameOf(info) + "." + member.name, member.help);
    const auto [other, isNew] = seen.try_emplace({function->memid, function->invkind}, member.name);
    if (!isNew)
      std::printf("! %s has the identifier of %s\n", member.name.c_str(), other->second.c_str());
    const std::string slot =
        hasSlots ? std::to_string(function->oVft / static_cast<int>(sizeof(void*))) : "-";
    std::printf("%3s %2ld %s\n", slot.c_str(), function->memid,
                Declaration(info, *function).c_str());
  }
}

std::string Flags(WORD flags) {
  std::string text;
  if ((flags & TYPEFLAG_FDUAL) != 0) text += " dual";
  if ((flags & TYPEFLAG_FNONEXTENSIBLE) != 0) text += " nonextensible";
  if ((flags & TYPEFLAG_FHIDDEN) != 0) text += " hidden";
  if ((flags & TYPEFLAG_FCANCREATE) != 0) text += " creatable";
  return text;
}

void WriteEnumeration(ITypeInfo* info) {
  const UINT count = AttributesOf(info)->cVars;
  for (UINT i = 0; i < count; ++i) {
    VARDESC* value = nullptr;
    RaiseIfFailed(info->GetVarDesc(i, &value));
    std::printf("  %s = %s\n", DocumentationOf(info, value->memid).name.c_str(),
                Literal(*value->lpvarValue).c_str());
    info->ReleaseVarDesc(value);
  }
}

void WriteClass(ITypeInfo* info) {
  const UINT count = AttributesOf(info)->cImplTypes;
  for (UINT i = 0; i < count; ++i) {
    HREFTYPE reference = 0;
    INT flags = 0;
    ComPtr<ITypeInfo> implemented;
    RaiseIfFailed(info->GetRefTypeOfImplType(i, &reference));
    RaiseIfFailed(info->GetRefTypeInfo(reference, &implemented));
    RaiseIfFailed(info->GetImplTypeFlags(i, &flags));
    std::printf("  %s%s%s\n", NameOf(implemented.Get()).c_str(),
                (flags & IMPLTYPEFLAG_FDEFAULT) != 0 ? " default" : "",
                (flags & IMPLTYPEFLAG_FSOURCE) != 0 ? " source" : "");
  }
}

// The view of a dual interface that has its slots.
ComPtr<ITypeInfo> TableOf(ITypeInfo* dispatch) {
  HREFTYPE reference = 0;
  ComPtr<ITypeInfo> table;
  RaiseIfFailed(dispatch->GetRefTypeOfImplType(static_cast<UINT>(-1), &reference));
  RaiseIfFailed(dispatch->GetRefTypeInfo(reference, &table));
  return table;
}

// In the order in which they are written.
enum class Kind { kEnumeration, kInterface, kEvents, kClass };

Kind KindOf(const TYPEATTR& attributes) {
  if (attributes.typekind == TKIND_ENUM) return Kind::kEnumeration;
  if (attributes.typekind == TKIND_COCLASS) return Kind::kClass;
  return (attributes.wTypeFlags & TYPEFLAG_FDUAL) != 0 ? Kind::kInterface : Kind::kEvents;
}

void WriteType(ITypeInfo* info) {
  const auto attributes = AttributesOf(info);
  const Documentation type = DocumentationOf(info, MEMBERID_NIL);
  const auto head = [&](const char* kind) {
    std::printf("\n%s %s%s\n", kind, type.name.c_str(), Flags(attributes->wTypeFlags).c_str());
    WantHelp(type.name, type.help);
  };
  switch (KindOf(*attributes)) {
    case Kind::kEnumeration:
      head("enumeration");
      WriteEnumeration(info);
      break;
    case Kind::kInterface:
      head("interface");
      WriteFunctions(TableOf(info).Get(), true);
      break;
    case Kind::kEvents:
      head("events");
      WriteFunctions(info, false);
      break;
    case Kind::kClass:
      head("class");
      WriteClass(info);
      break;
  }
}

void WriteLibrary(const wchar_t* file) {
  ComPtr<ITypeLib> library;
  RaiseIfFailed(LoadTypeLibEx(file, REGKIND_NONE, &library));
  TLIBATTR* attributes = nullptr;
  RaiseIfFailed(library->GetLibAttr(&attributes));
  const Documentation documentation = DocumentationOf(library.Get(), MEMBERID_NIL);
  WantHelp(documentation.name, documentation.help);
  const SYSKIND own = sizeof(void*) == 8 ? SYS_WIN64 : SYS_WIN32;
  std::printf("library %s %u.%u%s\n", documentation.name.c_str(), attributes->wMajorVerNum,
              attributes->wMinorVerNum, attributes->syskind == own ? "" : " of another word size");
  library->ReleaseTLibAttr(attributes);
  std::multimap<std::pair<Kind, std::string>, ComPtr<ITypeInfo>> types;
  const UINT count = library->GetTypeInfoCount();
  for (UINT i = 0; i < count; ++i) {
    ComPtr<ITypeInfo> info;
    RaiseIfFailed(library->GetTypeInfo(i, &info));
    types.insert({{KindOf(*AttributesOf(info.Get())), NameOf(info.Get())}, info});
  }
  for (const auto& [name, info] : types) WriteType(info.Get());
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
  if (argc != 2) {
    std::fputs("type_library <file>\n", stderr);
    return 2;
  }
  try {
    WriteLibrary(argv[1]);
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "type_library: %s\n", error.what());
    return 1;
  }
}
