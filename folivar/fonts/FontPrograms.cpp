#include "folivar/fonts/FontPrograms.h"

#include <cstddef>
#include <map>
#include <mutex>

namespace folivar {
namespace {

// A program while somebody reads it or holds it.
struct Shared {
  std::mutex mutex;
  std::weak_ptr<const std::string> program;
};

// From any thread.
class Programs {
 public:
  std::shared_ptr<Shared> Find(const std::string& identity) {
    const std::lock_guard lock(mutex_);
    const auto found = programs_.find(identity);
    if (found != programs_.end()) return found->second;
    // Those that are gone leave a little behind; looking for them is put off until they may be
    // half.
    if (programs_.size() >= enough_) {
      std::erase_if(programs_, [](const auto& entry) { return IsGone(entry.second); });
      enough_ = 2 * programs_.size() + 16;
    }
    return programs_.try_emplace(identity, std::make_shared<Shared>()).first->second;
  }

 private:
  // Nobody gets at it meanwhile but through this list.
  static bool IsGone(const std::shared_ptr<Shared>& shared) {
    if (shared.use_count() > 1) return false;
    const std::lock_guard lock(shared->mutex);
    return shared->program.expired();
  }

  std::mutex mutex_;
  std::map<std::string, std::shared_ptr<Shared>> programs_;
  std::size_t enough_ = 16;
};

}  // namespace

std::shared_ptr<const std::string> SharedFontProgram(const std::string& identity,
                                                     const std::function<std::string()>& read) {
  static Programs programs;
  const std::shared_ptr<Shared> shared = programs.Find(identity);
  const std::lock_guard lock(shared->mutex);
  auto program = shared->program.lock();
  if (!program) {
    program = std::make_shared<const std::string>(read());
    shared->program = program;
  }
  return program;
}

}  // namespace folivar
