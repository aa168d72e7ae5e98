#include "com/TypeLibrary.h"

#include <wrl/client.h>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <mutex>
#include <string>
#include <utility>

#include "com/Module.h"
#include "folivar/base/Error.h"

namespace folivar::com {
namespace {

using Microsoft::WRL::ComPtr;

void RaiseIfFailed(HRESULT result) {
  if (FAILED(result)) throw Error(result, "The type library cannot be read");
}

bool IsNumber(VARTYPE type) { return type >= VT_I2 && type <= VT_R8; }

// Of the view for late binding, where results are no parameters.
MemberType MemberFrom(const FUNCDESC& function) {
  MemberType member{function.memid, function.invkind, {}, false};
  const auto count = static_cast<std::size_t>(function.cParams);
  for (std::size_t i = 0; i < count; ++i) {
    const TYPEDESC& type = function.lprgelemdescParam[i].tdesc;
    const bool refers = type.vt == VT_PTR && IsNumber(type.lptdesc->vt);
    member.referredTypes.push_back(refers ? type.lptdesc->vt : static_cast<VARTYPE>(VT_EMPTY));
  }
  const VARTYPE result = function.elemdescFunc.tdesc.vt;
  member.givesObject = result == VT_PTR || result == VT_DISPATCH || result == VT_VARIANT;
  return member;
}

std::vector<MemberType> MembersOf(ITypeInfo* info) {
  std::vector<MemberType> members;
  FUNCDESC* function = nullptr;
  for (UINT i = 0; SUCCEEDED(info->GetFuncDesc(i, &function)); ++i) {
    const auto release = [info](FUNCDESC* read) { info->ReleaseFuncDesc(read); };
    const std::unique_ptr<FUNCDESC, decltype(release)> read(function, release);
    members.push_back(MemberFrom(*read));
  }
  return members;
}

struct Entry {
  GUID id;
  ComPtr<ITypeInfo> info;
  InterfaceType type;
};

std::mutex mutex;

// What has been read so far. A pointer, because at the end of the process the system's libraries
// may be gone before this one, and then nothing may be let go.
struct Contents {
  ComPtr<ITypeLib> typeLibrary;
  std::vector<std::unique_ptr<Entry>> entries;
};
constinit Contents* contents = nullptr;

Contents& ContentsRead() {
  if (contents == nullptr) {
    auto read = std::make_unique<Contents>();
    RaiseIfFailed(LoadTypeLibEx(Module::Path().c_str(), REGKIND_NONE, &read->typeLibrary));
    contents = read.release();
  }
  return *contents;
}

const Entry& EntryOf(const GUID& id) {
  const std::lock_guard lock(mutex);
  Contents& read = ContentsRead();
  const auto found = std::find_if(read.entries.begin(), read.entries.end(),
                                  [&](const auto& entry) { return entry->id == id; });
  if (found != read.entries.end()) return **found;
  auto entry = std::make_unique<Entry>();
  entry->id = id;
  RaiseIfFailed(read.typeLibrary->GetTypeInfoOfGuid(id, &entry->info));
  entry->type = {entry->info.Get(), MembersOf(entry->info.Get())};
  return *read.entries.emplace_back(std::move(entry));
}

}  // namespace

bool MemberType::HasReferences() const {
  return std::any_of(referredTypes.begin(), referredTypes.end(),
                     [](VARTYPE type) { return type != VT_EMPTY; });
}

const MemberType* InterfaceType::Find(DISPID id, WORD kinds) const {
  const auto found = std::find_if(members.begin(), members.end(), [&](const MemberType& member) {
    return member.id == id && (member.kind & kinds) != 0;
  });
  return found == members.end() ? nullptr : &*found;
}

const InterfaceType& TypeLibrary::TypeOf(const IID& interfaceId) {
  return EntryOf(interfaceId).type;
}

ITypeInfo* TypeLibrary::ClassInfoOf(const CLSID& classId) { return EntryOf(classId).info.Get(); }

ITypeLib* TypeLibrary::Library() {
  const std::lock_guard lock(mutex);
  return ContentsRead().typeLibrary.Get();
}

void TypeLibrary::Release() { delete std::exchange(contents, nullptr); }

}  // namespace folivar::com
