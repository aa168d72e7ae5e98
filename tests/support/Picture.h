#pragma once

#include <filesystem>

namespace folivar::test {

enum class Renderer { kPoppler, kMuPdf, kGhostscript };

// The first page as this program draws it, in grey, brought down to one pixel for each point: the
// mean of 144, so that it hardly matters how a program smooths edges and rounds places. The page
// must be whole points wide and high. The picture lies beside the PDF.
std::filesystem::path PictureOf(const std::filesystem::path& pdf, Renderer renderer);

// The largest difference between two pixels at one place, from 0 to 1 (black and white). Both
// functions throw std::runtime_error when a tool fails, this one for pictures of different sizes
// too.
double LargestDifference(const std::filesystem::path& a, const std::filesystem::path& b);

}  // namespace folivar::test
