#include "folivar/base/Error.h"

#include <cstddef>
#include <utility>

namespace folivar {
namespace {

// what() would end at a NUL, which a host's name may hold: it is shown as "\0".
std::string WithVisibleNuls(std::string text) {
  for (std::size_t nul = text.find('\0'); nul != std::string::npos; nul = text.find('\0', nul)) {
    text.replace(nul, 1, "\\0");
  }
  return text;
}

}  // namespace

Error::Error(std::int32_t number, const std::string& cause)
    : Error(number, Words{{}, {}, cause, {}}) {}

Error::Error(std::int32_t number, Words words)
    : std::runtime_error(TextOf(words)),
      number_(number),
      words_(std::make_shared<const Words>(std::move(words))) {}

std::string Error::TextOf(const Words& words) {
  if (!words.description.empty()) {
    return words.description + WithVisibleNuls(" (" + words.cause + ")");
  }
  std::string text;
  for (const std::string* part : {&words.member, &words.object}) {
    if (!part->empty()) text += *part + ": ";
  }
  return WithVisibleNuls(text + words.cause);
}

const std::string& Error::Member() const noexcept { return words_->member; }
const std::string& Error::Object() const noexcept { return words_->object; }
const std::string& Error::Cause() const noexcept { return words_->cause; }

const char* Error::Description() const noexcept {
  return words_->description.empty() ? what() : words_->description.c_str();
}

Error Error::WithMember(const std::string& member) const {
  Words words = *words_;
  words.member = member;
  return {number_, std::move(words)};
}

Error Error::WithObject(const std::string& object) const {
  if (words_->object == object) return *this;
  Words words = *words_;
  words.object = words.object.empty() ? object : words.object + " of " + object;
  return {number_, std::move(words)};
}

Error Error::InvalidArgument(const std::string& cause) { return {kInvalidArgument, cause}; }
Error Error::Overflow(const std::string& cause) { return {kOverflow, cause}; }
Error Error::SubscriptOutOfRange(const std::string& cause) { return {kSubscriptOutOfRange, cause}; }
Error Error::DivisionByZero(const std::string& cause) { return {kDivisionByZero, cause}; }
Error Error::TypeMismatch(const std::string& cause) { return {kTypeMismatch, cause}; }
Error Error::BadFileName(const std::string& cause) { return {kBadFileName, cause}; }
Error Error::FileNotFound(const std::string& cause) { return {kFileNotFound, cause}; }
Error Error::DiskFull(const std::string& cause) { return {kDiskFull, cause}; }
Error Error::InputPastEnd(const std::string& cause) { return {kInputPastEnd, cause}; }
Error Error::PermissionDenied(const std::string& cause) { return {kPermissionDenied, cause}; }
Error Error::PathFileAccess(const std::string& cause) { return {kPathFileAccess, cause}; }
Error Error::PathNotFound(const std::string& cause) { return {kPathNotFound, cause}; }
Error Error::ObjectNotSet(const std::string& cause) { return {kObjectNotSet, cause}; }
Error Error::InvalidNull(const std::string& cause) { return {kInvalidNull, cause}; }
Error Error::InvalidFileFormat(const std::string& cause) { return {kInvalidFileFormat, cause}; }
Error Error::ActionNotSupported(const std::string& cause) { return {kActionNotSupported, cause}; }
Error Error::KeyInUse(const std::string& cause) { return {kKeyInUse, cause}; }
Error Error::UnknownImageType(const std::string& description, const std::string& cause) {
  return {kUnknownImageType, Words{{}, {}, cause, WithVisibleNuls(description)}};
}

}  // namespace folivar
