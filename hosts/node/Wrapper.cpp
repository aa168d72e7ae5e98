#include "hosts/node/Wrapper.h"

#include <utility>

namespace folivar::node {

napi_value Wrapper::Of(Environment& environment, Held held) {
  if (const auto* known = static_cast<Wrapper*>(*folivar_slot(held.get()))) {
    napi_value value = known->Value();
    if (value != nullptr) return value;
  }
  folivar_object* document = folivar_document(held.get());
  if (document == held.get()) {
    return OfDocument(std::make_shared<HostValues>(environment.shared_from_this()),
                      std::move(held));
  }
  folivar_retain(document);
  napi_value kept = Of(environment, Held(document));
  std::shared_ptr<HostValues> values = static_cast<Wrapper*>(*folivar_slot(document))->values_;
  return Make(std::move(values), std::move(held), kept);
}

napi_value Wrapper::OfDocument(const std::shared_ptr<HostValues>& values, Held held) {
  return Make(values, std::move(held), values->Object());
}

napi_value Wrapper::Make(std::shared_ptr<HostValues> values, Held held, napi_value kept) {
  Environment& environment = values->TheEnvironment();
  napi_env env = environment.Env();
  napi_value value = environment.Make(*folivar_class_of(held.get()), kept);
  std::unique_ptr<Wrapper> made(new Wrapper(std::move(values), std::move(held)));
  environment.AddWrapper(made.get());
  void*& known = *folivar_slot(made->Object());
  Check(env, napi_wrap(env, value, made.get(), End, nullptr, &made->value_));
  known = made.release();
  Check(env, napi_object_seal(env, value));
  return value;
}

Wrapper* Wrapper::From(const Environment& environment, napi_value value) {
  void* wrapped = nullptr;
  if (napi_unwrap(environment.Env(), value, &wrapped) != napi_ok) return nullptr;
  return environment.IsWrapper(wrapped) ? static_cast<Wrapper*>(wrapped) : nullptr;
}

Wrapper::Wrapper(std::shared_ptr<HostValues> values, Held held)
    : values_(std::move(values)), object_(std::move(held)) {}

Wrapper::~Wrapper() {
  values_->TheEnvironment().RemoveWrapper(this);
  napi_delete_reference(values_->TheEnvironment().Env(), value_);
  // A newer wrapper may have taken the place.
  void*& known = *folivar_slot(Object());
  if (known == this) known = nullptr;
}

void Wrapper::End(napi_env /*env*/, void* wrapper, void* /*hint*/) {
  delete static_cast<Wrapper*>(wrapper);
}

napi_value Wrapper::Value() const {
  napi_env env = values_->TheEnvironment().Env();
  napi_value value = nullptr;
  Check(env, napi_get_reference_value(env, value_, &value));
  return value;
}

}  // namespace folivar::node
