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
  // What kind of failure it is; the numbers are those of automation.
  enum : std::int32_t {
    kUnknownImageType = -2147220504,  // 0x80040000 plus 1000: no picture that can be read
    kInvalidArgument = 5,  // an unknown key, two places, an object of another document, no UTF-8
    kOverflow = 6,         // a number, text or file that is too large for where it goes
    kSubscriptOutOfRange = 9,  // a position that does not exist, a Pop without its Push
    kDivisionByZero = 11,      // the ratio of a picture without pixels
    kTypeMismatch = 13,        // no number or no flag where one is wanted
    kBadFileName = 52,         // empty, too long, or not a name at all
    kFileNotFound = 53,        // a picture or font file that is not there
    kDiskFull = 61,            // the file that is written does not fit
    kInputPastEnd = 62,        // a picture's file has become shorter
    kPermissionDenied = 70,    // the system lets nobody, or not us
    kPathFileAccess = 75,      // any other failure to read or write a file
    kPathNotFound = 76,        // the folder of a file to be written, or a folder of fonts
    kObjectNotSet = 91,        // null where an object is wanted, an owner that is gone, no file yet
    kInvalidNull = 94,         // the null value where a number or a flag is wanted
    kInvalidFileFormat = 321,  // a font file that is damaged or has no TrueType outlines
    kActionNotSupported = 445,  // a TrueType face where there is no TrueType font
    kKeyInUse = 457,            // another member has the key, whatever the case of its letters
  };

  Error(std::int32_t number, const std::string& text);

  // One of the numbers above, or what a port of the host's raises.
  std::int32_t Number() const noexcept { return number_; }

  // what() is the text, in UTF-8.

  static Error InvalidArgument(const std::string& text);
  static Error Overflow(const std::string& text);
  static Error SubscriptOutOfRange(const std::string& text);
  static Error DivisionByZero(const std::string& text);
  static Error TypeMismatch(const std::string& text);
  static Error BadFileName(const std::string& text);
  static Error FileNotFound(const std::string& text);
  static Error DiskFull(const std::string& text);
  static Error InputPastEnd(const std::string& text);
  static Error PermissionDenied(const std::string& text);
  static Error PathFileAccess(const std::string& text);
  static Error PathNotFound(const std::string& text);
  static Error ObjectNotSet(const std::string& text);
  static Error InvalidNull(const std::string& text);
  static Error InvalidFileFormat(const std::string& text);
  static Error ActionNotSupported(const std::string& text);
  static Error KeyInUse(const std::string& text);
  static Error UnknownImageType(const std::string& text);

 private:
  std::int32_t number_;
};

}  // namespace folivar
