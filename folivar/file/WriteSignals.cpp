#include "folivar/file/WriteSignals.h"

#include <cerrno>
#include <ctime>
#include <initializer_list>

namespace folivar {

WriteSignals::WriteSignals() {
  sigemptyset(&held_);
  sigaddset(&held_, SIGPIPE);
  sigaddset(&held_, SIGXFSZ);
  pthread_sigmask(SIG_BLOCK, &held_, &before_);
  sigset_t pending;
  sigpending(&pending);
  for (const int signal : {SIGPIPE, SIGXFSZ}) {
    if (sigismember(&pending, signal) != 0) sigdelset(&held_, signal);
  }
}

// Leaves errno as the write has set it.
WriteSignals::~WriteSignals() {
  const int reason = errno;
  constexpr timespec kAtOnce = {};
  while (sigtimedwait(&held_, nullptr, &kAtOnce) > 0) {
  }
  pthread_sigmask(SIG_SETMASK, &before_, nullptr);
  errno = reason;
}

}  // namespace folivar
