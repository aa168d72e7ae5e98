#include "Handle.h"

#include "folivar/base/Error.h"

namespace facade {
namespace {

std::int32_t NumberOf(Action action) {
  switch (action) {
    case Action::kGet:
      return FOLIVAR_GET | FOLIVAR_GIVE_UTF16;
    case Action::kSet:
      return FOLIVAR_SET;
    default:
      return FOLIVAR_CALL | FOLIVAR_GIVE_UTF16;
  }
}

}  // namespace

void RaiseIfFailed(std::int32_t number) {
  if (number != 0) throw folivar::Error(number, folivar_last_error()->text);
}

void Invoke(folivar_object* object, const Member& member, const std::vector<Argument>& arguments,
            Result& result) {
  std::vector<folivar_value> borrowed;
  borrowed.reserve(arguments.size());
  for (const Argument& argument : arguments) borrowed.push_back(argument.Borrowed());
  RaiseIfFailed(folivar_invoke(object, member.id, NumberOf(member.action), borrowed.data(),
                               borrowed.size(), result.Address()));
}

}  // namespace facade
