#pragma once

#include <Python.h>

#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "hosts/c/folivar.h"
#include "hosts/python/Member.h"

namespace folivar::python {

class State;

// A class of the library as a type of Python's, made from the description of its members.
class Class {
 public:
  Class(State& state, const folivar_class& description);
  Class(const Class&) = delete;
  Class& operator=(const Class&) = delete;

  // Makes the type and adds it to the module. False with Python's error set.
  bool AddTo(PyObject* module);

  State& TheState() const { return state_; }
  PyTypeObject* Type() const { return type_; }
  // "PDFPage", "folivar.PDFPage"
  const char* Name() const { return description_.name; }
  const char* FullName() const { return fullName_.c_str(); }

  // Those that Python shows, events included.
  const std::deque<Member>& Members() const { return members_; }
  // As spelled, else without regard to case; null for none.
  const Member* Find(std::string_view name) const;
  // What Methods::At(place) calls.
  const Member& MethodAt(std::size_t place) const { return *methods_[place]; }

  // The default member; null for none. What has the others too is a collection.
  const Member* Item() const { return item_; }
  const Member* Count() const { return count_; }
  const Member* KeyExists() const { return keyExists_; }
  const Member* Elements() const { return elements_.empty() ? nullptr : &elements_.front(); }
  // Null for classes without keys.
  const Member* Key() const { return key_; }

 private:
  void Add(const folivar_member& description);
  bool IsCollection() const;
  bool PrepareMembers(PyObject* module);
  void DescribeMember(const Member& member);
  std::vector<PyType_Slot> Slots();

  State& state_;
  const folivar_class& description_;
  const std::string fullName_;
  PyTypeObject* type_ = nullptr;
  std::deque<Member> members_;
  std::deque<Member> elements_;  // one, or none
  const Member* item_ = nullptr;
  const Member* count_ = nullptr;
  const Member* keyExists_ = nullptr;
  const Member* key_ = nullptr;
  // What Python describes the members with.
  std::vector<const Member*> methods_;
  std::vector<PyMethodDef> methodTable_;
  std::vector<PyGetSetDef> propertyTable_;
};

}  // namespace folivar::python
