#include "folivar/base/Tagged.h"

#include <utility>

namespace folivar {

Tagged::~Tagged() = default;

const Value& Tagged::Tag() const {
  static const Value kNone = Value::Empty();
  return tag_ ? *tag_ : kNone;
}

void Tagged::SetTag(Value tag) { tag_ = std::make_unique<const Value>(std::move(tag)); }

}  // namespace folivar
