#include <cstddef>
#include <cstdio>

#include "Workload.h"

// Prints the lines of text, for programs that do not include Workload.h.
int main() {
  const bench::Lines lines;
  for (std::size_t i = 0; i < bench::Lines::kCount; ++i) std::puts(lines.At(i).c_str());
  return 0;
}
