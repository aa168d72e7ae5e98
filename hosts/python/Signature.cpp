#include "hosts/python/Signature.h"

#include <array>
#include <charconv>
#include <span>

namespace folivar::python {
namespace {

// The shortest there is, whatever the locale is.
std::string NumberText(double number) {
  std::array<char, 32> text;
  const auto written = std::to_chars(text.data(), text.data() + text.size(), number);
  return {text.data(), written.ptr};
}

std::string DefaultOf(const folivar_parameter& parameter) {
  switch (parameter.value.kind) {
    case FOLIVAR_FLAG:
      return parameter.value.as.integer != 0 ? "True" : "False";
    case FOLIVAR_INTEGER:
      return std::to_string(parameter.value.as.integer);
    case FOLIVAR_NUMBER:
      return NumberText(parameter.value.as.number);
    case FOLIVAR_TEXT:
      return "'" + std::string(parameter.value.as.text, parameter.value.with.length) + "'";
    default:
      return "...";
  }
}

std::string Documentation(const folivar_member& member, const std::string& parameters) {
  return std::string(member.name) + "($self" + parameters + ")\n--\n\n" + member.help;
}

}  // namespace

std::string SignatureOf(const folivar_member& member) {
  std::string parameters;
  for (const folivar_parameter& parameter : std::span(member.parameters, member.parameter_count)) {
    if ((parameter.traits & FOLIVAR_FILLED) != 0) continue;
    parameters += std::string(", ") + parameter.name;
    if ((parameter.traits & FOLIVAR_OPTIONAL) != 0) parameters += "=" + DefaultOf(parameter);
  }
  return Documentation(member, parameters);
}

std::string SignatureOfEvent(const folivar_member& event) {
  return Documentation(event, ", handler, /");
}

}  // namespace folivar::python
