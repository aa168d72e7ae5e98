#include "hosts/python/Thrown.h"

#include "hosts/python/Owned.h"

namespace folivar::python {

PyObject* Thrown::Take() {
  PyObject* type = nullptr;
  PyObject* value = nullptr;
  PyObject* traceback = nullptr;
  PyErr_Fetch(&type, &value, &traceback);
  PyErr_NormalizeException(&type, &value, &traceback);
  const Owned ownedType(type);
  const Owned ownedTraceback(traceback);
  if (traceback != nullptr) PyException_SetTraceback(value, traceback);
  return value;
}

void Thrown::Raise(PyObject* thrown) {
  auto* const type = reinterpret_cast<PyObject*>(Py_TYPE(thrown));
  Py_INCREF(type);
  PyErr_Restore(type, thrown, PyException_GetTraceback(thrown));
}

void Thrown::Report(PyObject* thrown) {
  Raise(thrown);
  PyErr_WriteUnraisable(nullptr);
}

}  // namespace folivar::python
