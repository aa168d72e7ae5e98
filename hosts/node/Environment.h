#pragma once

#include <cstdint>
#include <deque>
#include <initializer_list>
#include <memory>
#include <string>
#include <unordered_set>

#include "hosts/c/folivar.h"
#include "hosts/node/NodeApi.h"

namespace folivar::node {

class Environment;
class Invocation;

// What a function of a class's prototype does: the data that Node-API hands it when it is called.
struct Member {
  Environment& environment;
  const folivar_class& type;
  const folivar_member& description;

  // "PDFPage.DrawText"
  std::string Name() const { return std::string(type.name) + "." + description.name; }
};

// All that the module knows of one JavaScript environment: the main thread has one, and each worker
// thread. It lives as long as any object that it made.
class Environment : public std::enable_shared_from_this<Environment> {
 public:
  explicit Environment(napi_env env);
  ~Environment();
  Environment(const Environment&) = delete;
  Environment& operator=(const Environment&) = delete;

  napi_env Env() const { return env_; }

  // Takes over what index.js has for the module: an object with Error, make and report.
  void Connect(napi_value types, napi_value hooks);

  // Kept here for the functions that get it.
  Member& Add(const folivar_class& type, const folivar_member& description);

  // A new object of this class that stands for nothing yet and keeps `kept` alive.
  napi_value Make(const folivar_class& type, napi_value kept) const;
  // Throws what folivar_last_error tells.
  [[noreturn]] void ThrowLastError() const;
  // Tells of an exception that the library has dropped.
  void Report(napi_value thrown) const;
  // Whether it is an object literal, as it stands for arguments by their names.
  bool IsPlainObject(napi_value value) const;

  // Whether a pointer that some object wraps is a Wrapper of this environment, which is not asked:
  // the object may be another module's. (Tagging objects would do, and costs as much again as a
  // call.)
  bool IsWrapper(const void* wrapped) const { return wrappers_.contains(wrapped); }
  void AddWrapper(const void* wrapper) { wrappers_.insert(wrapper); }
  void RemoveWrapper(const void* wrapper) { wrappers_.erase(wrapper); }

  // Never the same twice.
  double NextKey() { return ++lastKey_; }

  // The call of the library that is going on; null for none.
  Invocation* Current() const { return current_; }
  void SetCurrent(Invocation* invocation) { current_ = invocation; }

 private:
  napi_value Hook(const char* name) const;
  napi_value Call(const char* hook, std::initializer_list<napi_value> arguments) const;

  napi_env env_;
  napi_ref types_ = nullptr;
  napi_ref hooks_ = nullptr;
  napi_ref objectPrototype_ = nullptr;
  std::deque<Member> members_;
  std::unordered_set<const void*> wrappers_;
  double lastKey_ = 0;
  Invocation* current_ = nullptr;
};

}  // namespace folivar::node
