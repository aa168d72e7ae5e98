#pragma once

#include <memory>

namespace folivar {

// Whether both point to the same object, or did before it went away.
template <class T>
bool AreSame(const std::weak_ptr<T>& a, const std::weak_ptr<T>& b) {
  return !a.owner_before(b) && !b.owner_before(a);
}

}  // namespace folivar
