#include "folivar/base/Warnings.h"

#include <cstdio>
#include <string>
#include <utility>

#include "folivar/base/Error.h"

namespace folivar {
namespace {

class StandardErrorWarnings final : public Warnings {
 public:
  void Show(const Text& message) override {
    const std::string line = message.Utf8() + '\n';
    std::fwrite(line.data(), 1, line.size(), stderr);
  }
};

class FunctionWarnings final : public Warnings {
 public:
  explicit FunctionWarnings(std::function<void(const Text&)> show) : show_(std::move(show)) {}
  void Show(const Text& message) override { show_(message); }

 private:
  std::function<void(const Text&)> show_;
};

}  // namespace

Warnings::~Warnings() = default;

#ifndef _WIN32
std::shared_ptr<Warnings> Warnings::OfThisSystem() { return ToStandardError(); }
#endif

std::shared_ptr<Warnings> Warnings::ToStandardError() {
  return std::make_shared<StandardErrorWarnings>();
}

std::shared_ptr<Warnings> Warnings::To(std::function<void(const Text& message)> show) {
  if (!show) throw Error::ObjectNotSet("no function is given").WithMember("Warnings.To");
  return std::make_shared<FunctionWarnings>(std::move(show));
}

}  // namespace folivar
