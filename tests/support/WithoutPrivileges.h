#pragma once

#include <linux/capability.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <system_error>

namespace folivar::test {

// Root may read and write anything. As long as this lives, what a file permits its owner holds for
// root too, who stays the same user: the way to the file may be root's alone.
class WithoutPrivileges {
 public:
  WithoutPrivileges() {
    if (syscall(SYS_capget, &header_, before_.data()) != 0) Throw();
    Capabilities lowered = before_;
    lowered[0].effective &= ~((1U << CAP_DAC_OVERRIDE) | (1U << CAP_DAC_READ_SEARCH));
    if (syscall(SYS_capset, &header_, lowered.data()) != 0) Throw();
  }
  ~WithoutPrivileges() {
    if (syscall(SYS_capset, &header_, before_.data()) != 0) std::abort();
  }
  WithoutPrivileges(const WithoutPrivileges&) = delete;
  WithoutPrivileges& operator=(const WithoutPrivileges&) = delete;

 private:
  using Capabilities = std::array<__user_cap_data_struct, _LINUX_CAPABILITY_U32S_3>;

  [[noreturn]] static void Throw() {
    throw std::system_error(errno, std::generic_category(), "capabilities");
  }

  __user_cap_header_struct header_{_LINUX_CAPABILITY_VERSION_3, 0};  // 0: of this thread
  Capabilities before_{};
};

}  // namespace folivar::test
