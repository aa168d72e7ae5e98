#pragma once

#include <atomic>
#include <cstdint>
#include <memory>
#include <mutex>

struct folivar_object;

namespace folivar::hosts {

// Who uses a document and all that belongs to it: one thread at a time, which may call again from
// what it calls. All objects of the document share it.
class Usage : public std::enable_shared_from_this<Usage> {
 public:
  // False when another thread is at it. One that only lets go of objects is waited for. Who enters
  // leaves as often, and holds an object of the document meanwhile.
  bool Enter() noexcept;
  void Leave() noexcept;

  // Guards who is held and who waits.
  std::mutex& Holding() { return holding_; }
  // An object that nobody holds any more, but whose end may end much of the document, waits until
  // no thread uses the document. With Holding locked.
  void LetWait(folivar_object& object) noexcept;
  // Unless a thread uses the document, which does it when it leaves.
  void LetGoOfWaiting() noexcept;

 private:
  folivar_object* NextWaiting() noexcept;

  // A number that no other thread has, 0 for none; and 1 more while it lets go of objects.
  std::atomic<std::uintptr_t> user_ = 0;
  int depth_ = 0;  // of the user
  std::mutex holding_;
  std::atomic<folivar_object*> waiting_ = nullptr;  // the first of a row
};

}  // namespace folivar::hosts
