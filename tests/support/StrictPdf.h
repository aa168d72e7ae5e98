#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace folivar::test {

// A reader of the exact form in which Folivar writes files, and of nothing else: it shares no code
// with the library and forgives nothing. It walks the file from its first byte to its last, object
// by object; a byte that belongs to nothing is an error.
class StrictPdf {
 public:
  // Throws std::runtime_error, naming what is wrong and at which byte, unless
  // - the file begins with the 15 bytes of the header;
  // - objects 1, 2, 3, ... follow each other with nothing between, each "N 0 obj\n" ... "endobj\n";
  // - brackets and strings in an object are complete, and every reference is to an object there is;
  // - a stream's "/Length" is the number of bytes between "stream\n" and "endstream\n" (images and
  //   font programs: "\nendstream\n"), and only streams have the words;
  // - the table has an entry of 20 bytes for each object, with the object's position;
  // - the trailer is exactly the one that is due, and the file ends with it.
  explicit StrictPdf(std::string bytes);

  // The number of objects; they are numbered from 1.
  std::size_t Count() const { return objects_.size(); }

  // What stands between "N 0 obj\n" and "endobj\n".
  std::string_view Object(std::size_t number) const;

  // A stream's data. Throws std::runtime_error for an object that is no stream.
  std::string_view Stream(std::size_t number) const;
  bool IsStream(std::size_t number) const;

 private:
  struct Extent {
    std::size_t start;
    std::size_t size;
  };
  struct Entry {
    std::size_t position;  // of "N 0 obj"
    Extent text;
    bool isStream;
    Extent data;
  };

  const Entry& At(std::size_t number) const;

  std::string bytes_;
  std::vector<Entry> objects_;
};

}  // namespace folivar::test
