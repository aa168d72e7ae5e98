#pragma once

#include <cerrno>

#ifndef _WIN32
#include <csignal>
#endif

namespace folivar {

// As long as it lives, bytes that the system refuses cannot end the program: SIGPIPE (nobody reads
// the pipe any more) and SIGXFSZ (the limit of a file's size), which come besides the error, are
// held back from this thread and taken away. Whether one has come, errno tells, which is 0 at its
// beginning. What handlers the process has, and what other threads do, is not touched; neither is
// a signal that was pending before. Windows knows no such signals.
class WriteSignals {
 public:
#ifdef _WIN32
  WriteSignals() { errno = 0; }
#else
  WriteSignals();
  ~WriteSignals();
#endif
  WriteSignals(const WriteSignals&) = delete;
  WriteSignals& operator=(const WriteSignals&) = delete;

#ifndef _WIN32
 private:
  sigset_t held_;    // those that were not pending before
  sigset_t before_;  // what the thread held back
#endif
};

}  // namespace folivar
