#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>

#include "folivar/base/Object.h"
#include "hosts/c/folivar.h"

namespace folivar::hosts {

class Answer;
class Arguments;

// Calls one function of the core: a method, or one side of a property.
using Run = void (*)(Object& object, const Arguments& arguments, Answer& answer);
// Subscribes to one event of the core; the result is the subscription.
using Subscribe = std::shared_ptr<void> (*)(folivar_object& source,
                                            const std::shared_ptr<folivar_callback>& handler);

// One line of the table for each function that the interface has.
struct Function {
  std::int32_t id;
  std::int32_t action;
  Run run;
};

// What a member is found by: its identifier. A method is read.
struct Entry {
  const folivar_member* member = nullptr;
  Run read = nullptr;
  Run write = nullptr;
};

// The smallest identifier, that of NewEnum.
inline constexpr std::int32_t kFirstId = -4;

// A class of the object model, as the boundary knows it.
struct Class {
  // Null when there is no such member.
  const Entry* Find(std::int32_t id) const {
    const std::int64_t place = std::int64_t{id} - kFirstId;
    if (place < 0 || place >= static_cast<std::int64_t>(entries.size())) return nullptr;
    const Entry& entry = entries[static_cast<std::size_t>(place)];
    return entry.member == nullptr ? nullptr : &entry;
  }

  const folivar_class* description;
  std::span<const Entry> entries;     // by their identifiers
  std::span<const Subscribe> events;  // as in the description
  // What an object's members need besides it and its document; null for nothing.
  std::shared_ptr<Object> (*owner)(Object& object);
};

// Puts members and their functions in the order of their identifiers; `count` reaches the largest.
template <std::size_t count>
constexpr std::array<Entry, count> EntriesOf(std::span<const folivar_member> members,
                                             std::span<const Function> functions) {
  std::array<Entry, count> entries{};
  const auto at = [&](std::int32_t id) -> Entry& {
    return entries[static_cast<std::size_t>(id - kFirstId)];
  };
  for (const folivar_member& member : members) at(member.id).member = &member;
  for (const Function& function : functions) {
    (function.action == FOLIVAR_SET ? at(function.id).write : at(function.id).read) = function.run;
  }
  return entries;
}

// The class of the object model that `Core`, a class of the core, is. Defined by the table.
template <class Core>
const Class& ClassOf();

}  // namespace folivar::hosts
