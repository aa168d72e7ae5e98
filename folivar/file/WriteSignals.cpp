#include "folivar/file/WriteSignals.h"

#include <cerrno>
#include <ctime>
#include <initializer_list>

namespace folivar {
namespace {

bool IsPending(int signal) {
  sigset_t pending;
  sigpending(&pending);
  return sigismember(&pending, signal) != 0;
}

}  // namespace

WriteSignals::WriteSignals() {
  sigemptyset(&held_);
  sigaddset(&held_, SIGPIPE);
  sigaddset(&held_, SIGXFSZ);
  pthread_sigmask(SIG_BLOCK, &held_, &before_);
  // One that was not held back would not be pending: it would have arrived.
  for (const int signal : {SIGPIPE, SIGXFSZ}) {
    if (sigismember(&before_, signal) != 0 && IsPending(signal)) sigdelset(&held_, signal);
  }
  errno = 0;
}

// Small documents are one write: the system is asked for signals only where one has come.
WriteSignals::~WriteSignals() {
  const int reason = errno;
  if (reason == EPIPE || reason == EFBIG) {
    constexpr timespec kAtOnce = {};
    while (sigtimedwait(&held_, nullptr, &kAtOnce) > 0) {
    }
  }
  pthread_sigmask(SIG_SETMASK, &before_, nullptr);
  errno = reason;
}

}  // namespace folivar
