#pragma once

#include <atomic>
#include <mutex>

struct folivar_object;

namespace folivar::hosts {

// Who uses a document and all that belongs to it: one thread at a time, which may call again from
// what it calls. All objects of the document share it.
class Usage {
 public:
  // False when another thread is at it. Who enters leaves as often.
  bool Enter() noexcept;
  void Leave() noexcept;

  // Guards who is held and who waits.
  std::mutex& Holding() { return holding_; }
  // An object that nobody holds any more, but whose end may end much of the document, waits until
  // the thread that uses the document leaves. With Holding locked.
  void LetWait(folivar_object& object) noexcept;
  void LetGoOfWaiting() noexcept;

 private:
  folivar_object* NextWaiting() noexcept;

  std::atomic<const void*> user_ = nullptr;
  int depth_ = 0;  // of the user
  std::mutex holding_;
  std::atomic<folivar_object*> waiting_ = nullptr;  // the first of a row
};

}  // namespace folivar::hosts
