#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "tests/hosts/c/Held.h"
#include "tests/support/TestFiles.h"

namespace folivar::test {
namespace {

// Adds a font that is not there, which is a warning.
std::int32_t Warn(folivar_PDFDocument* document) {
  folivar_PDFFonts* fonts = nullptr;
  folivar_PDFFont* font = nullptr;
  EXPECT_EQ(folivar_PDFDocument_Fonts(document, &fonts), 0);
  const Held<folivar_PDFFonts> held(fonts);
  const std::int32_t error =
      folivar_PDFFonts_Add(fonts, "No such face", folivar_fontType1, false, &font);
  folivar_release(font);
  return error;
}

// The text of the warning, from a callback; and what the callback fails with.
struct Heard {
  std::string text;
  std::int32_t failure = 0;
  int released = 0;

  folivar_callback Callback() {
    const auto call = [](void* context, const folivar_value* arguments, std::size_t count) {
      EXPECT_EQ(count, 1U);
      EXPECT_EQ(arguments[0].kind, FOLIVAR_TEXT);
      auto* heard = static_cast<Heard*>(context);
      heard->text.append(arguments[0].as.text, arguments[0].with.length);
      return heard->failure;
    };
    const auto release = [](void* context) { ++static_cast<Heard*>(context)->released; };
    return {call, release, this};
  }
};

std::string TextOfTheWarning() {
  Heard heard;
  const folivar_callback callback = heard.Callback();
  EXPECT_EQ(Warn(NewDocument(&callback)), 0);
  EXPECT_EQ(heard.released, 1);
  return heard.text;
}

class CWarnings : public testing::Test {
 protected:
  ~CWarnings() override {
    unsetenv("FOLIVAR_WARNINGS");
    unsetenv("FOLIVAR_WARNINGS_FILE");
  }
};

TEST_F(CWarnings, GoToACallback) {
  EXPECT_NE(TextOfTheWarning().find("No such face"), std::string::npos);
}

TEST_F(CWarnings, AFailureOfTheCallbackReachesTheCaller) {
  Heard heard{{}, -5, 0};
  const folivar_callback callback = heard.Callback();
  EXPECT_EQ(Warn(NewDocument(&callback)), -5);
  EXPECT_EQ(folivar_last_error()->number, -5);
}

TEST_F(CWarnings, CallbacksOfDocumentsThatCannotBeMadeAreReleased) {
  Heard heard;
  const folivar_callback callback = heard.Callback();
  folivar_object* object = nullptr;
  EXPECT_EQ(folivar_create("PDFNothing", &callback, &object), 5);
  EXPECT_EQ(heard.released, 1);
}

TEST_F(CWarnings, GoToStandardErrorWithoutOne) {
  testing::internal::CaptureStderr();
  EXPECT_EQ(Warn(NewDocument()), 0);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), TextOfTheWarning() + "\n");
}

TEST_F(CWarnings, GoWhereTheEnvironmentSaysForEach) {
  const std::string path = OutputPath("warnings.txt").string();
  const auto document = NewDocument();
  testing::internal::CaptureStderr();
  setenv("FOLIVAR_WARNINGS", "log", 1);
  setenv("FOLIVAR_WARNINGS_FILE", path.c_str(), 1);
  EXPECT_EQ(Warn(document), 0);
  EXPECT_EQ(Warn(NewDocument()), 0);
  setenv("FOLIVAR_WARNINGS", "off", 1);
  EXPECT_EQ(Warn(NewDocument()), 0);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  const std::string line = TextOfTheWarning() + "\n";
  EXPECT_EQ(ReadBytes(path), line + line);
}

TEST_F(CWarnings, GoToStandardErrorWhenThereIsNoLog) {
  testing::internal::CaptureStderr();
  setenv("FOLIVAR_WARNINGS", "log", 1);
  EXPECT_EQ(Warn(NewDocument()), 0);
  setenv("FOLIVAR_WARNINGS_FILE", (OutputPath("no such folder") / "log").c_str(), 1);
  EXPECT_EQ(Warn(NewDocument()), 0);
  const std::string line = TextOfTheWarning() + "\n";
  EXPECT_EQ(testing::internal::GetCapturedStderr(), line + line);
}

}  // namespace
}  // namespace folivar::test
