#include "Import.h"

#include <cstring>

namespace {

template <class T>
T* At(HMODULE module, ULONG_PTR offset) {
  return reinterpret_cast<T*>(reinterpret_cast<BYTE*>(module) + offset);
}

// Where a module keeps the address of what it imports by this name; null for nowhere.
void** PlaceOf(HMODULE module, const char* name) {
  const auto* dos = At<IMAGE_DOS_HEADER>(module, 0);
  const auto* headers = At<IMAGE_NT_HEADERS>(module, static_cast<ULONG_PTR>(dos->e_lfanew));
  const IMAGE_DATA_DIRECTORY& directory =
      headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
  for (const auto* from = At<IMAGE_IMPORT_DESCRIPTOR>(module, directory.VirtualAddress);
       from->Name != 0; ++from) {
    const auto* names = At<IMAGE_THUNK_DATA>(module, from->OriginalFirstThunk);
    auto* places = At<void*>(module, from->FirstThunk);
    for (; names->u1.AddressOfData != 0; ++names, ++places) {
      if (IMAGE_SNAP_BY_ORDINAL(names->u1.Ordinal)) continue;
      const auto* named = At<IMAGE_IMPORT_BY_NAME>(module, names->u1.AddressOfData);
      if (std::strcmp(reinterpret_cast<const char*>(named->Name), name) == 0) return places;
    }
  }
  return nullptr;
}

}  // namespace

Import::Import(HMODULE module, const char* name, void* replacement)
    : place_(PlaceOf(module, name)), original_(place_ == nullptr ? nullptr : *place_) {
  if (place_ != nullptr) Put(replacement);
}

Import::~Import() {
  if (place_ != nullptr) Put(original_);
}

void Import::Put(void* function) {
  DWORD protection = 0;
  VirtualProtect(place_, sizeof *place_, PAGE_READWRITE, &protection);
  *place_ = function;
  VirtualProtect(place_, sizeof *place_, protection, &protection);
}
