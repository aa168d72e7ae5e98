#include "folivar/navigation/Region.h"

#include <string>

#include "folivar/base/InMember.h"
#include "folivar/base/KeyedName.h"
#include "folivar/base/Numbers.h"
#include "folivar/navigation/PDFHyperLink.h"
#include "folivar/navigation/PDFLinkDestination.h"

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

// What errors call the class.
template <class Owner>
constexpr const char* kClassName = nullptr;
template <>
constexpr const char* kClassName<PDFHyperLink> = "PDFHyperLink";
template <>
constexpr const char* kClassName<PDFLinkDestination> = "PDFLinkDestination";

std::string NameOf(const PDFHyperLink& link) { return KeyedName("PDFHyperLink", link.Key()); }
// It has no key.
std::string NameOf(const PDFLinkDestination&) { return {}; }

template <class Owner, class Action>
decltype(auto) InMemberOf(const Region<Owner>& region, const char* member, Action action) {
  return InMember(kClassName<Owner>, member, [&] {
    return OfObject([&] { return NameOf(static_cast<const Owner&>(region)); }, action);
  });
}

}  // namespace

template <class Owner>
void Region<Owner>::SetRegion(float left, float bottom, float width, float height) {
  InMemberOf(*this, "SetRegion", [&] {
    const Span across = SpanOf(left, width);
    const Span upwards = SpanOf(bottom, height);
    left_ = across.low;
    right_ = across.high;
    bottom_ = upwards.low;
    top_ = upwards.high;
  });
}

template <class Owner>
float Region<Owner>::Width() const {
  return InMemberOf(*this, "Width", [&] { return Finite(right_ - left_); });
}

template <class Owner>
void Region<Owner>::SetWidth(float width) {
  InMemberOf(*this, "Width", [&] {
    const Span across = SpanOf(left_, width);
    left_ = across.low;
    right_ = across.high;
  });
}

template <class Owner>
float Region<Owner>::Height() const {
  return InMemberOf(*this, "Height", [&] { return Finite(top_ - bottom_); });
}

// Deliberate: downwards from the top, which a height of 100 leaves at 700 with the bottom at 600;
// SetRegion measures upwards. Hosts of the automation interface count on both.
template <class Owner>
void Region<Owner>::SetHeight(float height) {
  InMemberOf(*this, "Height", [&] {
    const Span downwards = SpanOf(top_, -height);
    bottom_ = downwards.low;
    top_ = downwards.high;
  });
}

template class Region<PDFHyperLink>;
template class Region<PDFLinkDestination>;

}  // namespace folivar
