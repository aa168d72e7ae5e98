// Turns a text with light markup and a CSV file of recipients into a letter for each of them.

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

#include "Letter.h"
#include "Markup.h"
#include "Recipients.h"
#include "common/FontOptions.h"
#include "common/InputText.h"
#include "common/Program.h"
#include "common/Typeface.h"
#include "common/UsageError.h"

namespace {

constexpr Program kProgram = {
    "letter",
    "usage: letter [--font NAME [--font-folder FOLDER]...] TEXT.txt RECIPIENTS.csv FOLDER"};

// "letter-001.pdf"
std::string FileName(std::size_t number) {
  std::string digits = std::to_string(number);
  if (digits.size() < 3) digits.insert(0, 3 - digits.size(), '0');
  return "letter-" + digits + ".pdf";
}

bool IsPlain(const std::vector<Piece>& pieces) {
  return std::all_of(pieces.begin(), pieces.end(),
                     [](const Piece& piece) { return IsAscii(piece.text); });
}

void WriteLetters(const std::vector<std::string>& arguments) {
  FontOptions font;
  Options options;
  font.AddTo(options);
  const auto files = ReadOptions(arguments, options);
  if (files.size() != 3) {
    throw UsageError("a text, a file of recipients and an output folder are needed");
  }
  const std::string& text = files[0];
  const std::filesystem::path folder = files[2];
  const Typeface typeface = FindTypeface(font, kProgram);
  const std::vector<Block> blocks = ReadMarkup(text);
  const Recipients recipients = ReadRecipients(files[1]);
  bool arePlain = true;
  std::filesystem::create_directories(folder);
  for (std::size_t index = 0; index < recipients.records.size(); ++index) {
    const auto pieces = PiecesFor(blocks, text, recipients.columns, recipients.records[index]);
    arePlain = arePlain && IsPlain(pieces);
    LayOutLetter(pieces, typeface)->SavePDFFile((folder / FileName(index + 1)).u8string());
  }
  if (font.family.empty() && !arePlain) kProgram.Warn(StandardFaceNotice("Times"));
}

}  // namespace

int main(int argc, char** argv) {
  return kProgram.Run([&] { WriteLetters({argv + 1, argv + argc}); });
}
