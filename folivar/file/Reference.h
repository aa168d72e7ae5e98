#pragma once

#include <cstdint>

namespace folivar {

// The number of an object of the file, "7 0 R": taken from ObjectNumbers, kept by whose object it
// is, opened by SaveFile and written by who refers to it. None before the first save.
class Reference {
 public:
  constexpr Reference() = default;
  constexpr explicit Reference(std::int32_t number) : number_(number) {}

  constexpr bool IsNone() const { return number_ == 0; }
  constexpr std::int32_t Number() const { return number_; }

 private:
  std::int32_t number_ = 0;
};

}  // namespace folivar
