#include "tests/support/Picture.h"

#include <stdexcept>
#include <string>
#include <vector>

#include "tests/support/Tools.h"

namespace folivar::test {
namespace {

constexpr const char* kDotsPerInch = "864";  // 12 for each point
constexpr const char* kDotsToPoints = "8.3333%";

std::string NameOf(Renderer renderer) {
  switch (renderer) {
    case Renderer::kPoppler:
      return "poppler";
    case Renderer::kMuPdf:
      return "mupdf";
    case Renderer::kGhostscript:
      return "ghostscript";
  }
  return {};
}

std::vector<std::string> DrawingCommand(const std::filesystem::path& pdf, Renderer renderer,
                                        const std::filesystem::path& picture) {
  switch (renderer) {
    case Renderer::kPoppler:
      // Appends the ".pgm" by itself.
      return {"pdftoppm",    "-gray", "-r",
              kDotsPerInch,  "-f",    "1",
              "-singlefile", pdf,     std::filesystem::path(picture).replace_extension()};
    case Renderer::kMuPdf:
      return {"mutool", "draw",       "-q", "-N",    "-c", "gray",
              "-r",     kDotsPerInch, "-o", picture, pdf,  "1"};
    case Renderer::kGhostscript:
      return {"gs",
              "-q",
              "-dSAFER",
              "-dBATCH",
              "-dNOPAUSE",
              "-sDEVICE=pgmraw",
              "-dTextAlphaBits=4",
              "-dGraphicsAlphaBits=4",
              "-dLastPage=1",
              std::string("-r") + kDotsPerInch,
              "-sOutputFile=" + picture.string(),
              pdf};
  }
  return {};
}

std::string OutputOf(const std::vector<std::string>& command) {
  const ToolResult result = Run(command);
  if (result.status != 0) throw std::runtime_error(command[0] + " failed: " + result.err);
  return result.out;
}

std::string SizeOf(const std::filesystem::path& picture) {
  return OutputOf({"identify", "-format", "%w by %h", picture});
}

}  // namespace

std::filesystem::path PictureOf(const std::filesystem::path& pdf, Renderer renderer) {
  const std::string stem = pdf.stem().string() + "-" + NameOf(renderer);
  const auto fine = std::filesystem::path(pdf).replace_filename(stem + ".pgm");
  auto picture = std::filesystem::path(pdf).replace_filename(stem + ".png");
  OutputOf(DrawingCommand(pdf, renderer, fine));
  OutputOf({"convert", fine, "-scale", kDotsToPoints, picture});
  std::filesystem::remove(fine);
  return picture;
}

double LargestDifference(const std::filesystem::path& a, const std::filesystem::path& b) {
  if (SizeOf(a) != SizeOf(b)) {
    throw std::runtime_error(a.string() + " is " + SizeOf(a) + ", " + b.string() + " " + SizeOf(b));
  }
  // Prints "8481 (0.129412)" and ends with 1 where there is a difference.
  const ToolResult result = Run({"compare", "-metric", "PAE", a, b, "null:"});
  const std::size_t share = result.err.find('(');
  if (result.status > 1 || share == std::string::npos) {
    throw std::runtime_error("compare failed: " + result.err);
  }
  return std::stod(result.err.substr(share + 1));
}

}  // namespace folivar::test
