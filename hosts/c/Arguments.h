#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "folivar/base/Error.h"
#include "folivar/base/Object.h"
#include "folivar/base/Text.h"
#include "folivar/base/Value.h"
#include "hosts/c/folivar.h"

namespace folivar::hosts {

// The arguments of one call, as the core wants them. Places count from 0.
//
// What a place wants raises 450 when it is left out and cannot be, 94 for FOLIVAR_NULL and 13 for
// another kind; the error names the member and the argument.
class Arguments {
 public:
  // Of a call of `source`. Raises 450 for too many.
  Arguments(const folivar_object& source, const folivar_member& member, std::int32_t action,
            folivar_value* given, std::size_t count);

  bool Flag(std::size_t place) const;
  // Halves are rounded to even. Raises 6 beyond 32 bits.
  std::int32_t Long(std::size_t place) const;
  // Raises 6 for a number beyond a single.
  float Single(std::size_t place) const;
  // Nothing for one that is left out.
  std::optional<float> OptionalSingle(std::size_t place) const;
  TextView TheText(std::size_t place) const;
  std::optional<TextView> OptionalText(std::size_t place) const;
  // Missing for one that is left out.
  Value Any(std::size_t place) const;
  // Null for none. Raises 5 for an object of another document.
  std::shared_ptr<Object> TheObject(std::size_t place) const;
  [[noreturn]] void RefuseClass(std::size_t place) const;

  // For a parameter that the member fills.
  void Fill(std::size_t place, float number) const;

 private:
  std::string MemberName() const;
  const folivar_value& At(std::size_t place) const;
  bool IsLeftOut(std::size_t place) const;
  const folivar_value& Wanted(std::size_t place) const;
  Error Refused(const Error& error, std::size_t place) const;
  double Number(std::size_t place, const char* wanted) const;

  const folivar_object& source_;
  const folivar_member& member_;
  folivar_value* given_;
  std::size_t count_;
};

}  // namespace folivar::hosts
