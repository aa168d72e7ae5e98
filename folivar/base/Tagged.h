#pragma once

#include <memory>

#include "folivar/base/Api.h"
#include "folivar/base/Object.h"
#include "folivar/base/Value.h"

namespace folivar {

// An object that carries a value for the host: any number, text, object or value of the host's own.
// Never written to the file. Empty at first.
class FOLIVAR_API Tagged : public Object {
 public:
  const Value& Tag() const;
  void SetTag(Value tag);

 protected:
  Tagged() = default;
  ~Tagged() override;

 private:
  struct Held {
    Value value;
    std::unique_ptr<Held> next;  // the next one that ends
  };

  std::unique_ptr<Held> tag_;  // null until it is set: few are
};

}  // namespace folivar
