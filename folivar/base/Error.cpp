#include "folivar/base/Error.h"

namespace folivar {

Error::Error(std::int32_t number, const std::string& text)
    : std::runtime_error(text), number_(number) {}

Error Error::InvalidArgument(const std::string& text) { return {5, text}; }
Error Error::Overflow(const std::string& text) { return {6, text}; }
Error Error::SubscriptOutOfRange(const std::string& text) { return {9, text}; }
Error Error::DivisionByZero(const std::string& text) { return {11, text}; }
Error Error::TypeMismatch(const std::string& text) { return {13, text}; }
Error Error::BadFileName(const std::string& text) { return {52, text}; }
Error Error::FileNotFound(const std::string& text) { return {53, text}; }
Error Error::DiskFull(const std::string& text) { return {61, text}; }
Error Error::InputPastEnd(const std::string& text) { return {62, text}; }
Error Error::PermissionDenied(const std::string& text) { return {70, text}; }
Error Error::PathFileAccess(const std::string& text) { return {75, text}; }
Error Error::PathNotFound(const std::string& text) { return {76, text}; }
Error Error::ObjectNotSet(const std::string& text) { return {91, text}; }
Error Error::InvalidNull(const std::string& text) { return {94, text}; }
Error Error::InvalidFileFormat(const std::string& text) { return {321, text}; }
Error Error::ActionNotSupported(const std::string& text) { return {445, text}; }
Error Error::KeyInUse(const std::string& text) { return {457, text}; }

// The base of user-defined automation errors, 0x80040000, plus 1000.
Error Error::UnknownImageType(const std::string& text) { return {-2147220504, text}; }

}  // namespace folivar
