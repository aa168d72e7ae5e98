#pragma once

#include <Python.h>

#include <cstddef>
#include <span>
#include <string>

#include "hosts/c/folivar.h"

namespace folivar::python {

class Enumeration;
class State;

// A member of a class, or an event, with what calls of it need.
class Member {
 public:
  enum class Kind { kMember, kEvent };

  Member(const State& state, const folivar_class& owner, const folivar_member& description,
         Kind kind);

  // Makes what can fail, and adds to the module what it has to find. False with Python's error set.
  bool Prepare(PyObject* module);

  const folivar_member& Description() const { return description_; }
  const char* Name() const { return description_.name; }
  // "PDFPage.DrawText"
  const char* FullName() const { return fullName_.c_str(); }
  // "DrawText($self, Text, x, y)\n--\n\nDraws ...", of which Python makes a signature.
  const char* Documentation() const { return documentation_.c_str(); }

  std::span<const folivar_parameter> Parameters() const {
    return {description_.parameters, description_.parameter_count};
  }
  // How many of them a caller may give, and has to; those that the member fills come behind.
  std::size_t GivenCount() const { return givenCount_; }
  std::size_t RequiredCount() const { return requiredCount_; }

  bool Does(folivar_action action) const { return (description_.actions & action) != 0; }
  // Python has no properties with parameters; they are methods too.
  bool IsProperty() const { return !IsEvent() && !Does(FOLIVAR_CALL) && Parameters().empty(); }
  bool IsEvent() const { return kind_ == Kind::kEvent; }
  bool IsLong() const { return (description_.traits & FOLIVAR_LONG_CALL) != 0; }
  // Whether it takes any value of Python's: of the properties without a type, tags alone do.
  bool IsTag() const { return isTag_; }

  // The enumeration that it gives a value of; null for none.
  const Enumeration* ResultEnumeration() const { return resultEnumeration_; }
  // The type of the tuple that it fills, which pickle finds as folivar._PDFPage_GetCurPos; null for
  // none.
  PyTypeObject* FilledType() const { return filledType_; }

 private:
  const folivar_member& description_;
  const Kind kind_;
  const std::string fullName_;
  const Enumeration* resultEnumeration_;
  bool isTag_;
  std::size_t givenCount_ = 0;
  std::size_t requiredCount_ = 0;
  std::string documentation_;
  const std::string filledName_;
  PyTypeObject* filledType_ = nullptr;
};

}  // namespace folivar::python
