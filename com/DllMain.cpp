// What the DLL exports; Folivar.def lists the names.

#include "com/ClassFactory.h"
#include "com/ComPrefix.h"
#include "com/Guard.h"
#include "com/HostWarnings.h"
#include "com/Module.h"
#include "com/Registration.h"
#include "com/TypeLibrary.h"

namespace com = folivar::com;

extern "C" BOOL WINAPI DllMain(HINSTANCE handle, DWORD reason, void* processEnds) {
  if (reason == DLL_PROCESS_ATTACH) {
    com::Module::SetHandle(handle);
  } else if (reason == DLL_PROCESS_DETACH && processEnds == nullptr) {
    // At the end of the process the system's libraries may be gone already.
    com::TypeLibrary::Release();
  }
  return TRUE;
}

STDAPI DllGetClassObject(REFCLSID classId, REFIID iid, void** result) {
  if (result == nullptr) return E_POINTER;
  *result = nullptr;
  if (classId != __uuidof(PDFDocument)) return CLASS_E_CLASSNOTAVAILABLE;
  return com::ClassFactory::Instance().QueryInterface(iid, result);
}

STDAPI DllCanUnloadNow() {
  return com::Module::Objects() == 0 && com::Module::Locks() == 0 ? S_OK : S_FALSE;
}

STDAPI DllRegisterServer() {
  return com::Guarded(IID_NULL,
                      [] { com::Registration::Register(com::RegistrationScope::kMachine); });
}

STDAPI DllUnregisterServer() {
  return com::Guarded(IID_NULL,
                      [] { com::Registration::Unregister(com::RegistrationScope::kMachine); });
}

// regsvr32 /n /i:user registers for the user who calls it, who needs no rights for that.
STDAPI DllInstall(BOOL install, PCWSTR commandLine) {
  const bool isForUser = commandLine != nullptr && lstrcmpiW(commandLine, L"user") == 0;
  const auto scope = isForUser ? com::RegistrationScope::kUser : com::RegistrationScope::kMachine;
  return com::Guarded(IID_NULL, [&] {
    install != FALSE ? com::Registration::Register(scope) : com::Registration::Unregister(scope);
  });
}

extern "C" void STDAPICALLTYPE FolivarSetWarningCallback(FolivarWarningCallback callback,
                                                         void* context) {
  com::HostWarnings::SetCallback(callback, context);
}
