#pragma once

#include <cstdint>
#include <string>

#include "folivar/base/Text.h"
#include "folivar/base/Value.h"

// Writes down, in VBScript, what a program does with the component, into the file that the
// environment variable FOLIVAR_RECORD names; without it, nowhere.
class Script {
 public:
  static void Line(const std::string& line);
  // That the expression gives this value.
  static void Expect(const std::string& expression, const std::string& value);

  // Names of variables; each is used again when it is given back.
  static std::string NewName();
  static void GiveBack(const std::string& name);

  static std::string Literal(const folivar::Text& text);
  static std::string Literal(float number);
  static std::string Literal(std::int32_t number);
  static std::string Literal(bool flag);
  static std::string Literal(const folivar::Value& value);
};
