#pragma once

#include <Python.h>

#include <utility>

namespace folivar::python {

// Python code runs in one thread at a time, in the one that has the interpreter's lock. Whoever
// enters the module has it; a long call lets go of it, and what the library calls meanwhile takes
// it again.
class InterpreterLock {
 public:
  // What the work gives, while which other threads run Python code.
  template <class Work>
  static auto Without(const Work& work) {
    released_ = PyEval_SaveThread();
    const auto result = work();
    Take(std::exchange(released_, nullptr));
    return result;
  }

  // What the work gives, which runs Python code, whether this thread has let go of the lock or not.
  template <class Work>
  static auto With(const Work& work) {
    PyThreadState* const released = std::exchange(released_, nullptr);
    if (released == nullptr) return work();
    Take(released);
    const auto result = work();
    released_ = PyEval_SaveThread();
    return result;
  }

 private:
  // Does not come back once the program ends.
  static void Take(PyThreadState* released);

  // Of a thread that has let go of the lock, what it takes it with.
  static inline constinit thread_local PyThreadState* released_ = nullptr;
};

}  // namespace folivar::python
