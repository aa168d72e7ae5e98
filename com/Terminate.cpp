// What the runtime does with an exception that nobody catches, which Guard keeps from happening.
// The runtime's own would print the exception's type first, and bring a demangler and formatters
// for that: 80 KB of a DLL that has no console.

#include <cstdlib>

namespace __gnu_cxx {  // NOLINT(bugprone-reserved-identifier)

void __verbose_terminate_handler();                   // NOLINT(bugprone-reserved-identifier)
void __verbose_terminate_handler() { std::abort(); }  // NOLINT(bugprone-reserved-identifier)

}  // namespace __gnu_cxx
