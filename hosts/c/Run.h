#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

#include "folivar/base/Event.h"
#include "folivar/base/Internal.h"
#include "folivar/drawing/AspectRatio.h"
#include "folivar/drawing/ClipBox.h"
#include "folivar/drawing/Paint.h"
#include "folivar/drawing/Point.h"
#include "folivar/fonts/Embedding.h"
#include "folivar/fonts/TextExtents.h"
#include "hosts/c/Answer.h"
#include "hosts/c/Arguments.h"
#include "hosts/c/Class.h"
#include "hosts/c/HostFailure.h"

namespace folivar::hosts {

// How many arguments a parameter of the core stands for.
template <class Parameter>
inline constexpr std::size_t kTakes = 1;
template <>
inline constexpr std::size_t kTakes<Paint> = 2;

// What a parameter of a type of the core is, of the arguments from `place` on.
template <class Wanted>
using As = std::type_identity<Wanted>;
inline bool Take(As<bool>, const Arguments& arguments, std::size_t place) {
  return arguments.Flag(place);
}
inline std::int32_t Take(As<std::int32_t>, const Arguments& arguments, std::size_t place) {
  return arguments.Long(place);
}
template <class Enumeration>
requires std::is_enum_v<Enumeration> Enumeration Take(As<Enumeration>, const Arguments& arguments,
                                                      std::size_t place) {
  return static_cast<Enumeration>(arguments.Long(place));
}
inline float Take(As<float>, const Arguments& arguments, std::size_t place) {
  return arguments.Single(place);
}
inline std::optional<float> Take(As<std::optional<float>>, const Arguments& arguments,
                                 std::size_t place) {
  return arguments.OptionalSingle(place);
}
inline TextView Take(As<TextView>, const Arguments& arguments, std::size_t place) {
  return arguments.TheText(place);
}
inline std::optional<TextView> Take(As<std::optional<TextView>>, const Arguments& arguments,
                                    std::size_t place) {
  return arguments.OptionalText(place);
}
inline Value Take(As<Value>, const Arguments& arguments, std::size_t place) {
  return arguments.Any(place);
}
template <class Core>
std::shared_ptr<Core> Take(As<std::shared_ptr<Core>>, const Arguments& arguments,
                           std::size_t place) {
  const std::shared_ptr<Object> object = arguments.TheObject(place);
  auto wanted = std::dynamic_pointer_cast<Core>(object);
  if (object && !wanted) arguments.RefuseClass(place);
  return wanted;
}
// Flags that the core has a type for.
inline Paint Take(As<Paint>, const Arguments& arguments, std::size_t place) {
  const bool strokes = arguments.Flag(place);
  const bool fills = arguments.Flag(place + 1);
  if (!strokes) return fills ? Paint::kFill : Paint::kNone;
  return fills ? Paint::kStrokeAndFill : Paint::kStroke;
}
inline AspectRatio Take(As<AspectRatio>, const Arguments& arguments, std::size_t place) {
  return arguments.Flag(place) ? AspectRatio::kKeep : AspectRatio::kStretch;
}
inline Embedding Take(As<Embedding>, const Arguments& arguments, std::size_t place) {
  return arguments.Flag(place) ? Embedding::kEmbed : Embedding::kNone;
}

// Where the numbers of an answer go that fills arguments, from `place` on.
inline void Fill(const Arguments& arguments, std::size_t place, const ClipBox& box) {
  arguments.Fill(place, box.left);
  arguments.Fill(place + 1, box.bottom);
  arguments.Fill(place + 2, box.right);
  arguments.Fill(place + 3, box.top);
}
inline void Fill(const Arguments& arguments, std::size_t place, const Point& point) {
  arguments.Fill(place, point.x);
  arguments.Fill(place + 1, point.y);
}
inline void Fill(const Arguments& arguments, std::size_t place, const TextExtents& extents) {
  arguments.Fill(place, extents.width);
  arguments.Fill(place + 1, extents.height);
}
template <class Result>
concept FillsArguments = std::is_same_v<Result, ClipBox> || std::is_same_v<Result, Point> ||
    std::is_same_v<Result, TextExtents>;

// The result and the parameters of a member of the core, or of a function that stands for one.
template <class Result, class... Parameters>
struct Signature {
  // The place of each parameter's first argument, and at the end of what is behind all.
  static constexpr auto kPlaces = [] {
    std::array<std::size_t, sizeof...(Parameters) + 1> places{};
    std::size_t next = 0;
    std::size_t i = 0;
    ((places[i++] = next, next += kTakes<std::remove_cvref_t<Parameters>>), ...);
    places[i] = next;
    return places;
  }();

  template <class Core, class Member>
  static void Call(Member member, Core& core, const Arguments& arguments, Answer& answer) {
    CallWith(member, core, arguments, answer, std::index_sequence_for<Parameters...>());
  }

 private:
  template <class Core, class Member, std::size_t... i>
  static void CallWith(Member member, Core& core, const Arguments& arguments, Answer& answer,
                       std::index_sequence<i...>) {
    // In braces, so that the first argument that is refused is the one that the error names.
    std::tuple<Core&, std::remove_cvref_t<Parameters>...> taken{
        core, Take(As<std::remove_cvref_t<Parameters>>(), arguments, kPlaces[i])...};
    const auto call = [&]() -> Result {
      return std::apply(
          [&](Core& self, auto&... values) -> Result {
            return std::invoke(member, self, std::move(values)...);
          },
          taken);
    };
    if constexpr (std::is_void_v<Result>) {
      call();
    } else if constexpr (FillsArguments<std::remove_cvref_t<Result>>) {
      Fill(arguments, kPlaces[sizeof...(Parameters)], call());
    } else {
      answer.Give(call());
    }
  }
};

template <class Member>
struct SignatureOf;
template <class Result, class Core, class... Parameters>
struct SignatureOf<Result (Core::*)(Parameters...)> : Signature<Result, Parameters...> {};
template <class Result, class Core, class... Parameters>
struct SignatureOf<Result (Core::*)(Parameters...) const> : Signature<Result, Parameters...> {};
template <class Result, class Core, class... Parameters>
struct SignatureOf<Result (Core::*)(Parameters...) noexcept> : Signature<Result, Parameters...> {};
template <class Result, class Core, class... Parameters>
struct SignatureOf<Result (Core::*)(Parameters...) const noexcept>
    : Signature<Result, Parameters...> {};
template <class Result, class Core, class... Parameters>
struct SignatureOf<Result (*)(Core&, Parameters...)> : Signature<Result, Parameters...> {};

// A Run that calls this member of the core.
template <class Core, auto member>
void RunMember(Object& object, const Arguments& arguments, Answer& answer) {
  SignatureOf<decltype(member)>::Call(member, static_cast<Core&>(object), arguments, answer);
}

// The members of a collection as they are now.
template <class Collection>
auto MembersOf(Collection& collection) {
  std::vector<decltype(collection.Item(Value()))> members;
  for (const auto& member : collection) members.push_back(member);
  return members;
}

// A Class's owner.
template <class Core>
std::shared_ptr<Object> OwnerOf(Object& object) {
  constexpr auto kOwner = [](auto& core) -> decltype(core.Owner(Internal())) {
    return core.Owner(Internal());
  };
  if constexpr (std::is_invocable_r_v<std::shared_ptr<Object>, decltype(kOwner), Core&>) {
    return kOwner(static_cast<Core&>(object));
  } else {
    return nullptr;
  }
}

template <class... Args, class Source>
std::shared_ptr<void> Listen(Event<Args&...>& event, Source& source,
                             const std::shared_ptr<folivar_callback>& handler) {
  using Subscription = typename Event<Args&...>::Subscription;
  return std::make_shared<Subscription>(event.Subscribe([&source, handler](Args&... args) {
    const std::array<folivar_value, sizeof...(Args)> values = {folivar_of(folivar_object::HandOut(
        std::static_pointer_cast<Args>(args.shared_from_this()), source))...};
    const std::int32_t failure = handler->call(handler->context, values.data(), values.size());
    for (const folivar_value& value : values) folivar_release(value.as.object);
    if (failure != 0) throw HostFailure{failure};
  }));
}

// A Subscribe to this event of the core.
template <class Core, auto event>
std::shared_ptr<void> SubscribeTo(folivar_object& source,
                                  const std::shared_ptr<folivar_callback>& handler) {
  return Listen(std::invoke(event, static_cast<Core&>(*source.TheObject())), source, handler);
}

}  // namespace folivar::hosts
