#include "hosts/c/Usage.h"

#include <thread>

#include "hosts/c/folivar_object.h"

namespace folivar::hosts {
namespace {

constexpr std::uintptr_t kLettingGo = 1;

// An even address that no other thread has.
std::uintptr_t ThisThread() {
  alignas(2) static thread_local const char place = 0;
  return reinterpret_cast<std::uintptr_t>(&place);
}

}  // namespace

bool Usage::Enter() noexcept {
  const std::uintptr_t me = ThisThread();
  for (;;) {
    std::uintptr_t user = 0;
    if (user_.compare_exchange_strong(user, me)) {
      depth_ = 1;
      return true;
    }
    if ((user & ~kLettingGo) == me) {
      ++depth_;
      return true;
    }
    if ((user & kLettingGo) == 0) return false;
    std::this_thread::yield();
  }
}

void Usage::Leave() noexcept {
  if (depth_ > 1) {
    --depth_;
    return;
  }
  // What was called may be among those that wait, and this with it.
  const std::shared_ptr<Usage> kept =
      waiting_.load() == nullptr ? nullptr : weak_from_this().lock();
  depth_ = 0;
  user_.store(0);
  if (waiting_.load() != nullptr) LetGoOfWaiting();
}

void Usage::LetWait(folivar_object& object) noexcept {
  object.nextWaiting_ = waiting_.load();
  waiting_.store(&object);
}

void Usage::LetGoOfWaiting() noexcept {
  const std::shared_ptr<Usage> kept = weak_from_this().lock();
  const std::uintptr_t me = ThisThread() | kLettingGo;
  std::uintptr_t user = 0;
  while (waiting_.load() != nullptr && user_.compare_exchange_strong(user, me)) {
    depth_ = 1;
    while (folivar_object* const object = NextWaiting()) object->StopWaiting();
    depth_ = 0;
    user_.store(0);
  }
}

folivar_object* Usage::NextWaiting() noexcept {
  const std::lock_guard lock(holding_);
  folivar_object* const next = waiting_.load();
  if (next != nullptr) waiting_.store(next->nextWaiting_);
  return next;
}

}  // namespace folivar::hosts
