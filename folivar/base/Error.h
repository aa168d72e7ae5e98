#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

#include "folivar/base/Api.h"

namespace folivar {

// The one exception that the library throws: an automation error number and a text that names what
// failed, which object or file it was, and where. An operation that throws leaves the object as it
// was, unless its own comment says otherwise. (Running out of memory is std::bad_alloc.)
class FOLIVAR_API Error : public std::runtime_error {
 public:
  Error(std::int32_t number, const std::string& text);

  // One of the numbers below.
  std::int32_t Number() const noexcept { return number_; }

  // what() is the text, in UTF-8.

  static Error InvalidArgument(const std::string& text);      // 5
  static Error Overflow(const std::string& text);             // 6
  static Error SubscriptOutOfRange(const std::string& text);  // 9
  static Error DivisionByZero(const std::string& text);       // 11
  static Error TypeMismatch(const std::string& text);         // 13
  static Error BadFileName(const std::string& text);          // 52
  static Error FileNotFound(const std::string& text);         // 53
  static Error DiskFull(const std::string& text);             // 61
  static Error InputPastEnd(const std::string& text);         // 62
  static Error PermissionDenied(const std::string& text);     // 70
  static Error PathFileAccess(const std::string& text);       // 75
  static Error PathNotFound(const std::string& text);         // 76
  static Error ObjectNotSet(const std::string& text);         // 91
  static Error InvalidNull(const std::string& text);          // 94
  static Error InvalidFileFormat(const std::string& text);    // 321
  static Error ActionNotSupported(const std::string& text);   // 445
  static Error KeyInUse(const std::string& text);             // 457
  static Error UnknownImageType(const std::string& text);     // -2147220504

 private:
  std::int32_t number_;
};

}  // namespace folivar
