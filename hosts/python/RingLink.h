#pragma once

namespace folivar::python {

// A link of a ring, alone at first. It leaves the ring when it goes away.
class RingLink {
 public:
  RingLink() = default;
  ~RingLink() { Leave(); }
  RingLink(const RingLink&) = delete;
  RingLink& operator=(const RingLink&) = delete;

  RingLink& Next() const { return *next_; }

  // Of a link that is alone.
  void JoinBehind(RingLink& other) {
    previous_ = &other;
    next_ = other.next_;
    next_->previous_ = this;
    other.next_ = this;
  }

  void Leave() {
    previous_->next_ = next_;
    next_->previous_ = previous_;
    previous_ = next_ = this;
  }

 private:
  RingLink* previous_ = this;
  RingLink* next_ = this;
};

}  // namespace folivar::python
