#include "hosts/node/Arguments.h"

#include <algorithm>
#include <cctype>

namespace folivar::node {
namespace {

bool AreAlike(const std::string& a, const std::string& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](unsigned char x, unsigned char y) {
    return std::tolower(x) == std::tolower(y);
  });
}

}  // namespace

Arguments::Arguments(const Member& member, const napi_value* given, std::size_t count)
    : member_(member), given_(member.environment) {
  std::fill_n(values_.begin(), Count(), folivar_missing());
  const bool hasNames =
      count > 0 && count <= kMost && member.environment.IsPlainObject(given[count - 1]);
  TakePositions(given, hasNames ? count - 1 : count);
  if (hasNames) TakeNames(given[count - 1]);
  RequireAll();
}

void Arguments::TakePositions(const napi_value* given, std::size_t count) {
  std::size_t place = NextPlace(0);
  for (std::size_t i = 0; i < count; ++i) {
    if (place == Count()) {
      Refuse(" takes " + std::to_string(i) + " arguments at most, not " + std::to_string(count));
    }
    values_.at(place) = given_.Of(given[i]);
    place = NextPlace(place + 1);
  }
}

void Arguments::TakeNames(napi_value names) {
  napi_env env = member_.environment.Env();
  napi_value list = nullptr;
  Check(env, napi_get_all_property_names(
                 env, names, napi_key_own_only,
                 static_cast<napi_key_filter>(napi_key_enumerable | napi_key_skip_symbols),
                 napi_key_numbers_to_strings, &list));
  std::uint32_t count = 0;
  Check(env, napi_get_array_length(env, list, &count));
  for (std::uint32_t i = 0; i < count; ++i) {
    napi_value name = nullptr;
    napi_value value = nullptr;
    Check(env, napi_get_element(env, list, i, &name));
    Check(env, napi_get_property(env, names, name, &value));
    TakeNamed(name, value);
  }
}

void Arguments::TakeNamed(napi_value name, napi_value value) {
  const std::string spelled = Utf8Of(member_.environment.Env(), name);
  const std::size_t place = PlaceOf(spelled);
  if (place == Count()) Refuse(" has no parameter '" + spelled + "'");
  if (values_.at(place).kind != FOLIVAR_MISSING) Refuse(": '" + spelled + "' is given twice");
  values_.at(place) = given_.Of(value);
}

void Arguments::RequireAll() const {
  for (std::size_t place = 0; place < Count(); ++place) {
    const bool isRequired = (Traits(place) & (FOLIVAR_OPTIONAL | FOLIVAR_FILLED)) == 0;
    if (isRequired && values_.at(place).kind == FOLIVAR_MISSING) {
      Refuse(std::string(": '") + member_.description.parameters[place].name + "' is missing");
    }
  }
}

std::size_t Arguments::PlaceOf(const std::string& name) const {
  std::size_t alike = Count();
  for (std::size_t place = 0; place < Count(); ++place) {
    if (IsFilled(place)) continue;
    const char* parameter = member_.description.parameters[place].name;
    if (name == parameter) return place;
    if (AreAlike(name, parameter)) alike = place;
  }
  return alike;
}

std::size_t Arguments::NextPlace(std::size_t place) const {
  while (place < Count() && IsFilled(place)) ++place;
  return place;
}

void Arguments::Refuse(const std::string& why) const {
  ThrowTypeError(member_.environment.Env(), member_.Name() + why);
}

}  // namespace folivar::node
