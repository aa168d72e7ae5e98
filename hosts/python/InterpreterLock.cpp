#include "hosts/python/InterpreterLock.h"

#include <unistd.h>

namespace folivar::python {

void InterpreterLock::Take(PyThreadState* released) {
  try {
    PyEval_RestoreThread(released);
  } catch (...) {
    // Python before 3.14 unwinds the threads that want the lock when the program ends, which the
    // library's code on this one's stack does not expect; later ones let them hang, as here.
    for (;;) pause();
  }
}

}  // namespace folivar::python
