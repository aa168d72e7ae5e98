#pragma once

#include <Python.h>

#include <span>

namespace folivar::python {

class Member;

// An event is a method that takes a handler and gives a function that unsubscribes it.
PyObject* Subscribe(PyObject* self, const Member& event, std::span<PyObject* const> given,
                    PyObject* names);

}  // namespace folivar::python
