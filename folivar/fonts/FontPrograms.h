#pragma once

#include <functional>
#include <memory>
#include <string>

namespace folivar {

// A font program is in memory once per process, however many documents embed it, and goes with the
// last of them. `identity` tells programs apart; `read` is called when no document holds this one.
// From any thread: different programs are read side by side, the same one is waited for.
std::shared_ptr<const std::string> SharedFontProgram(const std::string& identity,
                                                     const std::function<std::string()>& read);

}  // namespace folivar
