#include "folivar/base/Error.h"

namespace folivar {

Error::Error(std::int32_t number, const std::string& text)
    : std::runtime_error(text), number_(number) {}

Error Error::InvalidArgument(const std::string& text) { return {kInvalidArgument, text}; }
Error Error::Overflow(const std::string& text) { return {kOverflow, text}; }
Error Error::SubscriptOutOfRange(const std::string& text) { return {kSubscriptOutOfRange, text}; }
Error Error::DivisionByZero(const std::string& text) { return {kDivisionByZero, text}; }
Error Error::TypeMismatch(const std::string& text) { return {kTypeMismatch, text}; }
Error Error::BadFileName(const std::string& text) { return {kBadFileName, text}; }
Error Error::FileNotFound(const std::string& text) { return {kFileNotFound, text}; }
Error Error::DiskFull(const std::string& text) { return {kDiskFull, text}; }
Error Error::InputPastEnd(const std::string& text) { return {kInputPastEnd, text}; }
Error Error::PermissionDenied(const std::string& text) { return {kPermissionDenied, text}; }
Error Error::PathFileAccess(const std::string& text) { return {kPathFileAccess, text}; }
Error Error::PathNotFound(const std::string& text) { return {kPathNotFound, text}; }
Error Error::ObjectNotSet(const std::string& text) { return {kObjectNotSet, text}; }
Error Error::InvalidNull(const std::string& text) { return {kInvalidNull, text}; }
Error Error::InvalidFileFormat(const std::string& text) { return {kInvalidFileFormat, text}; }
Error Error::ActionNotSupported(const std::string& text) { return {kActionNotSupported, text}; }
Error Error::KeyInUse(const std::string& text) { return {kKeyInUse, text}; }
Error Error::UnknownImageType(const std::string& text) { return {kUnknownImageType, text}; }

}  // namespace folivar
