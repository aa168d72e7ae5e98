#include "folivar/fonts/FontPrograms.h"

#include <map>
#include <mutex>

namespace folivar {

std::shared_ptr<const std::string> SharedFontProgram(const std::string& identity,
                                                     const std::function<std::string()>& read) {
  static std::mutex mutex;
  static std::map<std::string, std::weak_ptr<const std::string>> programs;

  const std::lock_guard lock(mutex);
  const auto found = programs.find(identity);
  if (found != programs.end()) {
    if (auto program = found->second.lock()) return program;
  }
  std::erase_if(programs, [](const auto& entry) { return entry.second.expired(); });
  auto program = std::make_shared<const std::string>(read());
  programs[identity] = program;
  return program;
}

}  // namespace folivar
