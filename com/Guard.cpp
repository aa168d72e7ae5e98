#include "com/Guard.h"

#include <wrl/client.h>

#include <cstdint>
#include <exception>
#include <new>
#include <string>

#include "com/Variants.h"
#include "folivar/base/Error.h"
#include "folivar/base/Text.h"

namespace folivar::com {
namespace {

using Microsoft::WRL::ComPtr;

constexpr std::int32_t kOutOfMemory = 7;
constexpr std::int32_t kInternalError = 51;

HRESULT ResultOf(std::int32_t number) {
  return number < 0 ? number : MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, number);
}

// Without memory for it, the error has a number only.
void SetErrorText(const IID& source, const char* text) noexcept {
  SetErrorInfo(0, nullptr);
  ComPtr<ICreateErrorInfo> made;
  ComPtr<IErrorInfo> error;
  if (FAILED(CreateErrorInfo(&made)) || FAILED(made.As(&error))) return;
  try {
    std::wstring description = WideFrom(Text(text));
    made->SetDescription(description.data());
  } catch (...) {
    return;
  }
  std::wstring name = L"Folivar";
  made->SetSource(name.data());
  made->SetGUID(source);
  SetErrorInfo(0, error.Get());
}

HRESULT Report(const IID& source, std::int32_t number, const char* text) noexcept {
  SetErrorText(source, text);
  return ResultOf(number);
}

}  // namespace

HRESULT RunGuarded(const IID& source, void (*action)(void* context), void* context) noexcept {
  try {
    action(context);
    return S_OK;
  } catch (const Error& error) {
    return Report(source, error.Number(), error.Description());
  } catch (const std::bad_alloc&) {
    return Report(source, kOutOfMemory, "Out of memory");
  } catch (const std::exception& error) {
    return Report(source, kInternalError, error.what());
  } catch (...) {
    return Report(source, kInternalError, "An unexpected failure");
  }
}

void RequirePointer(const void* result) {
  if (result == nullptr) throw Error(E_POINTER, "A result has nowhere to go: its pointer is null");
}

}  // namespace folivar::com
