#pragma once

#include <string>
#include <vector>

#include "Json.h"

namespace facade {

// Writes down what a program does with the library, into the file that the environment variable
// FOLIVAR_RECORD names; without it, nowhere. A line is a step:
//
//   ["create", "PDFDocument", "o1"]
//   ["reach", "o1", "Pages", [], "o2"]
//   ["reach", "o2", "Add", ["cover"], "o3"]
//   ["set", "o3", "Width", 595.0]
//   ["call", "o3", "DrawText", ["Hello", 72.0, 720.0]]
//   ["get", "o3", "Height", [], 792.0]
//   ["release", "o3"]
//
// script/write makes a script of it.
class Recording {
 public:
  static void Add(const std::vector<Json>& step);

  // Names of objects; each is used again when it is given back.
  static std::string NewName();
  static void GiveBack(const std::string& name);
};

}  // namespace facade
