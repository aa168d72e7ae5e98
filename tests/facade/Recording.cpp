#include "Recording.h"

#include <cstdlib>
#include <fstream>

namespace facade {
namespace {

std::ofstream OpenedRecording() {
  const char* path = std::getenv("FOLIVAR_RECORD");
  return path == nullptr ? std::ofstream() : std::ofstream(path, std::ios::binary);
}

std::vector<std::string> freeNames;
int names = 0;

}  // namespace

void Recording::Add(const std::vector<Json>& step) {
  static std::ofstream recording = OpenedRecording();
  recording << Json(step).Ascii() << '\n';
}

std::string Recording::NewName() {
  if (freeNames.empty()) return "o" + std::to_string(++names);
  std::string name = freeNames.back();
  freeNames.pop_back();
  return name;
}

void Recording::GiveBack(const std::string& name) {
  Add({"release", name});
  freeNames.push_back(name);
}

}  // namespace facade
