#include "com/Registration.h"

#include <wrl/client.h>

#include <array>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include "com/Module.h"
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

void RaiseIfFailed(LSTATUS status) {
  if (status != ERROR_SUCCESS) {
    throw Error(HRESULT_FROM_WIN32(static_cast<unsigned long>(status)),
                "The registry cannot be changed");
  }
}

std::wstring TextOf(const GUID& id) {
  std::array<wchar_t, 39> text{};
  StringFromGUID2(id, text.data(), static_cast<int>(text.size()));
  return text.data();
}

// The classes of the machine or of the user.
class Classes {
 public:
  explicit Classes(RegistrationScope scope)
      : root_(scope == RegistrationScope::kUser ? HKEY_CURRENT_USER : HKEY_LOCAL_MACHINE) {}

  // A value of a key, which is made if need be; null for the key's default value.
  void Set(const std::wstring& path, const wchar_t* name, const std::wstring& value) const {
    HKEY opened = nullptr;
    RaiseIfFailed(RegCreateKeyExW(root_, Full(path).c_str(), 0, nullptr, 0, KEY_WRITE, nullptr,
                                  &opened, nullptr));
    const Key key(opened);
    RaiseIfFailed(RegSetValueExW(opened, name, 0, REG_SZ,
                                 reinterpret_cast<const BYTE*>(value.c_str()),
                                 static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t))));
  }
  void Set(const std::wstring& path, const std::wstring& value) const { Set(path, nullptr, value); }

  void Remove(const std::wstring& path) const {
    const LSTATUS status = RegDeleteTreeW(root_, Full(path).c_str());
    if (status != ERROR_FILE_NOT_FOUND) RaiseIfFailed(status);
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

 private:
  static std::wstring Full(const std::wstring& path) { return L"Software\\Classes\\" + path; }

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
    if (FAILED(library->GetTypeInfo(i, &info)) || FAILED(info->GetTypeAttr(&attributes))) continue;
    const auto release = [&](TYPEATTR* read) { info->ReleaseTypeAttr(read); };
    const std::unique_ptr<TYPEATTR, decltype(release)> read(attributes, release);
    BSTR name = nullptr;
    if ((read->wTypeFlags & TYPEFLAG_FDUAL) != 0 &&
        SUCCEEDED(
            library->GetDocumentation(static_cast<int>(i), &name, nullptr, nullptr, nullptr))) {
      interfaces.push_back({TextOf(read->guid), std::wstring(name, SysStringLen(name))});
      SysFreeString(name);
    }
  }
  return interfaces;
}

std::wstring ClassPath() { return L"CLSID\\" + TextOf(__uuidof(::PDFDocument)); }
std::wstring LibraryPath() { return L"TypeLib\\" + TextOf(LIBID_Folivar); }

}  // namespace

void Registration::Register(RegistrationScope scope) {
  const Classes classes(scope);
  const std::wstring file = Module::Path();
  const std::wstring library = TextOf(LIBID_Folivar);
  const std::wstring description = L"Folivar 1.0: PDF documents";

  classes.Set(ClassPath(), L"PDFDocument");
  classes.Set(ClassPath() + L"\\InprocServer32", file);
  classes.Set(ClassPath() + L"\\InprocServer32", L"ThreadingModel", L"Apartment");
  classes.Set(ClassPath() + L"\\ProgID", kProgId);
  classes.Set(ClassPath() + L"\\Programmable", L"");
  classes.Set(ClassPath() + L"\\TypeLib", library);
  classes.Set(ClassPath() + L"\\Version", kVersion);

  classes.Set(kProgId, L"PDFDocument");
  classes.Set(std::wstring(kProgId) + L"\\CLSID", TextOf(__uuidof(::PDFDocument)));

  const std::wstring version = LibraryPath() + L"\\" + kVersion;
  classes.Set(version, description);
  classes.Set(version + L"\\0\\" + kPlatform, file);
  classes.Set(version + L"\\FLAGS", L"0");
  classes.Set(version + L"\\HELPDIR", file.substr(0, file.find_last_of(L'\\')));

  for (const InterfaceName& each : Interfaces()) {
    const std::wstring path = L"Interface\\" + each.id;
    classes.Set(path, each.name);
    classes.Set(path + L"\\ProxyStubClsid32", kAutomationMarshaler);
    classes.Set(path + L"\\TypeLib", library);
    classes.Set(path + L"\\TypeLib", L"Version", kVersion);
  }
}

// Classes and interfaces are kept for each word size apart, the program identifier and the type
// library once for both.
void Registration::Unregister(RegistrationScope scope) {
  const Classes classes(scope);
  for (const InterfaceName& each : Interfaces()) classes.Remove(L"Interface\\" + each.id);
  classes.Remove(ClassPath());
  if (!classes.IsInOtherView(ClassPath())) classes.Remove(kProgId);

  const std::wstring platforms = LibraryPath() + L"\\" + kVersion + L"\\0";
  classes.Remove(platforms + L"\\" + kPlatform);
  if (!classes.HasKeys(platforms)) classes.Remove(LibraryPath());
}

}  // namespace folivar::com
