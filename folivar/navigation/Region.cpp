#include "folivar/navigation/Region.h"

#include "folivar/base/InMember.h"
#include "folivar/base/Numbers.h"

namespace folivar {
namespace {

struct Span {
  float low;
  float high;
};

// From `start` so far in either direction.
Span SpanOf(float start, float length) {
  const float end = Finite(start + length);
  return length >= 0 ? Span{start, end} : Span{end, start};
}

}  // namespace

void Region::SetRegion(float left, float bottom, float width, float height) {
  InMember("SetRegion", [&] {
    const Span across = SpanOf(left, width);
    const Span upwards = SpanOf(bottom, height);
    left_ = across.low;
    right_ = across.high;
    bottom_ = upwards.low;
    top_ = upwards.high;
  });
}

float Region::Width() const {
  return InMember("Width", [&] { return Finite(right_ - left_); });
}

void Region::SetWidth(float width) {
  InMember("Width", [&] {
    const Span across = SpanOf(left_, width);
    left_ = across.low;
    right_ = across.high;
  });
}

float Region::Height() const {
  return InMember("Height", [&] { return Finite(top_ - bottom_); });
}

// Deliberate: downwards from the top, which a height of 100 leaves at 700 with the bottom at 600;
// SetRegion measures upwards. Hosts of the automation interface count on both.
void Region::SetHeight(float height) {
  InMember("Height", [&] {
    const Span downwards = SpanOf(top_, -height);
    bottom_ = downwards.low;
    top_ = downwards.high;
  });
}

}  // namespace folivar
