#pragma once

#include <string>
#include <vector>

#include "com/ComPrefix.h"

namespace folivar::com {

// Raises what the registry fails with.
void RaiseIfUnchanged(LSTATUS status);

// Texts that are written into the registry, all of them or none: what is not kept is taken back.
class RegistryChanges {
 public:
  explicit RegistryChanges(HKEY root) : root_(root) {}
  ~RegistryChanges();
  RegistryChanges(const RegistryChanges&) = delete;
  RegistryChanges& operator=(const RegistryChanges&) = delete;

  // A value of a key, which is made if need be; null for the key's default value. Raises what the
  // registry fails with.
  void Set(const std::wstring& path, const wchar_t* name, const std::wstring& value);
  void Keep();

 private:
  struct Value {
    std::wstring path;
    const wchar_t* name;
    bool isThere;
    DWORD type;
    std::vector<BYTE> bytes;
  };

  void MakeKey(const std::wstring& path);
  Value Read(const std::wstring& path, const wchar_t* name) const;
  LSTATUS Write(const Value& value) const;

  HKEY root_;
  // Each before those below it.
  std::vector<std::wstring> madeKeys_;
  // Of keys that were there.
  std::vector<Value> oldValues_;
};

}  // namespace folivar::com
