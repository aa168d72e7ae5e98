#pragma once

#include <vector>

#include "com/ComPrefix.h"

namespace folivar::com {

// What late binding needs to know of one member: a method or one side of a property.
struct MemberType {
  // Whether a parameter is a reference to a number.
  bool HasReferences() const;

  DISPID id;
  INVOKEKIND kind;
  // For each parameter the type of the number that it refers to, VT_EMPTY for all others.
  std::vector<VARTYPE> referredTypes;
  // Whether its result may have a default member.
  bool givesObject;
};

struct InterfaceType {
  // The first member of this kind, or of one of these kinds; null when there is none.
  const MemberType* Find(DISPID id, WORD kinds) const;

  ITypeInfo* info;
  std::vector<MemberType> members;
};

// The type library, which is a resource of the DLL itself: nothing need be registered. Read once
// for the process, on first use; from any thread.
class TypeLibrary {
 public:
  // Raises what reading fails with.
  static const InterfaceType& TypeOf(const IID& interfaceId);
  static ITypeInfo* ClassInfoOf(const CLSID& classId);
  static ITypeLib* Library();

  // When the DLL is unloaded.
  static void Release();
};

}  // namespace folivar::com
