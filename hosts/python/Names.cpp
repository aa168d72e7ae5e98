#include "hosts/python/Names.h"

#include <algorithm>
#include <array>

namespace folivar::python {
namespace {

// Names of members are in ASCII.
char Lower(char letter) {
  return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

bool IsSameLetter(char letter, char other) { return Lower(letter) == Lower(other); }

}  // namespace

bool Names::IsSameWithoutCase(std::string_view name, std::string_view other) {
  return std::equal(name.begin(), name.end(), other.begin(), other.end(), IsSameLetter);
}

std::string_view Names::TextIn(const Owned& bytes) {
  if (!bytes) return {};
  return {PyBytes_AsString(bytes.Get()), static_cast<std::size_t>(PyBytes_Size(bytes.Get()))};
}

std::size_t Names::Distance(std::string_view name, std::string_view other) {
  constexpr std::size_t kLongest = 63;
  if (std::max(name.size(), other.size()) > kLongest) return std::max(name.size(), other.size());
  // Of the letters of `name` so far to each beginning of `other`.
  std::array<std::size_t, kLongest + 1> distances;
  for (std::size_t i = 0; i <= other.size(); ++i) distances[i] = i;
  for (const char letter : name) {
    std::size_t across = distances[0]++;
    for (std::size_t i = 0; i < other.size(); ++i) {
      const std::size_t changed = across + (IsSameLetter(letter, other[i]) ? 0 : 1);
      across = distances[i + 1];
      distances[i + 1] = std::min({changed, across + 1, distances[i] + 1});
    }
  }
  return distances[other.size()];
}

std::size_t Names::Find(std::span<const folivar_parameter> parameters, PyObject* name) {
  for (std::size_t i = 0; i < parameters.size(); ++i) {
    if (PyUnicode_CompareWithASCIIString(name, parameters[i].name) == 0) return i;
  }
  const Owned utf8(PyUnicode_AsUTF8String(name));
  PyErr_Clear();  // lone surrogates are in no name
  if (!utf8) return parameters.size();
  const std::string_view wanted = TextIn(utf8);
  const auto found =
      std::find_if(parameters.begin(), parameters.end(), [&](const folivar_parameter& parameter) {
        return IsSameWithoutCase(wanted, parameter.name);
      });
  return static_cast<std::size_t>(found - parameters.begin());
}

}  // namespace folivar::python
