#pragma once

#include <folivar/folivar.h>

#include <memory>
#include <string>
#include <vector>

// One picture of a catalogue; texts are UTF-8, single lines.
struct Picture {
  std::shared_ptr<folivar::PDFImage> image;
  std::string title;
  std::string caption;
};

// Adds the pictures to the document that a CSV file names. Its header names the columns picture (a
// file in `folder`), title and caption, in any order; further columns are ignored. Throws
// InputError, naming the line, also for a picture that is missing or of an unknown type, which it
// names too.
std::vector<Picture> ReadPictures(const std::string& captions, const std::string& folder,
                                  folivar::PDFDocument& document);
