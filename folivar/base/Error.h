#pragma once

#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>

#include "folivar/base/Api.h"

namespace folivar {

// The one exception that the library throws: what kind of failure it is, as a number, and what
// failed, in words. An operation that throws leaves the object as it was, unless its own comment
// says otherwise. (Running out of memory is std::bad_alloc.)
//
// what() is all the words, in UTF-8: member, object and cause, as far as they are known, parted by
// colons. "PDFDocument.SavePDFFile: PDFBookmark 'Chapter 1': a value of 3e+09 cannot be written".
// A NUL in a host's name is shown as "\0". Of kUnknownImageType there are programs that know the
// description by heart: it comes first, and the cause behind it: "Unknown BMP format (compression
// 1, in file 'a.bmp')".
class FOLIVAR_API Error : public std::runtime_error {
 public:
  // The numbers are those of automation.
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
    kInputPastEnd = 62,        // a picture's file has become shorter or longer
    kPermissionDenied = 70,    // the system lets nobody, or not us
    kPathFileAccess = 75,      // any other failure to read or write a file
    kPathNotFound = 76,        // the folder of a file to be written, or a folder of fonts
    kObjectNotSet = 91,        // null where an object is wanted, an owner that is gone, no file yet
    kInvalidNull = 94,         // the null value where a number or a flag is wanted
    kInvalidFileFormat = 321,  // a font file that is damaged or has no TrueType outlines
    kActionNotSupported = 445,  // a TrueType face where there is no TrueType font
    kKeyInUse = 457,            // another member has the key, whatever the case of its letters
  };

  Error(std::int32_t number, const std::string& cause);
  // An error is copied without copying its words, and never moved from.
  Error(const Error&) noexcept = default;
  Error& operator=(const Error&) noexcept = default;

  // One of the numbers above, or what a port of the host's raises.
  std::int32_t Number() const noexcept { return number_; }

  // The member that the host called, "PDFPage.DrawLine"; a property has one name for reading and
  // writing. Empty where nobody has told.
  const std::string& Member() const noexcept;

  // The object, file or argument that the failure is about: "PDFBookmark 'Chapter 1'",
  // "file 'a.pdf'". May be empty when it is the one whose member was called, or no object.
  const std::string& Object() const noexcept;

  // What went wrong, and where it helps, what would go well.
  const std::string& Cause() const noexcept;

  // What automation hosts are told: the description alone where programs know it by heart, else
  // what().
  const char* Description() const noexcept;

  // The same error, as one of this member; of members that call each other the outer one stays.
  Error WithMember(const std::string& member) const;

  // The same error, as one about this object or a part of it: "Destination" becomes "Destination of
  // PDFBookmark 'Chapter 1'". An object that was told already is not told twice.
  Error WithObject(const std::string& object) const;

  static Error InvalidArgument(const std::string& cause);
  static Error Overflow(const std::string& cause);
  static Error SubscriptOutOfRange(const std::string& cause);
  static Error DivisionByZero(const std::string& cause);
  static Error TypeMismatch(const std::string& cause);
  static Error BadFileName(const std::string& cause);
  static Error FileNotFound(const std::string& cause);
  static Error DiskFull(const std::string& cause);
  static Error InputPastEnd(const std::string& cause);
  static Error PermissionDenied(const std::string& cause);
  static Error PathFileAccess(const std::string& cause);
  static Error PathNotFound(const std::string& cause);
  static Error ObjectNotSet(const std::string& cause);
  static Error InvalidNull(const std::string& cause);
  static Error InvalidFileFormat(const std::string& cause);
  static Error ActionNotSupported(const std::string& cause);
  static Error KeyInUse(const std::string& cause);
  static Error UnknownImageType(const std::string& description, const std::string& cause);

 private:
  struct Words {
    std::string member;
    std::string object;
    std::string cause;
    std::string description;  // empty for most
  };

  Error(std::int32_t number, Words words);
  static std::string TextOf(const Words& words);

  std::int32_t number_;
  std::shared_ptr<const Words> words_;
};

}  // namespace folivar
