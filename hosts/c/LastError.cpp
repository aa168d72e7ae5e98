#include "hosts/c/LastError.h"

#include <exception>
#include <new>
#include <optional>

#include "folivar/base/Error.h"
#include "hosts/c/HostFailure.h"

namespace folivar::hosts {
namespace {

constexpr std::int32_t kOutOfMemory = 7;
constexpr std::int32_t kInternalError = 51;

struct Kept {
  std::optional<Error> error;  // whose texts are told
  folivar_error told = {0, "", "", "", ""};
};

thread_local Kept kept;

std::int32_t Tell(std::int32_t number, const char* text) noexcept {
  kept.told = {number, "", "", text, text};
  kept.error.reset();
  return number;
}

std::int32_t Tell(const Error& error) noexcept {
  kept.error = error;
  kept.told = {error.Number(), error.Member().c_str(), error.Object().c_str(),
               error.Cause().c_str(), error.Description()};
  return error.Number();
}

}  // namespace

std::int32_t LastError::Keep() noexcept {
  try {
    throw;
  } catch (const Error& error) {
    return Tell(error);
  } catch (const HostFailure& failure) {
    return Tell(failure.number, "A function that the library called has failed");
  } catch (const std::bad_alloc&) {
    return Tell(kOutOfMemory, "Out of memory");
  } catch (const std::exception& error) {
    try {
      return Tell(Error(kInternalError, error.what()));
    } catch (...) {
      return Tell(kInternalError, "An unexpected failure");
    }
  } catch (...) {
    return Tell(kInternalError, "An unexpected failure");
  }
}

const folivar_error* LastError::Get() noexcept { return &kept.told; }

}  // namespace folivar::hosts
