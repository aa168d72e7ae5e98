#include "hosts/python/State.h"

#include <algorithm>
#include <string_view>

namespace folivar::python {

const Class* State::ClassOf(const PyTypeObject* type) const {
  const auto found = std::find_if(classes.begin(), classes.end(),
                                  [&](const Class& candidate) { return candidate.Type() == type; });
  return found == classes.end() ? nullptr : &*found;
}

const Class& State::ClassOfAny(const PyTypeObject* type) {
  const State* state = newest_;
  while (state->ClassOf(type) == nullptr) state = state->earlier_;
  return *state->ClassOf(type);
}

const Enumeration* State::EnumerationOf(const char* name) const {
  if (name == nullptr) return nullptr;
  const auto found =
      std::find_if(enumerations.begin(), enumerations.end(), [&](const Enumeration& candidate) {
        return candidate.Description().name == std::string_view(name);
      });
  return found == enumerations.end() ? nullptr : &*found;
}

}  // namespace folivar::python
