#include <gtest/gtest.h>

#include <any>
#include <cmath>
#include <cstdint>
#include <limits>
#include <memory>
#include <string>

#include "folivar/base/Error.h"
#include "folivar/base/Value.h"
#include "folivar/folivar.h"
#include "tests/support/Content.h"

namespace folivar::test {
namespace {

int NumberOfInt32Error(const Value& value) {
  return ErrorNumberOf([&] { Int32From(value); });
}

TEST(Value, LeftOutIsMissing) {
  EXPECT_TRUE(Value().IsMissing());
  EXPECT_FALSE(Value().IsEmpty());
  EXPECT_FALSE(Value().IsNull());
  EXPECT_FALSE(Value(0).IsMissing());
  EXPECT_FALSE(Value("").IsMissing());
}

TEST(Value, EmptyAndNullAreKindsOfTheirOwn) {
  EXPECT_TRUE(Value::Empty().IsEmpty());
  EXPECT_FALSE(Value::Empty().IsNull());
  EXPECT_FALSE(Value::Empty().IsMissing());
  EXPECT_TRUE(Value::Null().IsNull());
  EXPECT_FALSE(Value::Null().IsEmpty());
  EXPECT_FALSE(Value::Null().IsMissing());
}

TEST(Value, HoldsWholeNumbersOfEveryWidth) {
  EXPECT_EQ(*Value(std::int8_t{-5}).As<std::int64_t>(), -5);
  EXPECT_EQ(*Value(std::uint16_t{65535}).As<std::int64_t>(), 65535);
  EXPECT_EQ(*Value(7).As<std::int64_t>(), 7);
  EXPECT_EQ(*Value(std::numeric_limits<std::int64_t>::min()).As<std::int64_t>(),
            std::numeric_limits<std::int64_t>::min());
  EXPECT_EQ(*Value(std::uint64_t{1} << 62).As<std::int64_t>(), std::int64_t{1} << 62);
}

TEST(Value, HoldsAWholeNumberBeyond64BitsAsAReal) {
  const Value value(std::uint64_t{1} << 63);
  EXPECT_EQ(value.As<std::int64_t>(), nullptr);
  ASSERT_NE(value.As<double>(), nullptr);
  EXPECT_EQ(*value.As<double>(), std::ldexp(1.0, 63));
}

TEST(Value, HoldsRealsAndFlagsAsSuch) {
  EXPECT_EQ(*Value(1.5).As<double>(), 1.5);
  EXPECT_EQ(*Value(1.5F).As<double>(), 1.5);
  EXPECT_EQ(Value(1.0).As<std::int64_t>(), nullptr);
  EXPECT_TRUE(*Value(true).As<bool>());
  EXPECT_EQ(Value(true).As<std::int64_t>(), nullptr);
  EXPECT_EQ(Value(1).As<bool>(), nullptr);
}

TEST(Value, HoldsTextsAsText) {
  const std::string string = "caf\u00E9";
  EXPECT_EQ(*Value("caf\u00E9").As<Text>(), u"caf\u00E9");
  EXPECT_EQ(*Value(string).As<Text>(), u"caf\u00E9");
  EXPECT_EQ(*Value(std::string_view(string)).As<Text>(), u"caf\u00E9");
  EXPECT_EQ(*Value(u"caf\u00E9").As<Text>(), u"caf\u00E9");
  EXPECT_EQ(*Value(Text("caf\u00E9")).As<Text>(), u"caf\u00E9");
  EXPECT_EQ(*Value(TextView("caf\u00E9")).As<Text>(), u"caf\u00E9");
  EXPECT_EQ(Value("true").As<bool>(), nullptr) << "a pointer is no flag";
}

TEST(Value, RefersToObjects) {
  const std::shared_ptr<PDFDocument> document = PDFDocument::Create();
  const Value value(document);
  ASSERT_NE(value.As<std::shared_ptr<Object>>(), nullptr);
  EXPECT_EQ(*value.As<std::shared_ptr<Object>>(), document);
}

TEST(Value, HoldsAnythingOfTheHosts) {
  const Value value = Value::Host(std::any(42));
  ASSERT_NE(value.As<std::any>(), nullptr);
  EXPECT_EQ(std::any_cast<int>(*value.As<std::any>()), 42);
  EXPECT_EQ(value.As<std::int64_t>(), nullptr);
}

TEST(Value, ACopyIsAValueOfItsOwn) {
  Value original("one");
  const Value copy = original;
  original = Value(2);
  EXPECT_EQ(*copy.As<Text>(), "one");
}

TEST(Value, Raises5ForATextThatIsNotUtf8) {
  EXPECT_EQ(ErrorNumberOf([] { Value value("\xFF"); }), Error::kInvalidArgument);
}

TEST(Int32From, TakesWholeNumbersOf32Bits) {
  EXPECT_EQ(Int32From(Value(0)), 0);
  EXPECT_EQ(Int32From(Value(-1)), -1);
  EXPECT_EQ(Int32From(Value(2147483647)), 2147483647);
  EXPECT_EQ(Int32From(Value(std::int64_t{-2147483648})), std::numeric_limits<std::int32_t>::min());
}

TEST(Int32From, RoundsHalvesToTheEvenNumber) {
  EXPECT_EQ(Int32From(Value(0.5)), 0);
  EXPECT_EQ(Int32From(Value(1.5)), 2);
  EXPECT_EQ(Int32From(Value(2.5)), 2);
  EXPECT_EQ(Int32From(Value(3.5F)), 4);
  EXPECT_EQ(Int32From(Value(-0.5)), 0);
  EXPECT_EQ(Int32From(Value(-1.5)), -2);
  EXPECT_EQ(Int32From(Value(2.4999)), 2);
  EXPECT_EQ(Int32From(Value(2.5001)), 3);
  EXPECT_EQ(Int32From(Value(2147483647.4)), 2147483647);
  EXPECT_EQ(Int32From(Value(-2147483648.5)), std::numeric_limits<std::int32_t>::min());
}

TEST(Int32From, Raises6Beyond32Bits) {
  EXPECT_EQ(NumberOfInt32Error(Value(std::int64_t{2147483648})), Error::kOverflow);
  EXPECT_EQ(NumberOfInt32Error(Value(std::int64_t{-2147483649})), Error::kOverflow);
  EXPECT_EQ(NumberOfInt32Error(Value(std::uint64_t{1} << 63)), Error::kOverflow);
  EXPECT_EQ(NumberOfInt32Error(Value(2147483647.5)), Error::kOverflow);
  EXPECT_EQ(NumberOfInt32Error(Value(-2147483648.6)), Error::kOverflow);
  EXPECT_EQ(NumberOfInt32Error(Value(1e300)), Error::kOverflow);
  EXPECT_EQ(NumberOfInt32Error(Value(std::numeric_limits<double>::infinity())), Error::kOverflow);
  EXPECT_EQ(NumberOfInt32Error(Value(std::numeric_limits<double>::quiet_NaN())), Error::kOverflow);
}

TEST(Int32From, Raises94ForNullAnd13ForWhatIsNoNumber) {
  EXPECT_EQ(NumberOfInt32Error(Value::Null()), Error::kInvalidNull);
  EXPECT_EQ(NumberOfInt32Error(Value()), Error::kTypeMismatch);
  EXPECT_EQ(NumberOfInt32Error(Value::Empty()), Error::kTypeMismatch);
  EXPECT_EQ(NumberOfInt32Error(Value("1")), Error::kTypeMismatch);
  EXPECT_EQ(NumberOfInt32Error(Value(true)), Error::kTypeMismatch);
  EXPECT_EQ(NumberOfInt32Error(Value(PDFDocument::Create())), Error::kTypeMismatch);
  EXPECT_EQ(NumberOfInt32Error(Value::Host(1)), Error::kTypeMismatch);
}

TEST(DoubleFrom, TakesRealsUnroundedAndWholeNumbers) {
  EXPECT_EQ(DoubleFrom(Value(0.1)), 0.1);
  EXPECT_EQ(DoubleFrom(Value(0.1F)), 0.10000000149011612);
  EXPECT_EQ(DoubleFrom(Value(-1e300)), -1e300);
  EXPECT_EQ(DoubleFrom(Value(-7)), -7);
  EXPECT_EQ(DoubleFrom(Value(std::int64_t{1} << 53)), 9007199254740992);
  EXPECT_EQ(DoubleFrom(Value(std::uint64_t{1} << 63)), 9223372036854775808.0);
}

TEST(DoubleFrom, Raises94ForNullAnd13ForWhatIsNoNumber) {
  EXPECT_EQ(ErrorNumberOf([] { DoubleFrom(Value::Null()); }), Error::kInvalidNull);
  EXPECT_EQ(ErrorNumberOf([] { DoubleFrom(Value()); }), Error::kTypeMismatch);
  EXPECT_EQ(ErrorNumberOf([] { DoubleFrom(Value::Empty()); }), Error::kTypeMismatch);
  EXPECT_EQ(ErrorNumberOf([] { DoubleFrom(Value("1")); }), Error::kTypeMismatch);
  EXPECT_EQ(ErrorNumberOf([] { DoubleFrom(Value(true)); }), Error::kTypeMismatch);
}

TEST(Value, FlagsAndNumbersMakeFlags) {
  EXPECT_TRUE(BoolFrom(true));
  EXPECT_FALSE(BoolFrom(false));
  EXPECT_TRUE(BoolFrom(-1));
  EXPECT_FALSE(BoolFrom(0));
  EXPECT_TRUE(BoolFrom(0.25));
  EXPECT_FALSE(BoolFrom(-0.0));
}

TEST(Value, WhatIsNoFlagRaises) {
  EXPECT_EQ(ErrorNumberOf([] { BoolFrom("true"); }), Error::kTypeMismatch);
  EXPECT_EQ(ErrorNumberOf([] { BoolFrom(Value()); }), Error::kTypeMismatch);
  EXPECT_EQ(ErrorNumberOf([] { BoolFrom(Value::Empty()); }), Error::kTypeMismatch);
  EXPECT_EQ(ErrorNumberOf([] { BoolFrom(Value::Null()); }), Error::kInvalidNull);
}

}  // namespace
}  // namespace folivar::test
