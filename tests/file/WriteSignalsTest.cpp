#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <ctime>

#include "folivar/file/WriteSignals.h"

namespace folivar::test {
namespace {

bool IsPending(int signal) {
  sigset_t pending;
  sigpending(&pending);
  return sigismember(&pending, signal) == 1;
}

bool IsHeldBack(int signal) {
  sigset_t held;
  pthread_sigmask(SIG_BLOCK, nullptr, &held);
  return sigismember(&held, signal) == 1;
}

void HoldBack(int signal) {
  sigset_t one;
  sigemptyset(&one);
  sigaddset(&one, signal);
  pthread_sigmask(SIG_BLOCK, &one, nullptr);
}

// What a write into a pipe that nobody reads sets errno to.
int ReasonOfAWriteToNobody() {
  std::array<int, 2> ends{};
  if (pipe(ends.data()) != 0) std::abort();
  close(ends[0]);
  {
    const WriteSignals held;
    if (write(ends[1], "x", 1) != -1) std::abort();
  }
  const int reason = errno;
  close(ends[1]);
  return reason;
}

// In a process of its own, which a signal would end: 0 when `isTrue`.
template <class IsTrue>
void ExpectInAProcessOfItsOwn(IsTrue isTrue) {
  EXPECT_EXIT(std::_Exit(isTrue() ? 0 : 1), testing::ExitedWithCode(0), "");
}

TEST(WriteSignals, ARefusedWriteEndsNoProgramAndKeepsItsReason) {
  ExpectInAProcessOfItsOwn([] { return ReasonOfAWriteToNobody() == EPIPE; });
}

TEST(WriteSignals, NothingIsLeftBehind) {
  ExpectInAProcessOfItsOwn([] {
    ReasonOfAWriteToNobody();
    return !IsPending(SIGPIPE) && !IsHeldBack(SIGPIPE) && !IsHeldBack(SIGXFSZ);
  });
}

TEST(WriteSignals, TheHostsHandlerIsNeitherCalledNorChanged) {
  ExpectInAProcessOfItsOwn([] {
    const auto handler = [](int) { std::_Exit(2); };
    std::signal(SIGPIPE, handler);
    ReasonOfAWriteToNobody();
    return std::signal(SIGPIPE, SIG_DFL) == static_cast<void (*)(int)>(handler);
  });
}

TEST(WriteSignals, WhatTheHostHoldsBackStaysSo) {
  ExpectInAProcessOfItsOwn([] {
    HoldBack(SIGPIPE);
    ReasonOfAWriteToNobody();
    return IsHeldBack(SIGPIPE) && !IsPending(SIGPIPE);
  });
}

TEST(WriteSignals, ASignalThatWasPendingBeforeStaysSo) {
  ExpectInAProcessOfItsOwn([] {
    HoldBack(SIGPIPE);
    raise(SIGPIPE);
    ReasonOfAWriteToNobody();
    return IsPending(SIGPIPE);
  });
}

}  // namespace
}  // namespace folivar::test
