#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <memory>
#include <type_traits>
#include <utility>

namespace folivar {

// What is called as callback(args...): a callable of one pointer's size that never changes, whose
// bytes are here, or one that is kept elsewhere and shared by the copies.
template <class... Args>
class Callback {
 public:
  // Whether a callable is here and takes no memory of its own.
  template <class Callable>
  static constexpr bool kIsHere =
      sizeof(Callable) == sizeof(void*) &&
      std::is_trivially_copyable_v<Callable>&& std::is_invocable_v<const Callable&, Args...>;

  Callback() = default;
  template <class Callable>
  explicit Callback(Callable callable)
      : kind_(&Form<Callable>::kKind), target_(Form<Callable>::From(std::move(callable))) {}
  Callback(const Callback& other) : kind_(other.kind_), target_(other.target_) {
    if (kind_ != nullptr && kind_->hold != nullptr) kind_->hold(target_);
  }
  Callback(Callback&& other) noexcept
      : kind_(std::exchange(other.kind_, nullptr)), target_(other.target_) {}
  Callback& operator=(Callback other) noexcept {
    std::swap(kind_, other.kind_);
    std::swap(target_, other.target_);
    return *this;
  }
  ~Callback() {
    if (kind_ != nullptr && kind_->release != nullptr) kind_->release(target_);
  }

  // At first, and once it has been moved away; then it must not be called.
  bool IsNone() const { return kind_ == nullptr; }
  void operator()(Args... args) const { kind_->call(target_, args...); }

 private:
  // A callable or the pointer to it. Bytes, because a callable may have padding, which no other
  // type can take over.
  struct Target {
    alignas(void*) std::array<std::byte, sizeof(void*)> bytes{};
  };

  struct Kind {
    void (*call)(Target target, Args... args);
    void (*hold)(Target target);  // both null for a callable that is here
    void (*release)(Target target);
  };

  template <class Callable>
  struct Here {
    static Target From(Callable callable) { return std::bit_cast<Target>(callable); }
    static void Call(Target target, Args... args) {
      const auto callable = std::bit_cast<Callable>(target);
      callable(args...);
    }

    static constexpr Kind kKind = {&Call, nullptr, nullptr};
  };

  template <class Callable>
  struct Kept {
    static Target From(Callable callable) {
      return std::bit_cast<Target>(std::make_unique<Kept>(Kept{std::move(callable)}).release());
    }
    static Kept* Of(Target target) { return std::bit_cast<Kept*>(target); }
    static void Call(Target target, Args... args) { Of(target)->callable(args...); }
    static void Hold(Target target) { ++Of(target)->holders; }
    static void Release(Target target) {
      if (--Of(target)->holders > 0) return;
      const std::unique_ptr<Kept> last(Of(target));
    }

    static constexpr Kind kKind = {&Call, &Hold, &Release};

    Callable callable;
    std::size_t holders = 1;
  };

  template <class Callable>
  using Form = std::conditional_t<kIsHere<Callable>, Here<Callable>, Kept<Callable>>;

  const Kind* kind_ = nullptr;
  Target target_{};
};

}  // namespace folivar
