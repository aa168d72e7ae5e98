// Writes PDFs over the system's TrueType fonts: what two systems make of the same font files can
// then be compared byte by byte.
//
//   font_pdfs <folder> [<family>...]
//
// Into the folder, which must be there, go fonts.txt, the families that are available; for each
// family named two PDF files with its four styles, embedded and not; warnings.txt; and files.txt,
// what a folder of files that are no fonts has to be read for.

#include <folivar/folivar.h>

#include <algorithm>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace {

using folivar::fontTrueType;

// Every character of Windows code page 1252 but the control characters.
std::vector<std::u16string> EveryCharacter() {
  std::vector<std::u16string> lines(1);
  const auto append = [&](char16_t first, char16_t last) {
    for (char16_t character = first; character <= last; ++character) {
      if (lines.back().size() == 32) lines.emplace_back();
      lines.back() += character;
    }
  };
  append(0x20, 0x7E);
  append(0xA0, 0xFF);
  lines.emplace_back(
      u"\u20AC\u201A\u0192\u201E\u2026\u2020\u2021\u02C6\u2030\u0160\u2039\u0152\u017D"
      u"\u2018\u2019\u201C\u201D\u2022\u2013\u2014\u02DC\u2122\u0161\u203A\u0153\u017E\u0178");
  return lines;
}

// Aligned to a right edge by its measured width; the last line also underlined and struck out for
// that length.
void DrawStyle(folivar::PDFPage& page, const std::shared_ptr<folivar::PDFFont>& font, bool isBold,
               bool isItalic, float top) {
  font->SetBold(isBold);
  font->SetItalic(isItalic);
  font->SetUnderline(true);
  font->SetStrikeOut(true);
  page.SetFont(font);
  float y = top;
  for (const std::u16string& line : EveryCharacter()) {
    page.DrawTextAligned(line, 36, y, 540, 24, folivar::htaRight, folivar::vtaCenter);
    y -= font->Leading();
  }
  page.DrawText(EveryCharacter().back(), 36, y);
}

void SaveSpecimen(const std::string& family, folivar::Embedding embedding,
                  const std::string& fileName, const folivar::Platform& platform) {
  const auto document = folivar::PDFDocument::Create(platform);
  const auto page = document->Pages()->Add();
  float top = 720;
  for (const bool isBold : {false, true}) {
    for (const bool isItalic : {false, true}) {
      DrawStyle(*page, document->Fonts()->Add(family, fontTrueType, embedding), isBold, isItalic,
                top);
      top -= 180;
    }
  }
  document->SavePDFFile(std::filesystem::path(fileName));
}

std::ofstream Open(const std::filesystem::path& fileName) {
  std::ofstream file(fileName, std::ios::binary);
  file.exceptions(std::ios::badbit | std::ios::failbit);
  return file;
}

// The files named like fonts, in the order in which they are read. Where they are is each system's
// own.
void ListFiles(const std::string& folder) {
  const std::filesystem::path files = std::filesystem::path(folder) / "files";
  std::filesystem::create_directories(files / "deep" / "deeper.ttf");
  for (const char8_t* name : {u8"none.ttf", u8"deep/\u00E4.TTC", u8"deep/deeper.ttf/a.Otf",
                              u8".otf", u8"letter.txt", u8"ttf"}) {
    Open(files / std::filesystem::path(name)) << "no font";
  }
  std::ofstream list = Open(folder + "/files.txt");
  for (const folivar::Text& leftOut :
       folivar::FontFiles().AddFolder(std::u8string_view((files.u8string())))) {
    std::string sentence = leftOut.Utf8();
    std::replace(sentence.begin(), sentence.end(), '\\', '/');
    list << sentence.substr(sentence.find("/files/")) << '\n';
  }
}

void WriteAll(const std::string& folder, const std::vector<std::string>& families) {
  std::ofstream warnings = Open(folder + "/warnings.txt");
  folivar::Platform platform;
  platform.warnings = folivar::Warnings::To(
      [&](const folivar::Text& message) { warnings << message.Utf8() << '\n'; });

  std::ofstream fonts = Open(folder + "/fonts.txt");
  const auto document = folivar::PDFDocument::Create(platform);
  for (const auto embedding : {folivar::Embedding::kNone, folivar::Embedding::kEmbed}) {
    fonts << (embedding == folivar::Embedding::kEmbed ? "embeddable:\n" : "all:\n");
    for (const folivar::Text& name : document->Fonts()->AvailableFonts(fontTrueType, embedding)) {
      fonts << name.Utf8() << '\n';
    }
  }
  ListFiles(folder);
  for (const std::string& family : families) {
    const std::string fileName = folder + "/" + family;
    SaveSpecimen(family, folivar::Embedding::kNone, fileName + ".pdf", platform);
    SaveSpecimen(family, folivar::Embedding::kEmbed, fileName + " embedded.pdf", platform);
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) {
    std::cerr << "font_pdfs <folder> [<family>...]\n";
    return 2;
  }
  try {
    WriteAll(argv[1], std::vector<std::string>(argv + 2, argv + argc));
  } catch (const std::exception& error) {
    std::cerr << "font_pdfs: " << error.what() << '\n';
    return 1;
  }
}
