#pragma once

#include <folivar/folivar.h>

#include <memory>
#include <string>
#include <vector>

// A sample of the user guide that is a piece of a function.
struct GuideSample {
  int line;  // of the guide, where it begins
  void (*run)(const std::shared_ptr<folivar::PDFDocument>& document,
              const std::shared_ptr<folivar::PDFPage>& page);
  std::string expected;  // what the guide says of the file; empty if it says nothing
};

// In the order of the guide.
extern const std::vector<GuideSample> kGuideSamples;
