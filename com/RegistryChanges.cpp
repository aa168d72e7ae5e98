#include "com/RegistryChanges.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "folivar/base/Error.h"

namespace folivar::com {

void RaiseIfUnchanged(LSTATUS status) {
  if (status != ERROR_SUCCESS) {
    throw Error(HRESULT_FROM_WIN32(static_cast<unsigned long>(status)),
                "The registry cannot be changed");
  }
}

RegistryChanges::~RegistryChanges() {
  std::for_each(oldValues_.rbegin(), oldValues_.rend(), [this](const Value& old) { Write(old); });
  std::for_each(madeKeys_.rbegin(), madeKeys_.rend(),
                [this](const std::wstring& path) { RegDeleteKeyW(root_, path.c_str()); });
}

void RegistryChanges::Set(const std::wstring& path, const wchar_t* name,
                          const std::wstring& value) {
  for (std::size_t end = path.find(L'\\'); end != std::wstring::npos;
       end = path.find(L'\\', end + 1)) {
    MakeKey(path.substr(0, end));
  }
  MakeKey(path);
  if (std::find(madeKeys_.begin(), madeKeys_.end(), path) == madeKeys_.end()) {
    oldValues_.push_back(Read(path, name));
  }
  const auto* bytes = reinterpret_cast<const BYTE*>(value.c_str());
  const std::size_t size = (value.size() + 1) * sizeof(wchar_t);
  RaiseIfUnchanged(Write({path, name, true, REG_SZ, {bytes, bytes + size}}));
}

void RegistryChanges::Keep() {
  madeKeys_.clear();
  oldValues_.clear();
}

void RegistryChanges::MakeKey(const std::wstring& path) {
  // The place for its name comes first: without memory the key is not made.
  std::wstring& made = madeKeys_.emplace_back(path);
  HKEY opened = nullptr;
  DWORD disposition = REG_OPENED_EXISTING_KEY;
  const LSTATUS status =
      RegCreateKeyExW(root_, made.c_str(), 0, nullptr, 0, KEY_READ, nullptr, &opened, &disposition);
  if (status == ERROR_SUCCESS) RegCloseKey(opened);
  if (disposition != REG_CREATED_NEW_KEY) madeKeys_.pop_back();
  RaiseIfUnchanged(status);
}

RegistryChanges::Value RegistryChanges::Read(const std::wstring& path, const wchar_t* name) const {
  Value old{path, name, false, REG_NONE, {}};
  DWORD size = 0;
  const auto read = [&](BYTE* bytes) {
    return RegGetValueW(root_, path.c_str(), name, RRF_RT_ANY | RRF_NOEXPAND, &old.type, bytes,
                        &size);
  };
  LSTATUS status = read(nullptr);
  if (status == ERROR_SUCCESS) {
    old.bytes.resize(size);
    status = read(old.bytes.data());
    old.bytes.resize(size);
    old.isThere = true;
  }
  if (status != ERROR_FILE_NOT_FOUND) RaiseIfUnchanged(status);
  return old;
}

LSTATUS RegistryChanges::Write(const Value& value) const {
  HKEY key = nullptr;
  LSTATUS status = RegOpenKeyExW(root_, value.path.c_str(), 0, KEY_SET_VALUE, &key);
  if (status != ERROR_SUCCESS) return status;
  status = value.isThere ? RegSetValueExW(key, value.name, 0, value.type, value.bytes.data(),
                                          static_cast<DWORD>(value.bytes.size()))
                         : RegDeleteValueW(key, value.name);
  RegCloseKey(key);
  return status;
}

}  // namespace folivar::com
