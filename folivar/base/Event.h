#pragma once

#include <bit>
#include <cstddef>
#include <exception>
#include <memory>
#include <type_traits>
#include <utility>

namespace folivar {

class Internal;

// An event that hosts listen to: PDFPage::PageRemoved, say.
//
//   auto subscription = page->PageRemoved().Subscribe([](PDFPage& page) { ... });
//
// Handlers run in the order in which they subscribed. While they run, a handler may unsubscribe
// itself or others, who are then not called any more, subscribe, which counts from the next time
// on, raise the event again, and let go of the event's owner. What a handler throws keeps nobody
// else from being called; the first exception comes out of the member that raised the event, once
// that has done its work.
//
// A list through the subscriptions themselves: an event has no memory of its own, and nothing needs
// to be searched.
template <class... Args>
class Event {
  // In a ring with the links before and behind it; a ring of its own at first.
  struct Link {
    Link() = default;
    Link(const Link&) = delete;
    Link& operator=(const Link&) = delete;

    bool IsAlone() const { return next == this; }
    void Leave() {
      previous->next = next;
      next->previous = previous;
      previous = this;
      next = this;
    }
    // A link that is alone.
    void JoinBefore(Link& link) {
      previous = link.previous;
      next = &link;
      previous->next = this;
      next->previous = this;
    }

    Link* previous = this;
    Link* next = this;
  };

  // What is called: a callable of one pointer that never changes, whose bits are here, or one that
  // is kept elsewhere and shared by the copies.
  class Handler {
   public:
    Handler() = default;
    template <class Callable>
    explicit Handler(Callable callable) {
      if constexpr (sizeof(Callable) == sizeof(void*) && std::is_trivially_copyable_v<Callable> &&
                    std::is_invocable_v<const Callable&, Args...>) {
        static constexpr Kind kKind = {
            [](void* bits, Args... args) { std::bit_cast<Callable>(bits)(args...); }, nullptr,
            nullptr};
        kind_ = &kKind;
        target_ = std::bit_cast<void*>(callable);
      } else {
        struct Kept {
          Callable callable;
          std::size_t holders = 1;
        };
        static constexpr Kind kKind = {
            [](void* kept, Args... args) { static_cast<Kept*>(kept)->callable(args...); },
            [](void* kept) { ++static_cast<Kept*>(kept)->holders; },
            [](void* kept) {
              if (--static_cast<Kept*>(kept)->holders > 0) return;
              const std::unique_ptr<Kept> last(static_cast<Kept*>(kept));
            }};
        kind_ = &kKind;
        target_ = std::make_unique<Kept>(Kept{std::move(callable)}).release();
      }
    }
    Handler(const Handler& other) : kind_(other.kind_), target_(other.target_) {
      if (kind_ != nullptr && kind_->hold != nullptr) kind_->hold(target_);
    }
    Handler(Handler&& other) noexcept
        : kind_(std::exchange(other.kind_, nullptr)), target_(other.target_) {}
    Handler& operator=(Handler other) noexcept {
      std::swap(kind_, other.kind_);
      std::swap(target_, other.target_);
      return *this;
    }
    ~Handler() {
      if (kind_ != nullptr && kind_->release != nullptr) kind_->release(target_);
    }

    bool IsNone() const { return kind_ == nullptr; }
    void operator()(Args... args) const { kind_->call(target_, args...); }

   private:
    struct Kind {
      void (*call)(void* target, Args... args);
      void (*hold)(void* target);  // both null for bits
      void (*release)(void* target);
    };

    const Kind* kind_ = nullptr;
    void* target_ = nullptr;
  };

  // Every link of an event's ring but its own.
  struct Node : Link {
    Handler handler{};  // none at the place of a walk
  };

 public:
  // Keeps a handler subscribed for as long as it lives itself; then the handler, and what it
  // captured, goes away. It may outlive the event.
  class [[nodiscard]] Subscription {
   public:
    Subscription() = default;
    ~Subscription() { Reset(); }
    Subscription(Subscription&& other) noexcept { Take(other); }
    Subscription& operator=(Subscription&& other) noexcept {
      if (this != &other) {
        Reset();
        Take(other);
      }
      return *this;
    }
    Subscription(const Subscription&) = delete;
    Subscription& operator=(const Subscription&) = delete;

    // False when nothing was subscribed, after Reset, and once the event is gone.
    bool IsSubscribed() const { return !node_.IsAlone(); }

    void Reset() {
      node_.Leave();
      // What the handler captured may hold this subscription.
      const Handler last = std::move(node_.handler);
    }

   private:
    friend class Event;

    void Take(Subscription& other) noexcept {
      node_.handler = std::move(other.node_.handler);
      if (other.node_.IsAlone()) return;
      node_.JoinBefore(other.node_);
      other.node_.Leave();
    }

    Node node_;
  };

  Event() = default;
  ~Event() {
    while (!ring_.IsAlone()) ring_.next->Leave();
  }
  Event(const Event&) = delete;
  Event& operator=(const Event&) = delete;

  // From now on the handler, called as handler(args...), hears of the event. One that captures a
  // single pointer takes no memory.
  template <class Callable>
  Subscription Subscribe(Callable handler) {
    Subscription subscription;
    subscription.node_.handler = Handler(std::move(handler));
    subscription.node_.JoinBefore(ring_);
    return subscription;
  }

  // Calls the handlers; the event may be gone afterwards. Returns the first exception that one of
  // them threw, null for none.
  [[nodiscard]] std::exception_ptr Raise(const Internal&, Args... args) {
    std::exception_ptr thrown;
    if (ring_.IsAlone()) return thrown;
    Walk walk(ring_);
    while (const Node* const node = walk.Next()) {
      const Handler handler = node->handler;  // the node may go away meanwhile
      try {
        handler(args...);
      } catch (...) {
        if (!thrown) thrown = std::current_exception();
      }
    }
    return thrown;
  }

 private:
  // A walk stands in the ring itself, with a mark at its place and one at its end: whatever happens
  // to the other links, and to the ring, the marks have the right neighbours.
  class Walk {
   public:
    explicit Walk(Link& ring) {
      place_.JoinBefore(*ring.next);
      end_.JoinBefore(ring);
    }
    ~Walk() {
      place_.Leave();
      end_.Leave();
    }
    Walk(const Walk&) = delete;
    Walk& operator=(const Walk&) = delete;

    // The next subscription, null at the end.
    const Node* Next() {
      while (place_.next != &end_ && !place_.IsAlone()) {
        Link& next = *place_.next;
        place_.Leave();
        place_.JoinBefore(*next.next);
        const Node& node = static_cast<Node&>(next);
        if (!node.handler.IsNone()) return &node;
      }
      return nullptr;
    }

   private:
    Node place_;
    Node end_;
  };

  Link ring_;
};

}  // namespace folivar
