#pragma once

#include <sys/prctl.h>
#include <sys/types.h>
#include <unistd.h>

#include <cstdlib>
#include <stdexcept>

namespace folivar::test {

// Root may read and write anything, so root becomes nobody as long as this lives.
class WithoutPrivileges {
 public:
  WithoutPrivileges() : user_(geteuid()) {
    constexpr uid_t kNobody = 65534;
    if (user_ == 0 && seteuid(kNobody) != 0) throw std::runtime_error("cannot become nobody");
  }
  ~WithoutPrivileges() {
    if (user_ != 0) return;
    if (seteuid(0) != 0) std::abort();
    prctl(PR_SET_DUMPABLE, 1);  // lost with the user; leak checkers need it
  }
  WithoutPrivileges(const WithoutPrivileges&) = delete;
  WithoutPrivileges& operator=(const WithoutPrivileges&) = delete;

 private:
  uid_t user_;
};

}  // namespace folivar::test
