#pragma once

#include <utility>

#include "folivar/document/Api.h"
#include "folivar/document/Object.h"
#include "folivar/document/Value.h"

namespace folivar {

// An object that carries a value for the host: any number, text, object or value of the host's own.
// Never written to the file. Empty at first.
class FOLIVAR_API Tagged : public Object {
 public:
  const Value& Tag() const { return tag_; }
  void SetTag(Value tag) { tag_ = std::move(tag); }

 protected:
  Tagged() = default;

 private:
  Value tag_ = Value::Empty();
};

}  // namespace folivar
