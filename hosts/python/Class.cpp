#include "hosts/python/Class.h"

#include <structmember.h>

#include <algorithm>
#include <cstddef>
#include <span>

#include "hosts/python/Attributes.h"
#include "hosts/python/Call.h"
#include "hosts/python/Collection.h"
#include "hosts/python/Creation.h"
#include "hosts/python/Methods.h"
#include "hosts/python/Names.h"
#include "hosts/python/Owned.h"
#include "hosts/python/State.h"
#include "hosts/python/Wrapper.h"

namespace folivar::python {
namespace {

// The ids that all classes give to these.
constexpr std::int32_t kItem = 0;
constexpr std::int32_t kElements = -4;

PyMemberDef weakReferences[] = {
    {"__weaklistoffset__", T_PYSSIZET, offsetof(Wrapper, weakReferences), READONLY, nullptr},
    {nullptr, 0, 0, 0, nullptr}};

PyObject* GetProperty(PyObject* self, void* member) {
  return Get(self, *static_cast<const Member*>(member));
}

int SetProperty(PyObject* self, PyObject* newValue, void* member) {
  return Set(self, *static_cast<const Member*>(member), newValue);
}

template <class Function>
void* Address(Function* function) {
  return reinterpret_cast<void*>(function);
}

}  // namespace

Class::Class(State& state, const folivar_class& description)
    : state_(state),
      description_(description),
      fullName_(std::string("folivar.") + description.name) {
  for (const auto& member : std::span(description.members, description.member_count)) Add(member);
  for (const auto& event : std::span(description.events, description.event_count)) {
    members_.emplace_back(state_, description_, event, Member::Kind::kEvent);
  }
  key_ = Find("Key");
  count_ = Find("count");
  keyExists_ = Find("KeyExists");
}

void Class::Add(const folivar_member& description) {
  std::deque<Member>& members = description.id == kElements ? elements_ : members_;
  members.emplace_back(state_, description_, description, Member::Kind::kMember);
  if (description.id == kItem) item_ = &members.back();
}

const Member* Class::Find(std::string_view name) const {
  const auto is = [&](const Member& member) { return member.Name() == name; };
  auto found = std::find_if(members_.begin(), members_.end(), is);
  if (found == members_.end()) {
    found = std::find_if(members_.begin(), members_.end(), [&](const Member& member) {
      return Names::IsSameWithoutCase(member.Name(), name);
    });
  }
  return found == members_.end() ? nullptr : &*found;
}

bool Class::IsCollection() const {
  return item_ != nullptr && count_ != nullptr && count_->IsProperty() && keyExists_ != nullptr &&
         !elements_.empty();
}

bool Class::AddTo(PyObject* module) {
  if (!PrepareMembers(module)) return false;
  std::vector<PyType_Slot> slots = Slots();
  PyType_Spec description = {fullName_.c_str(), sizeof(Wrapper), 0,
                             Py_TPFLAGS_DEFAULT | Py_TPFLAGS_HAVE_GC, slots.data()};
  PyObject* const type = PyType_FromSpec(&description);
  type_ = reinterpret_cast<PyTypeObject*>(type);
  return type != nullptr && PyObject_SetAttrString(module, Name(), type) == 0;
}

bool Class::PrepareMembers(PyObject* module) {
  const bool arePrepared = std::all_of(members_.begin(), members_.end(),
                                       [&](Member& member) { return member.Prepare(module); });
  if (!arePrepared) return false;
  for (const Member& member : members_) DescribeMember(member);
  methodTable_.push_back({});
  propertyTable_.push_back({});
  if (methods_.size() <= Methods::kMost) return true;
  PyErr_Format(PyExc_ImportError, "%s has too many methods", FullName());
  return false;
}

void Class::DescribeMember(const Member& member) {
  if (member.IsProperty()) {
    propertyTable_.push_back({member.Name(), member.Does(FOLIVAR_GET) ? &GetProperty : nullptr,
                              member.Does(FOLIVAR_SET) ? &SetProperty : nullptr,
                              member.Documentation(), const_cast<Member*>(&member)});
  } else {
    methodTable_.push_back(
        {member.Name(), Methods::At(methods_.size()), Methods::kFlags, member.Documentation()});
    methods_.push_back(&member);
  }
}

std::vector<PyType_Slot> Class::Slots() {
  std::vector<PyType_Slot> slots = {
      {Py_tp_doc, const_cast<char*>(description_.help)},
      {Py_tp_new, Address(description_.is_creatable ? &Creation::Create : &Creation::Refuse)},
      {Py_tp_dealloc, Address(&Wrapper::Deallocate)},
      {Py_tp_traverse, Address(&Wrapper::Traverse)},
      {Py_tp_clear, Address(&Wrapper::Clear)},
      {Py_tp_repr, Address(&Wrapper::Represent)},
      {Py_tp_getattro, Address(&Attributes::Get)},
      {Py_tp_setattro, Address(&Attributes::Set)},
      {Py_tp_members, weakReferences},
      {Py_tp_methods, methodTable_.data()},
      {Py_tp_getset, propertyTable_.data()}};
  if (item_ != nullptr) slots.push_back({Py_tp_call, Address(&Collection::Call)});
  if (IsCollection()) {
    slots.push_back({Py_mp_subscript, Address(&Collection::ItemAt)});
    slots.push_back({Py_mp_length, Address(&Collection::Length)});
    slots.push_back({Py_sq_contains, Address(&Collection::Contains)});
    slots.push_back({Py_tp_iter, Address(&Collection::Iterate)});
  }
  slots.push_back({0, nullptr});
  return slots;
}

}  // namespace folivar::python
