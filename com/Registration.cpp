#include "com/Registration.h"

#include <wrl/client.h>

#include <array>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "com/Module.h"
#include "com/RegistryChanges.h"
#include "com/TypeLibrary.h"
#include "folivar/base/Error.h"

namespace folivar::com {
namespace {

constexpr const wchar_t* kProgId = L"Folivar.PDFDocument";
constexpr const wchar_t* kVersion = L"1.0";
constexpr const wchar_t* kPlatform = sizeof(void*) == 8 ? L"win64" : L"win32";
constexpr REGSAM kOtherView = sizeof(void*) == 8 ? KEY_WOW64_32KEY : KEY_WOW64_64KEY;
// The system's marshaler for interfaces that a type library describes.
constexpr const wchar_t* kAutomationMarshaler = L"{00020424-0000-0000-C000-000000000046}";

struct KeyCloser {
  using pointer = HKEY;
  void operator()(HKEY key) const { RegCloseKey(key); }
};
using Key = std::unique_ptr<HKEY, KeyCloser>;

void RaiseIfUnread(HRESULT result) {
  if (FAILED(result)) throw Error(result, "The type library cannot be read");
}

std::wstring TextOf(const GUID& id) {
  std::array<wchar_t, 39> text{};
  StringFromGUID2(id, text.data(), static_cast<int>(text.size()));
  return text.data();
}

// The classes of the machine or of the user.
HKEY RootOf(RegistrationScope scope) {
  return scope == RegistrationScope::kUser ? HKEY_CURRENT_USER : HKEY_LOCAL_MACHINE;
}
std::wstring Full(const std::wstring& path) { return L"Software\\Classes\\" + path; }

class Classes {
 public:
  explicit Classes(HKEY root) : root_(root) {}

  void Remove(const std::wstring& path) const {
    const LSTATUS status = RegDeleteTreeW(root_, Full(path).c_str());
    if (status != ERROR_FILE_NOT_FOUND) RaiseIfUnchanged(status);
  }

  // Whether there are keys below this one.
  bool HasKeys(const std::wstring& path) const {
    const Key key = Open(path, 0);
    DWORD keys = 0;
    return key &&
           RegQueryInfoKeyW(key.get(), nullptr, nullptr, nullptr, &keys, nullptr, nullptr, nullptr,
                            nullptr, nullptr, nullptr, nullptr) == ERROR_SUCCESS &&
           keys > 0;
  }

  // Whether the key is there for programs of the other word size.
  bool IsInOtherView(const std::wstring& path) const { return Open(path, kOtherView) != nullptr; }

  // Whether another version of the component has put itself down in this value.
  bool IsOfOtherVersion(const std::wstring& path, const wchar_t* name) const {
    std::array<wchar_t, 16> version{};
    DWORD size = sizeof version;
    const LSTATUS status = RegGetValueW(root_, Full(path).c_str(), name, RRF_RT_REG_SZ, nullptr,
                                        version.data(), &size);
    if (status == ERROR_MORE_DATA) return true;  // ours is short
    return status == ERROR_SUCCESS && std::wstring_view(version.data()) != kVersion;
  }

 private:
  Key Open(const std::wstring& path, REGSAM view) const {
    HKEY opened = nullptr;
    const LSTATUS status = RegOpenKeyExW(root_, Full(path).c_str(), 0, KEY_READ | view, &opened);
    return Key(status == ERROR_SUCCESS ? opened : nullptr);
  }

  HKEY root_;
};

struct InterfaceName {
  std::wstring id;
  std::wstring name;
};

// The interfaces that calls between threads go through: all but the event interfaces, which are
// called as IDispatch.
std::vector<InterfaceName> Interfaces() {
  std::vector<InterfaceName> interfaces;
  ITypeLib* library = TypeLibrary::Library();
  for (UINT i = 0; i < library->GetTypeInfoCount(); ++i) {
    Microsoft::WRL::ComPtr<ITypeInfo> info;
    TYPEATTR* attributes = nullptr;
    RaiseIfUnread(library->GetTypeInfo(i, &info));
    RaiseIfUnread(info->GetTypeAttr(&attributes));
    const auto release = [&](TYPEATTR* read) { info->ReleaseTypeAttr(read); };
    const std::unique_ptr<TYPEATTR, decltype(release)> read(attributes, release);
    if ((read->wTypeFlags & TYPEFLAG_FDUAL) == 0) continue;
    BSTR name = nullptr;
    RaiseIfUnread(info->GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr));
    const std::unique_ptr<OLECHAR, decltype(&SysFreeString)> kept(name, &SysFreeString);
    interfaces.push_back({TextOf(read->guid), std::wstring(name, SysStringLen(name))});
  }
  return interfaces;
}

std::wstring ClassPath() { return L"CLSID\\" + TextOf(__uuidof(::PDFDocument)); }
std::wstring LibraryPath() { return L"TypeLib\\" + TextOf(LIBID_Folivar); }
std::wstring VersionPath() { return LibraryPath() + L"\\" + kVersion; }

}  // namespace

void Registration::Register(RegistrationScope scope) {
  const std::vector<InterfaceName> interfaces = Interfaces();
  const std::wstring file = Module::Path();
  const std::wstring library = TextOf(LIBID_Folivar);
  const std::wstring description = L"Folivar 1.0: PDF documents";

  RegistryChanges changes(RootOf(scope));
  const auto set = [&](const std::wstring& path, const std::wstring& value,
                       const wchar_t* name = nullptr) { changes.Set(Full(path), name, value); };

  set(ClassPath(), L"PDFDocument");
  set(ClassPath() + L"\\InprocServer32", file);
  set(ClassPath() + L"\\InprocServer32", L"Apartment", L"ThreadingModel");
  set(ClassPath() + L"\\ProgID", kProgId);
  set(ClassPath() + L"\\Programmable", L"");
  set(ClassPath() + L"\\TypeLib", library);
  set(ClassPath() + L"\\Version", kVersion);

  set(kProgId, L"PDFDocument");
  set(std::wstring(kProgId) + L"\\CLSID", TextOf(__uuidof(::PDFDocument)));

  set(VersionPath(), description);
  set(VersionPath() + L"\\0\\" + kPlatform, file);
  set(VersionPath() + L"\\FLAGS", L"0");
  set(VersionPath() + L"\\HELPDIR", file.substr(0, file.find_last_of(L'\\')));

  for (const InterfaceName& each : interfaces) {
    const std::wstring path = L"Interface\\" + each.id;
    set(path, each.name);
    set(path + L"\\ProxyStubClsid32", kAutomationMarshaler);
    set(path + L"\\TypeLib", library);
    set(path + L"\\TypeLib", kVersion, L"Version");
  }
  changes.Keep();
}

// Classes and interfaces are kept for each word size apart, the program identifier and the type
// library once for both.
void Registration::Unregister(RegistrationScope scope) {
  const Classes classes(RootOf(scope));
  for (const InterfaceName& each : Interfaces()) {
    const std::wstring path = L"Interface\\" + each.id;
    if (!classes.IsOfOtherVersion(path + L"\\TypeLib", L"Version")) classes.Remove(path);
  }
  if (!classes.IsOfOtherVersion(ClassPath() + L"\\Version", nullptr)) {
    classes.Remove(ClassPath());
    if (!classes.IsInOtherView(ClassPath())) classes.Remove(kProgId);
  }

  const std::wstring platforms = VersionPath() + L"\\0";
  classes.Remove(platforms + L"\\" + kPlatform);
  if (!classes.HasKeys(platforms)) classes.Remove(VersionPath());
  if (!classes.HasKeys(LibraryPath())) classes.Remove(LibraryPath());
}

}  // namespace folivar::com
