// The functions that the library exports.

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "folivar/base/Error.h"
#include "folivar/base/Warnings.h"
#include "folivar/document/PDFDocument.h"
#include "hosts/c/Answer.h"
#include "hosts/c/Arguments.h"
#include "hosts/c/Class.h"
#include "hosts/c/EnvironmentWarnings.h"
#include "hosts/c/HostFailure.h"
#include "hosts/c/LastError.h"
#include "hosts/c/Usage.h"
#include "hosts/c/folivar.h"
#include "hosts/c/folivar_object.h"

namespace folivar::hosts {
namespace {

// What automation hosts know as "no such member".
constexpr std::int32_t kNoMember = 438;

// The time for which this thread uses a document.
class Turn {
 public:
  Turn(Usage& usage, const folivar_class& type, const char* member) : usage_(usage) {
    if (usage_.Enter()) return;
    throw Error::PermissionDenied("the document is being used by another thread")
        .WithMember(std::string(type.name) + "." + member);
  }
  ~Turn() { usage_.Leave(); }
  Turn(const Turn&) = delete;
  Turn& operator=(const Turn&) = delete;

 private:
  Usage& usage_;
};

struct GiveBackCallback {
  void operator()(folivar_callback* taken) const {
    if (taken->release != nullptr) taken->release(taken->context);
    delete taken;
  }
};

// A callback that the library has taken over, and gives back when nobody needs it any more.
std::shared_ptr<folivar_callback> TakeOver(const folivar_callback& callback) {
  std::unique_ptr<folivar_callback, GiveBackCallback> taken;
  try {
    taken.reset(new folivar_callback(callback));
  } catch (...) {
    if (callback.release != nullptr) callback.release(callback.context);
    throw;
  }
  return taken;
}

std::shared_ptr<Warnings> WarningsTo(std::shared_ptr<folivar_callback> callback) {
  return Warnings::To([callback = std::move(callback)](const Text& message) {
    const std::string utf8 = message.Utf8();
    folivar_value text = folivar_missing();
    text.kind = FOLIVAR_TEXT;
    text.as.text = utf8.c_str();
    text.with.length = utf8.size();
    const std::int32_t failure = callback->call(callback->context, &text, 1);
    if (failure != 0) throw HostFailure{failure};
  });
}

void RequireObject(const folivar_object* object) {
  if (object == nullptr) throw Error::ObjectNotSet("null stands where an object is wanted");
}

Error NoMember(const Class& type, const char* what, std::int32_t id) {
  return Error(kNoMember, std::string(what) + std::to_string(id) + " is not there")
      .WithMember(type.description->name);
}

folivar_object* Create(std::string_view name, Platform platform) {
  const Class& type = ClassOf<PDFDocument>();
  if (name != type.description->name) {
    throw Error::InvalidArgument("no class '" + std::string(name) + "' can be created");
  }
  const auto document = PDFDocument::Create(std::move(platform));
  auto made = std::make_unique<folivar_object>(document, type, document, std::make_shared<Usage>());
  folivar_object* const object = made.get();
  document->SetPeer(std::move(made));
  object->Hold();
  return object;
}

void Invoke(folivar_object& object, std::int32_t id, std::int32_t action, folivar_value* arguments,
            std::size_t count, folivar_value* result) {
  const Class& type = object.TheClass();
  const std::int32_t verb = action & ~FOLIVAR_GIVE_UTF16;
  const Entry* entry = type.Find(id);
  if (entry == nullptr) throw NoMember(type, "member ", id);
  const folivar_member& member = *entry->member;
  if ((member.actions & verb) == 0 || (verb & (verb - 1)) != 0) {
    throw Error(kNoMember, "cannot be used so")
        .WithMember(std::string(type.description->name) + "." + member.name);
  }
  const Turn turn(object.TheUsage(), *type.description, member.name);
  const Run run = verb == FOLIVAR_SET ? entry->write : entry->read;
  Answer answer(object, verb != action, result);
  run(*object.TheObject(), Arguments(object, member, verb, arguments, count), answer);
}

// A tag's pointer that nobody has taken over is given back.
void GiveBack(std::int32_t action, folivar_value* arguments, std::size_t count) {
  if ((action & FOLIVAR_SET) == 0 || count == 0 || arguments[0].kind != FOLIVAR_HOST) return;
  const folivar_value tag = std::exchange(arguments[0], folivar_missing());
  if (tag.with.release != nullptr) tag.with.release(tag.as.host);
}

}  // namespace
}  // namespace folivar::hosts

using namespace folivar;         // NOLINT(google-build-using-namespace)
using namespace folivar::hosts;  // NOLINT(google-build-using-namespace)

int32_t folivar_create(const char* class_name, const folivar_callback* warnings,
                       folivar_object** result) {
  return Guarded([&] {
    *result = nullptr;
    Platform platform;
    if (warnings == nullptr) {
      platform.warnings = std::make_shared<EnvironmentWarnings>();
    } else {
      platform.warnings = WarningsTo(TakeOver(*warnings));
    }
    *result = Create(class_name == nullptr ? "" : class_name, std::move(platform));
  });
}

int32_t folivar_invoke(folivar_object* object, int32_t id, int32_t action, folivar_value* arguments,
                       size_t count, folivar_value* result) {
  if (result != nullptr) {
    *result = folivar_missing();
    result->kind = FOLIVAR_EMPTY;
  }
  const std::int32_t number = Guarded([&] {
    RequireObject(object);
    Invoke(*object, id, action, arguments, count, result);
  });
  GiveBack(action, arguments, count);
  return number;
}

void folivar_clear(folivar_value* result) {
  const folivar_value last = std::exchange(*result, folivar_missing());
  result->kind = FOLIVAR_EMPTY;
  if (last.kind == FOLIVAR_TEXT) {
    delete[] last.as.text;
  } else if (last.kind == FOLIVAR_UTF16) {
    delete[] last.as.utf16;
  } else if (last.kind == FOLIVAR_OBJECT) {
    folivar_release(last.as.object);
  } else if (last.kind == FOLIVAR_ARRAY) {
    // The library's own: not read-only but for those who look into it.
    auto* values = const_cast<folivar_value*>(last.as.values);
    for (std::size_t i = 0; i < last.with.length; ++i) folivar_clear(&values[i]);
    delete[] values;
  }
}

int32_t folivar_subscribe(folivar_object* object, int32_t id, const folivar_callback* handler,
                          int64_t* subscription) {
  return Guarded([&] {
    *subscription = 0;
    const std::shared_ptr<folivar_callback> taken = TakeOver(*handler);
    RequireObject(object);
    const Class& type = object->TheClass();
    for (std::size_t i = 0; i < type.events.size(); ++i) {
      const folivar_member& event = type.description->events[i];
      if (event.id != id) continue;
      const Turn turn(object->TheUsage(), *type.description, event.name);
      *subscription = object->AddSubscription(type.events[i](*object, taken));
      return;
    }
    throw NoMember(type, "event ", id);
  });
}

int32_t folivar_unsubscribe(folivar_object* object, int64_t subscription) {
  return Guarded([&] {
    RequireObject(object);
    const Turn turn(object->TheUsage(), *object->TheClass().description, "folivar_unsubscribe");
    object->RemoveSubscription(subscription);
  });
}

void folivar_retain(void* object) {
  if (object != nullptr) static_cast<folivar_object*>(object)->Hold();
}

void folivar_release(void* object) {
  if (object != nullptr) static_cast<folivar_object*>(object)->LetGo();
}

const folivar_error* folivar_last_error(void) { return LastError::Get(); }

void** folivar_slot(folivar_object* object) { return object->Slot(); }

folivar_object* folivar_document(folivar_object* object) { return object->TheDocument(); }

const folivar_class* folivar_class_of(const folivar_object* object) {
  return object->TheClass().description;
}
