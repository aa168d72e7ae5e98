#pragma once

#include <windows.h>

// Puts another function in the place of one that a DLL imports, for as long as it lives.
class Import {
 public:
  Import(HMODULE module, const char* name, void* replacement);
  ~Import();
  Import(const Import&) = delete;
  Import& operator=(const Import&) = delete;

  // Whether the DLL imports such a function.
  bool IsThere() const { return place_ != nullptr; }
  template <class Function>
  Function* Original() const {
    return reinterpret_cast<Function*>(original_);
  }

 private:
  void Put(void* function);

  void** place_;
  void* original_;
};
