#include "tests/support/Picture.h"

#include <gtest/gtest.h>

#include "tests/support/Tools.h"

namespace folivar::test {

std::vector<Picture> PicturesOf(const std::filesystem::path& pdf, int dotsPerInch) {
  const std::string resolution = std::to_string(dotsPerInch);
  const std::vector<std::vector<std::string>> commands = {
      {"mutool", "draw", "-q", "-N", "-r", resolution, "-F", "ppm", "-o", "-", pdf, "1"},
      {"pdftoppm", "-r", resolution, "-singlefile", pdf},
      {"gs", "-q", "-dSAFER", "-dBATCH", "-dNOPAUSE", "-dPDFSTOPONERROR", "-dPDFSTOPONWARNING",
       "-dFirstPage=1", "-dLastPage=1", "-sDEVICE=ppmraw", "-r" + resolution, "-sOutputFile=-",
       pdf}};
  std::vector<Picture> pictures;
  for (const auto& command : commands) {
    const ToolResult result = Run(command);
    EXPECT_EQ(result.status, 0) << command.front() << " " << pdf;
    EXPECT_EQ(result.err, "") << command.front() << " " << pdf;
    pictures.push_back({command.front(), ReadPnm(result.out)});
  }
  return pictures;
}

}  // namespace folivar::test
