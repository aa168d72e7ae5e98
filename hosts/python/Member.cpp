#include "hosts/python/Member.h"

#include <string_view>
#include <vector>

#include "hosts/python/Arguments.h"
#include "hosts/python/Signature.h"
#include "hosts/python/State.h"

namespace folivar::python {
namespace {

constexpr std::string_view kModule = "folivar.";

bool IsFilled(const folivar_parameter& parameter) {
  return (parameter.traits & FOLIVAR_FILLED) != 0;
}

bool IsOptional(const folivar_parameter& parameter) {
  return (parameter.traits & FOLIVAR_OPTIONAL) != 0;
}

std::string DocumentationOf(const Member& member) {
  if (member.IsProperty()) return member.Description().help;
  return member.IsEvent() ? SignatureOfEvent(member.Description())
                          : SignatureOf(member.Description());
}

}  // namespace

Member::Member(const State& state, const folivar_class& owner, const folivar_member& description,
               Kind kind)
    : description_(description),
      kind_(kind),
      fullName_(std::string(owner.name) + "." + description.name),
      resultEnumeration_(state.EnumerationOf(description.of)),
      isTag_((description.traits & FOLIVAR_TAG) != 0),
      documentation_(DocumentationOf(*this)),
      filledName_(std::string(kModule) + "_" + owner.name + "_" + description.name) {
  for (const folivar_parameter& parameter : Parameters()) {
    if (!IsFilled(parameter)) ++givenCount_;
    if (!IsFilled(parameter) && !IsOptional(parameter)) requiredCount_ = givenCount_;
  }
}

bool Member::Prepare(PyObject* module) {
  if (Parameters().size() > Arguments::kMost) {
    PyErr_Format(PyExc_ImportError, "%s has too many parameters", FullName());
    return false;
  }
  std::vector<PyStructSequence_Field> fields;
  for (const folivar_parameter& parameter : Parameters().subspan(givenCount_)) {
    fields.push_back({parameter.name, nullptr});
  }
  if (fields.empty()) return true;
  const int count = static_cast<int>(fields.size());
  fields.push_back({nullptr, nullptr});
  PyStructSequence_Desc tuple = {filledName_.c_str(), description_.help, fields.data(), count};
  filledType_ = PyStructSequence_NewType(&tuple);
  return filledType_ != nullptr &&
         PyObject_SetAttrString(module, filledName_.c_str() + kModule.size(),
                                reinterpret_cast<PyObject*>(filledType_)) == 0;
}

}  // namespace folivar::python
