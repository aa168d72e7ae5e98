#pragma once

#include <memory>

#include "folivar/base/Api.h"
#include "folivar/base/Text.h"

namespace folivar {

// The key that a member of a collection was added with. It takes no more than a pointer until there
// is one: most members have none.
class FOLIVAR_API MemberKey {
 public:
  // An empty key is none. Raises 5 for text that is not UTF-8.
  explicit MemberKey(TextView key)
      : text_(key.IsEmpty() ? nullptr : std::make_unique<const Text>(key)) {}

  // Empty for none.
  const Text& AsText() const;

 private:
  std::unique_ptr<const Text> text_;
};

}  // namespace folivar
