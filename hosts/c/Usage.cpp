#include "hosts/c/Usage.h"

#include "hosts/c/folivar_object.h"

namespace folivar::hosts {
namespace {

// An address that no other thread has.
const void* ThisThread() {
  static thread_local const char place = 0;
  return &place;
}

}  // namespace

bool Usage::Enter() noexcept {
  const void* const me = ThisThread();
  const void* user = nullptr;
  if (!user_.compare_exchange_strong(user, me) && user != me) return false;
  ++depth_;
  return true;
}

void Usage::Leave() noexcept {
  if (--depth_ > 0) return;
  user_.store(nullptr);
  if (waiting_.load() != nullptr) LetGoOfWaiting();
}

void Usage::LetWait(folivar_object& object) noexcept {
  object.nextWaiting_ = waiting_.load();
  waiting_.store(&object);
}

void Usage::LetGoOfWaiting() noexcept {
  while (waiting_.load() != nullptr && Enter()) {
    while (folivar_object* const object = NextWaiting()) object->StopWaiting();
    --depth_;
    if (depth_ > 0) return;
    user_.store(nullptr);
  }
}

folivar_object* Usage::NextWaiting() noexcept {
  const std::lock_guard lock(holding_);
  folivar_object* const next = waiting_.load();
  if (next != nullptr) waiting_.store(next->nextWaiting_);
  return next;
}

}  // namespace folivar::hosts
