#include "hosts/c/Arguments.h"

#include <cmath>
#include <limits>
#include <string_view>
#include <utility>

#include "hosts/c/HostValue.h"
#include "hosts/c/folivar_object.h"

namespace folivar::hosts {
namespace {

// What automation hosts know as "wrong number of arguments".
constexpr std::int32_t kWrongCount = 450;

constexpr folivar_value kLeftOut{};

TextView TextOf(const folivar_value& value) {
  if (value.kind == FOLIVAR_TEXT) return std::string_view(value.as.text, value.with.length);
  static_assert(sizeof(std::uint16_t) == sizeof(char16_t));
  return std::u16string_view(reinterpret_cast<const char16_t*>(value.as.utf16), value.with.length);
}

bool IsText(const folivar_value& value) {
  return value.kind == FOLIVAR_TEXT || value.kind == FOLIVAR_UTF16;
}

}  // namespace

Arguments::Arguments(const folivar_object& source, const folivar_member& member,
                     std::int32_t action, folivar_value* given, std::size_t count)
    : source_(source), member_(member), given_(given), count_(count) {
  const std::size_t most = action == FOLIVAR_SET ? 1 : member.parameter_count;
  if (count <= most) return;
  throw Error(kWrongCount,
              "takes " + std::to_string(most) + " arguments at most, not " + std::to_string(count))
      .WithMember(MemberName());
}

std::string Arguments::MemberName() const {
  return std::string(source_.TheClass().description->name) + "." + member_.name;
}

const folivar_value& Arguments::At(std::size_t place) const {
  if (place < count_ && given_[place].kind != FOLIVAR_MISSING) return given_[place];
  return place < member_.parameter_count ? member_.parameters[place].value : kLeftOut;
}

bool Arguments::IsLeftOut(std::size_t place) const { return At(place).kind == FOLIVAR_MISSING; }

const folivar_value& Arguments::Wanted(std::size_t place) const {
  const folivar_value& value = At(place);
  if (value.kind == FOLIVAR_MISSING) throw Refused(Error(kWrongCount, "is left out"), place);
  return value;
}

Error Arguments::Refused(const Error& error, std::size_t place) const {
  const std::string member = MemberName();
  if (place >= member_.parameter_count) return error.WithMember(member);
  const std::string name = member_.parameters[place].name;
  return error.WithObject("argument '" + name + "'").WithMember(member);
}

double Arguments::Number(std::size_t place, const char* wanted) const {
  const folivar_value& value = Wanted(place);
  if (value.kind == FOLIVAR_NUMBER) return value.as.number;
  if (value.kind == FOLIVAR_INTEGER) return static_cast<double>(value.as.integer);
  if (value.kind == FOLIVAR_NULL) {
    throw Refused(Error::InvalidNull(std::string("null stands where ") + wanted + " is wanted"),
                  place);
  }
  throw Refused(Error::TypeMismatch(std::string(wanted) + " is wanted"), place);
}

bool Arguments::Flag(std::size_t place) const {
  const folivar_value& value = Wanted(place);
  if (value.kind == FOLIVAR_FLAG || value.kind == FOLIVAR_INTEGER) return value.as.integer != 0;
  return Number(place, "a flag") != 0;
}

std::int32_t Arguments::Long(std::size_t place) const {
  const folivar_value& value = Wanted(place);
  if (value.kind == FOLIVAR_INTEGER && std::in_range<std::int32_t>(value.as.integer)) {
    return static_cast<std::int32_t>(value.as.integer);
  }
  const double number = Number(place, "a number");
  try {
    return Int32From(Value(number));
  } catch (const Error& error) {
    throw Refused(error, place);
  }
}

float Arguments::Single(std::size_t place) const {
  const double number = Number(place, "a number");
  const auto single = static_cast<float>(number);
  if (std::isinf(single) && std::isfinite(number)) {
    throw Refused(Error::Overflow("a number does not fit into a single"), place);
  }
  return single;
}

std::optional<float> Arguments::OptionalSingle(std::size_t place) const {
  if (IsLeftOut(place)) return std::nullopt;
  return Single(place);
}

TextView Arguments::TheText(std::size_t place) const {
  const folivar_value& value = Wanted(place);
  if (IsText(value)) return TextOf(value);
  if (value.kind == FOLIVAR_NULL) {
    throw Refused(Error::InvalidNull("null stands where a text is wanted"), place);
  }
  throw Refused(Error::TypeMismatch("a text is wanted"), place);
}

std::optional<TextView> Arguments::OptionalText(std::size_t place) const {
  if (IsLeftOut(place)) return std::nullopt;
  return TheText(place);
}

Value Arguments::Any(std::size_t place) const {
  const bool mayBeLeftOut =
      place < member_.parameter_count && (member_.parameters[place].traits & FOLIVAR_OPTIONAL) != 0;
  const folivar_value& value = mayBeLeftOut ? At(place) : Wanted(place);
  switch (value.kind) {
    case FOLIVAR_MISSING:
      return {};
    case FOLIVAR_EMPTY:
      return Value::Empty();
    case FOLIVAR_NULL:
      return Value::Null();
    case FOLIVAR_FLAG:
      return value.as.integer != 0;
    case FOLIVAR_INTEGER:
      return value.as.integer;
    case FOLIVAR_NUMBER:
      return value.as.number;
    case FOLIVAR_TEXT:
    case FOLIVAR_UTF16:
      return TextOf(value);
    default:
      break;
  }
  // Neither number, text nor flag: the model refuses it, or passes it over where it never raises.
  if ((member_.traits & FOLIVAR_TAG) == 0) return Value::Host({});
  if (value.kind == FOLIVAR_OBJECT && value.as.object == nullptr) return Value::Null();
  if (value.kind != FOLIVAR_OBJECT && value.kind != FOLIVAR_HOST) {
    throw Refused(Error::TypeMismatch("a tag is of another kind"), place);
  }
  return HostValue::TakeOver(std::exchange(given_[place], kLeftOut));
}

std::shared_ptr<Object> Arguments::TheObject(std::size_t place) const {
  const folivar_value& value = Wanted(place);
  if (value.kind == FOLIVAR_NULL) return nullptr;
  if (value.kind != FOLIVAR_OBJECT) {
    throw Refused(Error::TypeMismatch("an object is wanted"), place);
  }
  const folivar_object* const object = value.as.object;
  if (object == nullptr) return nullptr;
  // What two documents shared, two threads would use.
  if (&object->TheUsage() != &source_.TheUsage()) {
    throw Refused(Error::InvalidArgument("belongs to another document"), place);
  }
  return object->TheObject();
}

void Arguments::RefuseClass(std::size_t place) const {
  throw Refused(Error::TypeMismatch("an object is of the wrong class"), place);
}

void Arguments::Fill(std::size_t place, float number) const {
  if (place >= count_) throw Refused(Error(kWrongCount, "has no room"), place);
  given_[place].kind = FOLIVAR_NUMBER;
  given_[place].as.number = number;
}

}  // namespace folivar::hosts
