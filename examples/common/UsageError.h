#pragma once

#include <stdexcept>

// Arguments that a program does not take.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};
