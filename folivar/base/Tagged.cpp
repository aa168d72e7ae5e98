#include "folivar/base/Tagged.h"

#include <utility>

namespace folivar {

// What a tag holds may have a tag in turn, and so on for as long as there is memory: if each ended
// within the one before, they would use up the call stack. So those whose owners end while a tag
// does wait in a row.
Tagged::~Tagged() {
  static thread_local std::unique_ptr<Held>* waiting = nullptr;
  if (!tag_) return;
  if (waiting != nullptr) {
    tag_->next = std::move(*waiting);
    *waiting = std::move(tag_);
    return;
  }
  std::unique_ptr<Held> doomed = std::move(tag_);
  waiting = &doomed;
  while (doomed) {
    const std::unique_ptr<Held> last = std::move(doomed);
    doomed = std::move(last->next);
  }
  waiting = nullptr;
}

const Value& Tagged::Tag() const {
  static const Value kNone = Value::Empty();
  return tag_ ? tag_->value : kNone;
}

void Tagged::SetTag(Value tag) {
  auto held = std::make_unique<Held>();
  held->value = std::move(tag);
  tag_ = std::move(held);
}

}  // namespace folivar
