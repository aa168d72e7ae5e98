#include "folivar/base/Members.h"

#include <utility>

#include "folivar/document/KelCollection.h"

namespace folivar {

Members::Members(const Internal&, const char* name)
    : list_(std::make_unique<KelCollection<Member>>(name)) {}

Members::~Members() = default;

std::size_t Members::Count() const { return list_->Count(); }

const Members::Member& Members::Item(const Value& index) const { return list_->Item(index); }

bool Members::KeyExists(const Value& index) const noexcept { return list_->KeyExists(index); }

void Members::Add(Member member, TextView key, const Value& before, const Value& after) {
  list_->Add(std::move(member), key, before, after);
}

void Members::Remove(const Value& index) { list_->Remove(index); }

void Members::RemoveMember(const Member& member, const Value& likely) {
  list_->RemoveItem(member, likely);
}

void Members::Walk(void (*visit)(void* context, Object& member), void* context) const {
  list_->ForEach([&](const Member& member) { visit(context, *member); });
}

}  // namespace folivar
