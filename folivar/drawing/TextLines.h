#pragma once

#include <cstddef>
#include <string_view>

namespace folivar {

// A text's lines, walked by a range-for. Lines end at "\n", "\r\n" and "\r"; a text without any is
// one line, and so is an empty one. Nothing is copied.
class TextLines {
 public:
  class Iterator {
   public:
    Iterator(std::string_view rest, std::size_t length, bool isEnd)
        : rest_(rest), length_(length), isEnd_(isEnd) {}

    std::string_view operator*() const { return rest_.substr(0, length_); }
    Iterator& operator++();
    friend bool operator==(const Iterator& a, const Iterator& b) {
      return a.isEnd_ == b.isEnd_ && a.rest_.size() == b.rest_.size();
    }

   private:
    std::string_view rest_;  // from this line's start on
    std::size_t length_;     // of this line
    bool isEnd_;
  };

  explicit TextLines(std::string_view bytes, bool mayHaveLineEnds = true);

  std::size_t Count() const { return count_; }
  std::string_view First() const { return bytes_.substr(0, firstLength_); }
  Iterator begin() const { return {bytes_, firstLength_, false}; }
  Iterator end() const { return {bytes_.substr(bytes_.size()), 0, true}; }

 private:
  std::string_view bytes_;
  std::size_t firstLength_;
  std::size_t count_ = 1;
};

}  // namespace folivar
