#pragma once

#include <string>

#include "folivar/base/Error.h"

namespace folivar {

// Runs what a member does; an Error on the way out is told whose failure it is, for failures found
// far below the member: "PDFPage.DrawLine: a value of 3e+09 cannot be written". Nothing is made
// unless something fails.
template <class Action>
decltype(auto) InMember(const char* member, Action action) {
  try {
    return action();
  } catch (const Error& error) {
    throw error.WithMember(member);
  }
}

// For a member that several classes share.
template <class Action>
decltype(auto) InMember(const char* className, const char* member, Action action) {
  try {
    return action();
  } catch (const Error& error) {
    throw error.WithMember(std::string(className) + "." + member);
  }
}

// Runs what is done with one object of many; an Error on the way out is told which it is. `name`
// makes the name, and is called only then.
template <class Name, class Action>
decltype(auto) OfObject(Name name, Action action) {
  try {
    return action();
  } catch (const Error& error) {
    throw error.WithObject(name());
  }
}

// Runs what a member does with its own object, which has many of its kind beside it.
template <class Name, class Action>
decltype(auto) InMemberOf(Name name, const char* member, Action action) {
  return InMember(member, [&]() -> decltype(auto) { return OfObject(name, action); });
}

}  // namespace folivar
