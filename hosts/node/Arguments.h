#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "hosts/node/Environment.h"
#include "hosts/node/GivenValues.h"

namespace folivar::node {

// The arguments of a method: what JavaScript gives, put in the places of the parameters.
//
// Positions come first; an object literal behind them gives more by the parameters' names. What is
// undefined counts as left out, and what the method fills is not given at all.
class Arguments {
 public:
  // More than any member has.
  static constexpr std::size_t kMost = 12;

  // Throws a TypeError where what is given does not fit the parameters. `count` may be beyond
  // kMost, of which only as many are looked at.
  Arguments(const Member& member, const napi_value* given, std::size_t count);
  Arguments(const Arguments&) = delete;
  Arguments& operator=(const Arguments&) = delete;

  folivar_value* Values() { return values_.data(); }
  std::size_t Count() const { return member_.description.parameter_count; }

 private:
  void TakePositions(const napi_value* given, std::size_t count);
  void TakeNames(napi_value names);
  void TakeNamed(napi_value name, napi_value value);
  void RequireAll() const;

  // The place of the parameter with this name, Count() for an unknown one.
  std::size_t PlaceOf(const std::string& name) const;
  std::size_t NextPlace(std::size_t place) const;
  bool IsFilled(std::size_t place) const { return (Traits(place) & FOLIVAR_FILLED) != 0; }
  std::int32_t Traits(std::size_t place) const {
    return member_.description.parameters[place].traits;
  }
  [[noreturn]] void Refuse(const std::string& why) const;

  const Member& member_;
  GivenValues given_;
  std::array<folivar_value, kMost> values_;
};

}  // namespace folivar::node
