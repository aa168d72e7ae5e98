#pragma once

#include <folivar/folivar.h>

#include <array>
#include <cstddef>
#include <cstdint>

#include "Manual.h"
#include "common/Box.h"
#include "common/Ink.h"
#include "common/Typeface.h"

// What a book looks like. Lengths are points; y grows upwards.

using folivar::Rgb;

constexpr std::int32_t kInk = Rgb(0x1E, 0x21, 0x25);
constexpr std::int32_t kQuietInk = Rgb(0x6B, 0x70, 0x78);
constexpr std::int32_t kTeal = Rgb(0x1F, 0x4E, 0x5F);
constexpr std::int32_t kPale = Rgb(0xC9, 0xDD, 0xE2);
constexpr std::int32_t kOchre = Rgb(0xD9, 0xA4, 0x41);
constexpr std::int32_t kWhite = Rgb(0xFF, 0xFF, 0xFF);
constexpr std::int32_t kHairline = Rgb(0xB8, 0xC4, 0xC8);
constexpr std::int32_t kCodePaper = Rgb(0xF3, 0xF5, 0xF4);

constexpr Box kPage = {0, 0, 481.89F, 680.315F};  // 170 by 240 mm
constexpr Box kText = {56.7F, 58, 368.49F, 566};  // what is filled with text
constexpr float kRight = kText.left + kText.width;
constexpr float kCenter = kText.left + kText.width / 2;
constexpr float kHeadBaseline = 644;
constexpr float kHeadRule = 638;
constexpr float kFootBaseline = 32;

// The fonts of a book, in their colours. Text is in the typeface or, without a family, in Times;
// headings are in its bold face or in Helvetica, code is in Courier.
struct BookStyle {
  BookStyle(folivar::PDFDocument& document, const Typeface& typeface);

  // Text in a style, or a link.
  const TextStyle& Of(const Span& span) const {
    return span.target ? link : text[static_cast<std::size_t>(span.style)];
  }

  std::array<TextStyle, 5> text;  // by Style
  TextStyle link;
  TextStyle code;  // in blocks
  TextStyle title;
  TextStyle subtitle;
  TextStyle chapterNumber;
  std::array<TextStyle, 3> headings;       // by level, from chapters down
  std::array<TextStyle, 3> contentsLines;  // likewise
  TextStyle head;
  TextStyle pageNumber;
};
