// Turns a text with light markup and a CSV file of recipients into a letter for each of them.

#include <cstddef>
#include <exception>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include "Letter.h"
#include "Markup.h"
#include "Recipients.h"

namespace {

// "letter-001.pdf"
std::string FileName(std::size_t number) {
  std::string digits = std::to_string(number);
  if (digits.size() < 3) digits.insert(0, 3 - digits.size(), '0');
  return "letter-" + digits + ".pdf";
}

void WriteLetters(const std::string& text, const std::string& list, const std::string& folder) {
  const std::vector<Block> blocks = ReadMarkup(text);
  const Recipients recipients = ReadRecipients(list);
  std::filesystem::create_directories(folder);
  for (std::size_t index = 0; index < recipients.records.size(); ++index) {
    const auto letter =
        LayOutLetter(PiecesFor(blocks, text, recipients.columns, recipients.records[index]));
    letter->SavePDFFile((std::filesystem::path(folder) / FileName(index + 1)).u8string());
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 4) {
    std::cerr << "usage: letter TEXT.txt RECIPIENTS.csv FOLDER\n";
    return 2;
  }
  try {
    WriteLetters(argv[1], argv[2], argv[3]);
    return 0;
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
  }
}
