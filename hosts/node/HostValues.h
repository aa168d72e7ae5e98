#pragma once

#include <memory>

#include "hosts/node/Environment.h"
#include "hosts/node/ExternalMemory.h"

namespace folivar::node {

// The values of a document that are JavaScript's own: tags, handlers, where warnings go. It lasts
// as long as the document.
//
// They are properties of a JavaScript object, which the document's wrapper keeps alive, and the
// library only knows their keys. So a garbage collection sees every circle that leads through a
// document, and ends it. After that they are gone.
class HostValues : public std::enable_shared_from_this<HostValues> {
 public:
  // With a new JavaScript object, which nobody keeps alive yet.
  explicit HostValues(std::shared_ptr<Environment> environment);
  ~HostValues();
  HostValues(const HostValues&) = delete;
  HostValues& operator=(const HostValues&) = delete;

  Environment& TheEnvironment() const { return *environment_; }

  // What the document weighs.
  ExternalMemory& Memory() { return memory_; }

  // Null once it is gone.
  napi_value Object() const;

  // One of them, as the library holds it.
  class Kept {
   public:
    Kept(std::shared_ptr<HostValues> values, napi_value value);
    ~Kept();
    Kept(const Kept&) = delete;
    Kept& operator=(const Kept&) = delete;

    Environment& TheEnvironment() const { return values_->TheEnvironment(); }
    // Undefined once it is gone.
    napi_value Value() const;

    // What the library calls when it needs a Kept no more.
    static void Release(void* kept) { delete static_cast<Kept*>(kept); }

   private:
    napi_value Key() const;

    std::shared_ptr<HostValues> values_;
    double key_;
  };

  // For the library, which releases it.
  Kept* Keep(napi_value value) {
    return std::make_unique<Kept>(shared_from_this(), value).release();
  }

 private:
  std::shared_ptr<Environment> environment_;
  ExternalMemory memory_;
  napi_ref object_ = nullptr;  // weak
};

}  // namespace folivar::node
