#pragma once

namespace folivar {

// A link in a ring, with the links before and behind it; a ring of its own at first. Who lets go of
// one that is not alone leaves first.
class RingLink {
 public:
  RingLink() = default;
  RingLink(const RingLink&) = delete;
  RingLink& operator=(const RingLink&) = delete;

  bool IsAlone() const { return next_ == this; }
  // Itself when it is alone.
  RingLink& Next() const { return *next_; }

  // Is alone afterwards.
  void Leave() {
    previous_->next_ = next_;
    next_->previous_ = previous_;
    previous_ = this;
    next_ = this;
  }
  // For a link that is alone.
  void JoinBefore(RingLink& link) {
    previous_ = link.previous_;
    next_ = &link;
    previous_->next_ = this;
    next_->previous_ = this;
  }

 private:
  RingLink* previous_ = this;
  RingLink* next_ = this;
};

}  // namespace folivar
