#pragma once

#include <sys/inotify.h>
#include <unistd.h>

#include <array>
#include <filesystem>
#include <stdexcept>

namespace folivar::test {

// Sees whether anybody opens a file.
class FileWatch {
 public:
  explicit FileWatch(const std::filesystem::path& file) : events_(inotify_init1(IN_NONBLOCK)) {
    if (events_ < 0 || inotify_add_watch(events_, file.c_str(), IN_OPEN) < 0) {
      throw std::runtime_error("the system does not watch files");
    }
  }
  ~FileWatch() { close(events_); }
  FileWatch(const FileWatch&) = delete;
  FileWatch& operator=(const FileWatch&) = delete;

  // Since it was last asked.
  bool WasOpened() const {
    std::array<char, 4096> events = {};
    return read(events_, events.data(), events.size()) > 0;
  }

 private:
  int events_;
};

}  // namespace folivar::test
