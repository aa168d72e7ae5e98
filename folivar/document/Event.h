#pragma once

#include <bit>
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

  struct Handler {
    void (*call)(void* target, Args... args) = nullptr;
    void* target = nullptr;          // what is called, or, if it is that small, its bits
    std::shared_ptr<void> keeper{};  // of a target that is not that small
  };

  // Every link of an event's ring but its own.
  struct Node : Link {
    Handler handler;  // without a call: the place of a walk
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
      const Handler last = std::exchange(node_.handler, Handler());
    }

   private:
    friend class Event;

    void Take(Subscription& other) noexcept {
      node_.handler = std::exchange(other.node_.handler, Handler());
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
    Handler& made = subscription.node_.handler;
    if constexpr (sizeof(Callable) == sizeof(void*) && std::is_trivially_copyable_v<Callable>) {
      made.call = [](void* target, Args... args) { std::bit_cast<Callable>(target)(args...); };
      made.target = std::bit_cast<void*>(handler);
    } else {
      auto kept = std::make_shared<Callable>(std::move(handler));
      made.call = [](void* target, Args... args) { (*static_cast<Callable*>(target))(args...); };
      made.target = kept.get();
      made.keeper = std::move(kept);
    }
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
        handler.call(handler.target, args...);
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
        if (node.handler.call != nullptr) return &node;
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
