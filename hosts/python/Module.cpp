// The module "folivar": the object model for Python, made from the library's description of itself.

#include <Python.h>

#include <new>
#include <span>
#include <utility>

#include "hosts/c/folivar.h"
#include "hosts/python/Owned.h"
#include "hosts/python/State.h"

namespace folivar::python {
namespace {

constexpr char kErrorHelp[] =
    "What a member raises that could not do what it was asked: `number` is that of automation, "
    "`member` as in 'PDFPage.DrawLine'";

constexpr char kWarningsHelp[] =
    "warnings(function, /)\n--\n\n"
    "Sets where the warnings of documents that are made from now on go: to a function, which is "
    "called with the text, or to an object with a method `warning`, such as a logger. None goes "
    "back to where the environment variable FOLIVAR_WARNINGS says";

// A new reference; null with Python's error set.
PyObject* FunctionOf(PyObject* given) {
  if (PyCallable_Check(given) != 0) return Owned::Share(given).Give();
  PyObject* const method = PyObject_GetAttrString(given, "warning");
  if (method != nullptr && PyCallable_Check(method) != 0) return method;
  Py_XDECREF(method);
  PyErr_Clear();
  return PyErr_Format(PyExc_TypeError, "warnings: neither a function nor a logger: %R", given);
}

PyObject* SetWarnings(PyObject* module, PyObject* given) {
  Owned function(given == Py_None ? nullptr : FunctionOf(given));
  if (!function && given != Py_None) return nullptr;
  const Owned last(std::exchange(State::Of(module).warnings, function.Give()));
  return Owned::Share(Py_None).Give();
}

PyMethodDef functions[] = {{"warnings", &SetWarnings, METH_O, kWarningsHelp}, {}};

bool AddError(State& state, PyObject* module) {
  const Owned defaults(Py_BuildValue("{siss}", "number", 0, "member", ""));
  if (!defaults) return false;
  state.error = PyErr_NewExceptionWithDoc("folivar.Error", kErrorHelp, nullptr, defaults.Get());
  return state.error != nullptr && PyObject_SetAttrString(module, "Error", state.error) == 0;
}

bool Fill(State& state, PyObject* module) {
  const folivar_library& library = state.description;
  for (const auto& one : std::span(library.enumerations, library.enumeration_count)) {
    if (!state.enumerations.emplace_back(one).AddTo(module)) return false;
  }
  for (const auto& one : std::span(library.classes, library.class_count)) {
    if (!state.classes.emplace_back(state, one).AddTo(module)) return false;
  }
  return AddError(state, module) &&
         PyModule_AddStringConstant(module, "__version__", library.version) == 0;
}

int Execute(PyObject* module) {
  // Handles and types are not shared among interpreters.
  if (PyInterpreterState_GetID(PyInterpreterState_Get()) != 0) {
    PyErr_SetString(PyExc_ImportError, "folivar can be used in the main interpreter only");
    return -1;
  }
  try {
    auto& state = *new State(*folivar_describe());
    *static_cast<State**>(PyModule_GetState(module)) = &state;
    return Fill(state, module) ? 0 : -1;
  } catch (const std::bad_alloc&) {
    PyErr_NoMemory();
    return -1;
  }
}

PyModuleDef_Slot slots[] = {{Py_mod_exec, reinterpret_cast<void*>(&Execute)}, {0, nullptr}};

PyModuleDef definition = {PyModuleDef_HEAD_INIT,
                          "folivar",
                          "PDF documents: the object model of Folivar",
                          sizeof(void*),  // a State
                          functions,
                          slots,
                          nullptr,
                          nullptr,
                          nullptr};

}  // namespace
}  // namespace folivar::python

PyMODINIT_FUNC PyInit_folivar() { return PyModuleDef_Init(&folivar::python::definition); }
