#pragma once

#include <cstddef>
#include <memory>

#include "folivar/base/Api.h"
#include "folivar/base/Object.h"
#include "folivar/base/Text.h"
#include "folivar/base/Value.h"

namespace folivar {

class Internal;
template <class T>
class KelCollection;

// What a MemberList keeps: members of any class in order, each with an optional key. One list
// serves all classes, and hosts need not see it. The rules and the errors are KelCollection's.
class FOLIVAR_API Members {
 public:
  using Member = std::shared_ptr<Object>;

  // `name` stands in error texts, for example "PDFPages"; a literal.
  Members(const Internal&, const char* name);
  ~Members();

  std::size_t Count() const;
  const Member& Item(const Value& index) const;
  bool KeyExists(const Value& index) const noexcept;

  void Add(Member member, TextView key, const Value& before, const Value& after);
  void Remove(const Value& index);
  // Takes a member out wherever it stands, if it still does; it is looked for at `likely` first.
  void RemoveMember(const Member& member, const Value& likely);

  // visit(Object&) for each in order; the members must not change meanwhile.
  template <class Visit>
  void ForEach(Visit visit) const {
    Walk([](void* context, Object& member) { (*static_cast<Visit*>(context))(member); }, &visit);
  }

 private:
  void Walk(void (*visit)(void* context, Object& member), void* context) const;

  std::unique_ptr<KelCollection<Member>> list_;
};

}  // namespace folivar
