#include "folivar/document/KelCollection.h"

#include <utility>

namespace folivar {

void KelCollection::Add(Value item, TextView key, const Value& before, const Value& after) {
  values_.Add(std::move(item), key, before, after);
}

}  // namespace folivar
