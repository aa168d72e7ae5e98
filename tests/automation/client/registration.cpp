// Registering and unregistering, with a registry that fails and with another version beside.

#include <string>
#include <type_traits>

#include "Client.h"
#include "Import.h"

namespace {

const std::wstring kClass = L"CLSID\\{0B39C201-B325-450F-8017-032EC9BAE749}";
const std::wstring kProgram = L"Folivar.PDFDocument";
const std::wstring kLibrary = L"TypeLib\\{0B39C000-B325-450F-8017-032EC9BAE749}";
const std::wstring kInterface = L"Interface\\{0B39C101-B325-450F-8017-032EC9BAE749}";
const std::wstring kOtherInterface = L"Interface\\{0B39C102-B325-450F-8017-032EC9BAE749}";

std::wstring Full(const std::wstring& path) { return L"Software\\Classes\\" + path; }

std::wstring NamedKey(HKEY key, DWORD index) {
  std::wstring name(256, L'\0');
  auto length = static_cast<DWORD>(name.size());
  const LSTATUS status =
      RegEnumKeyExW(key, index, name.data(), &length, nullptr, nullptr, nullptr, nullptr);
  name.resize(status == ERROR_SUCCESS ? length : 0);
  return name;
}

// All keys and values from this key down, a line each.
std::wstring Contents(HKEY root, const std::wstring& path) {
  HKEY key = nullptr;
  if (RegOpenKeyExW(root, path.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS) return {};
  std::wstring text = path + L"\n";
  for (DWORD index = 0;; ++index) {
    std::wstring name(256, L'\0');
    std::wstring value(1024, L'\0');
    auto nameLength = static_cast<DWORD>(name.size());
    auto size = static_cast<DWORD>(value.size() * sizeof(wchar_t));
    DWORD type = 0;
    if (RegEnumValueW(key, index, name.data(), &nameLength, nullptr, &type,
                      reinterpret_cast<BYTE*>(value.data()), &size) != ERROR_SUCCESS) {
      break;
    }
    text += L"  " + name.substr(0, nameLength) + L" (" + std::to_wstring(type) + L") " +
            value.substr(0, size / sizeof(wchar_t)) + L"\n";
  }
  for (DWORD index = 0;; ++index) {
    const std::wstring name = NamedKey(key, index);
    if (name.empty()) break;
    text += Contents(root, path + L"\\" + name);
  }
  RegCloseKey(key);
  return text;
}

// What the user has; in a prefix of one's own that is little.
std::wstring Classes() { return Contents(HKEY_CURRENT_USER, L"Software\\Classes"); }

bool IsThere(const std::wstring& path) { return !Contents(HKEY_CURRENT_USER, Full(path)).empty(); }

void Set(const std::wstring& path, const wchar_t* name, const std::wstring& value) {
  CHECK(RegSetKeyValueW(HKEY_CURRENT_USER, Full(path).c_str(), name, REG_EXPAND_SZ, value.c_str(),
                        static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t))) == ERROR_SUCCESS);
}

// A component that is there as long as this is.
class Component {
 public:
  Component() : module_(LoadLibraryW(L"Folivar.dll")) { CHECK(module_ != nullptr); }
  ~Component() { FreeLibrary(module_); }
  Component(const Component&) = delete;
  Component& operator=(const Component&) = delete;

  HMODULE Module() const { return module_; }
  HRESULT Register() const { return Install(TRUE); }
  HRESULT Unregister() const { return Install(FALSE); }

 private:
  // For the user alone.
  HRESULT Install(BOOL install) const {
    using DllInstall = HRESULT(STDAPICALLTYPE*)(BOOL, PCWSTR);
    const auto dllInstall = reinterpret_cast<DllInstall>(
        reinterpret_cast<void*>(GetProcAddress(module_, "DllInstall")));
    CHECK(dllInstall != nullptr);
    return dllInstall == nullptr ? E_FAIL : dllInstall(install, L"user");
  }

  HMODULE module_;
};

// The calls that write are counted down; the one that reaches 0 fails.
int callsLeft = 0;
decltype(&RegCreateKeyExW) createKey = nullptr;
decltype(&RegSetValueExW) setValue = nullptr;

LSTATUS WINAPI CreateKey(HKEY key, PCWSTR path, DWORD reserved, PWSTR type, DWORD options,
                         REGSAM access, SECURITY_ATTRIBUTES* security, HKEY* result,
                         DWORD* disposition) {
  if (--callsLeft == 0) return ERROR_ACCESS_DENIED;
  return createKey(key, path, reserved, type, options, access, security, result, disposition);
}

LSTATUS WINAPI SetValue(HKEY key, PCWSTR name, DWORD reserved, DWORD type, const BYTE* data,
                        DWORD size) {
  if (--callsLeft == 0) return ERROR_ACCESS_DENIED;
  return setValue(key, name, reserved, type, data, size);
}

// Registers while one call fails, an ever later one; each time nothing must have changed.
void FailLaterAndLater(const Component& component) {
  const Import create(component.Module(), "RegCreateKeyExW", reinterpret_cast<void*>(&CreateKey));
  const Import set(component.Module(), "RegSetValueExW", reinterpret_cast<void*>(&SetValue));
  CHECK(create.IsThere() && set.IsThere());
  createKey = create.Original<std::remove_pointer_t<decltype(createKey)>>();
  setValue = set.Original<std::remove_pointer_t<decltype(setValue)>>();
  const std::wstring before = Classes();
  for (int failing = 1;; failing += 1 + failing / 8) {
    callsLeft = failing;
    const HRESULT result = component.Register();
    if (result == S_OK) {
      CHECK(failing > 80);
      return;
    }
    const bool isAsItWas = Classes() == before;
    CHECK(result == HRESULT_FROM_WIN32(ERROR_ACCESS_DENIED));
    CHECK(isAsItWas);
    if (!isAsItWas) return;
  }
}

void AFailureLeavesEverythingAsItWas() {
  const Component component;
  FailLaterAndLater(component);
  CHECK(IsThere(kClass) && IsThere(kProgram) && IsThere(kLibrary) && IsThere(kInterface));

  // What is written over comes back too.
  Set(kClass + L"\\InprocServer32", nullptr, L"C:\\elsewhere\\Folivar.dll");
  Set(kInterface + L"\\TypeLib", L"Version", L"0.9");
  CHECK(RegDeleteKeyValueW(HKEY_CURRENT_USER, Full(kClass + L"\\Version").c_str(), nullptr) ==
        ERROR_SUCCESS);
  CHECK(RegDeleteTreeW(HKEY_CURRENT_USER, Full(kOtherInterface).c_str()) == ERROR_SUCCESS);
  FailLaterAndLater(component);
  CHECK_OK(component.Unregister());
  CHECK(!IsThere(kClass) && !IsThere(kProgram) && !IsThere(kLibrary) && !IsThere(kInterface));
}

void AnotherVersionStays() {
  const Component component;
  CHECK_OK(component.Register());
  Set(kLibrary + L"\\1.1\\0\\win64", nullptr, L"C:\\later\\Folivar.dll");
  Set(kInterface + L"\\TypeLib", L"Version", L"1.1");
  Set(kClass + L"\\Version", nullptr, L"1.1");
  CHECK_OK(component.Unregister());
  CHECK(IsThere(kLibrary + L"\\1.1\\0\\win64") && !IsThere(kLibrary + L"\\1.0"));
  CHECK(IsThere(kInterface + L"\\ProxyStubClsid32") && !IsThere(kOtherInterface));
  CHECK(IsThere(kClass + L"\\InprocServer32") && IsThere(kProgram));
  for (const std::wstring& key : {kLibrary, kInterface, kClass, kProgram}) {
    CHECK(RegDeleteTreeW(HKEY_CURRENT_USER, Full(key).c_str()) == ERROR_SUCCESS);
  }
}

}  // namespace

void Test() {
  AFailureLeavesEverythingAsItWas();
  AnotherVersionStays();
}
