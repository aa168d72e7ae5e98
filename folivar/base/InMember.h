#pragma once

#include <string>

#include "folivar/base/Error.h"

namespace folivar {

// Runs what a member does; an Error on the way out gets the member's name in front of its text:
// "PDFPage.DrawLine: a value of 3e+09 cannot be written". For failures found far below the member.
template <class Action>
decltype(auto) InMember(const char* member, Action action) {
  try {
    return action();
  } catch (const Error& error) {
    throw Error(error.Number(), std::string(member) + ": " + error.what());
  }
}

}  // namespace folivar
