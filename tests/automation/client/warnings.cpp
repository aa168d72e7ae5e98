// A host that takes the warnings itself.

#include "Client.h"
#include "com/FolivarWarnings.h"

namespace {

void STDAPICALLTYPE Take(const wchar_t* message, void* context) {
  static_cast<std::vector<std::wstring>*>(context)->emplace_back(message);
}

}  // namespace

void Test() {
  const auto document = NewDocument();
  std::vector<std::wstring> warnings;
  const auto setCallback =
      reinterpret_cast<decltype(&FolivarSetWarningCallback)>(reinterpret_cast<void*>(
          GetProcAddress(GetModuleHandleW(L"Folivar.dll"), "FolivarSetWarningCallback")));
  CHECK(setCallback != nullptr);
  if (setCallback == nullptr) return;
  setCallback(Take, &warnings);
  AddFont(document, L"Nonesuch");
  AddFont(document, L"Helvetica");
  setCallback(nullptr, nullptr);
  CHECK(warnings ==
        std::vector<std::wstring>{
            L"WARNING: Font 'Nonesuch' could not be found.  Using 'Helvetica' instead."});
}
