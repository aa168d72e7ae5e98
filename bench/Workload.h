#pragma once

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <exception>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// The work that every library is given: the same texts, coordinates and colours, in the same order.
// A program names its Document and calls RunWorkload<Document>(argc, argv) from main. A Document
// writes one file:
//
//   Document(std::string path, std::string fontFile);
//   void BeginPage();                                   // US Letter, font size 10
//   void DrawText(const std::string& line, Point at);   // one line of text
//   void StrokeLine(Color, Point from, Point to);
//   void StrokeRect(Color, Rect);
//   void FillRect(Color, Rect);
//   void PaintRect(Color stroke, Color fill, Rect);     // fills, then strokes
//   void EndPage();
//   void MakeTemplate(const Letterhead&);               // one in a document
//   void PlaceTemplate(Point origin);
//   void FillBox(const RichText&);                      // one box of wrapped text on the page
//   void MakePages(std::size_t count);                  // empty ones, counted from 0
//   void AddLink(std::size_t page, Rect, Place);        // without a border; page after page
//   Mark AddMark(const Mark& parent, const std::string& title, Place);  // Mark() at the top
//   void Save();
//
// with a type Mark for a bookmark, and, if it can place the pictures in files:
//
//   Picture LoadPicture(const std::string& path);
//   void DrawPicture(const Picture&, Rect);
//
// and, if text in a box can be given another colour:
//
//   void ColorText(std::size_t start, std::size_t length, Color);
//
// Lengths are points from the bottom left corner of the page. Text is in the TrueType font of the
// font file, which is embedded; without a font file it is in Helvetica.

namespace bench {

inline constexpr float kPageWidth = 612;
inline constexpr float kPageHeight = 792;
inline constexpr float kFontSize = 10;

struct Point {
  float x;
  float y;
};

struct Rect {
  float left;
  float bottom;
  float width;
  float height;
};

// What every picture measures.
inline constexpr int kPictureWidth = 2001;
inline constexpr int kPictureHeight = 2000;
inline constexpr std::size_t kPictureCount = 20;

// Where bookmarks and links lead: a page and its upper left corner in the window.
struct Place {
  std::size_t page;
  Point corner;
};

struct Color {
  std::uint8_t red;
  std::uint8_t green;
  std::uint8_t blue;
};

// The same numbers in every program.
class Sequence {
 public:
  std::uint32_t Below(std::uint32_t limit) {
    state_ = state_ * 6364136223846793005U + 1442695040888963407U;
    return static_cast<std::uint32_t>(((state_ >> 32) * limit) >> 32);
  }

 private:
  std::uint64_t state_ = 20240229;
};

// Lines of 80 characters, like those of a ledger; one in eight has parentheses.
class Lines {
 public:
  static constexpr std::size_t kCount = 64;

  Lines() {
    static constexpr std::array<std::string_view, 12> kWords = {
        "invoice", "delivery", "transfer", "of", "the",    "monthly",
        "account", "balance",  "paid",     "by", "cheque", "received"};
    Sequence sequence;
    for (std::size_t i = 0; i < lines_.size(); ++i) {
      std::string line = std::to_string(100000 + sequence.Below(900000));
      while (line.size() < kLength) {
        const std::string word(kWords[sequence.Below(kWords.size())]);
        line += i % 8 == 0 && line.size() < 20 ? " (" + word + ")" : " " + word;
      }
      line.resize(kLength - 1);
      lines_[i] = line + ".";
    }
  }

  const std::string& At(std::size_t number) const { return lines_[number % lines_.size()]; }

 private:
  static constexpr std::size_t kLength = 80;
  std::array<std::string, kCount> lines_;
};

// What a template shows within its box: lines of text in a black frame.
struct Letterhead {
  static constexpr Rect kBox = {0, 0, 468, 72};
  static constexpr Rect kFrame = {1, 1, 466, 70};
  static Point PlaceOf(std::size_t line) { return {6, 56.5F - 11.75F * static_cast<float>(line)}; }

  std::array<std::string, 5> lines;  // without parentheses
};

// A text in two styles, Helvetica 10 regular and bold, wrapped to a width.
struct RichText {
  static constexpr float kLeft = 106;
  static constexpr float kTop = 760;
  static constexpr float kWidth = 400;

  struct Run {
    std::size_t start;
    std::size_t length;
    bool isBold;
  };
  std::string text;  // without line ends
  std::vector<Run> runs;
};

// Texts of 4,000 characters, the style changing every few words.
class RichTexts {
 public:
  explicit RichTexts(const Lines& lines) {
    Sequence sequence;
    for (std::size_t i = 0; i < texts_.size(); ++i) {
      RichText& rich = texts_[i];
      for (std::size_t line = i; rich.text.size() < kLength; ++line) {
        rich.text += lines.At(line) + " ";
      }
      rich.text.resize(kLength);
      bool isBold = false;
      for (std::size_t start = 0; start < kLength; isBold = !isBold) {
        std::size_t end = rich.text.find(' ', start + 5 + sequence.Below(40));
        end = end == std::string::npos ? kLength : end + 1;
        rich.runs.push_back({start, end - start, isBold});
        start = end;
      }
    }
  }

  const RichText& At(std::size_t number) const { return texts_[number % texts_.size()]; }

 private:
  static constexpr std::size_t kLength = 4000;
  std::array<RichText, 16> texts_;
};

template <class Document>
class Workloads {
 public:
  // `input` is what a workload reads: for those that place pictures their folder, which has 0.jpg,
  // 1.jpg and so on; for others a font file, or nothing.
  Workloads(std::string folder, std::string input)
      : folder_(std::move(folder)), input_(std::move(input)) {}

  // `size` pages of `lineCount` lines.
  void Text(std::size_t size, std::size_t lineCount) {
    Document document(PathOf(0), input_);
    for (std::size_t page = 0; page < size; ++page) AddTextPage(document, page, lineCount);
    document.Save();
  }

  // `size` pages that place one template.
  void Template(std::size_t size) {
    Document document(PathOf(0), input_);
    Letterhead letterhead;
    for (std::size_t i = 0; i < letterhead.lines.size(); ++i) {
      letterhead.lines[i] = lines_.At(1 + i);
    }
    document.MakeTemplate(letterhead);
    for (std::size_t page = 0; page < size; ++page) {
      document.BeginPage();
      document.PlaceTemplate({72, 700.25F});
      document.EndPage();
    }
    document.Save();
  }

  // `size` pages of one box of rich text.
  void Rich(std::size_t size) {
    const RichTexts texts(lines_);
    Document document(PathOf(0), input_);
    for (std::size_t page = 0; page < size; ++page) {
      document.BeginPage();
      document.FillBox(texts.At(page));
      document.EndPage();
    }
    document.Save();
  }

  // One box of `size` texts on end.
  void Box(std::size_t size) {
    Document document(PathOf(0), input_);
    document.BeginPage();
    document.FillBox(TextsOnEnd(size));
    document.EndPage();
    document.Save();
  }

  // One box of some 10,000 runs, of which `size` short stretches anywhere are then coloured.
  void Selections(std::size_t size) {
    if constexpr (requires(Document & document) { document.ColorText(0, 0, Color{}); }) {
      const RichText text = TextsOnEnd(70);
      Document document(PathOf(0), input_);
      document.BeginPage();
      document.FillBox(text);
      Sequence sequence;
      for (std::size_t number = 0; number < size; ++number) {
        const std::size_t start = sequence.Below(static_cast<std::uint32_t>(text.text.size()));
        const std::size_t length = std::min<std::size_t>(10, text.text.size() - start);
        const bool isRed = number % 2 == 0;
        document.ColorText(start, length, isRed ? Color{255, 0, 0} : Color{0, 0, 0});
      }
      document.EndPage();
      document.Save();
    } else {
      throw std::runtime_error("There is no way to colour text in a box");
    }
  }

  // `size` pages of 1,000 lines and rectangles, each with colours of its own.
  void Vector(std::size_t size) {
    Document document(PathOf(0), input_);
    for (std::size_t page = 0; page < size; ++page) {
      document.BeginPage();
      for (std::size_t primitive = 0; primitive < 1000; ++primitive) Draw(document, primitive % 4);
      document.EndPage();
    }
    document.Save();
  }

  // `size` pages, each with one of the pictures in files with this extension, in turn.
  void Pictures(std::size_t size, const std::string& extension) {
    if constexpr (requires(Document & document) { document.LoadPicture(extension); }) {
      Document document(PathOf(0), "");
      std::vector<decltype(document.LoadPicture(extension))> pictures;
      for (std::size_t number = 0; number < kPictureCount; ++number) {
        pictures.push_back(document.LoadPicture(input_ + "/" + std::to_string(number) + extension));
      }
      for (std::size_t page = 0; page < size; ++page) {
        document.BeginPage();
        document.DrawPicture(pictures[page % kPictureCount], {36, 126, 540, 540});
        document.EndPage();
      }
      document.Save();
    } else {
      throw std::runtime_error("There is no way to place pictures");
    }
  }

  // `size` pages of 20 links each. For ten pages there are 100 bookmarks: a chapter of nine
  // sections, each of ten parts.
  void Navigation(std::size_t size) {
    Document document(PathOf(0), input_);
    document.MakePages(size);
    for (std::size_t page = 0; page < size; ++page) {
      for (std::size_t link = 0; link < 20; ++link) {
        const float bottom = 742.5F - 36.25F * static_cast<float>(link);
        document.AddLink(page, {72, bottom, Hundredths(40000), 12.5F}, NextPlace(size));
      }
    }
    using Mark = typename Document::Mark;
    for (std::size_t chapter = 0; chapter < size / 10; ++chapter) {
      const Mark first = document.AddMark(Mark(), TitleOf(chapter, 0, 0), NextPlace(size));
      for (std::size_t section = 1; section <= 9; ++section) {
        const Mark second = document.AddMark(first, TitleOf(chapter, section, 0), NextPlace(size));
        for (std::size_t part = 1; part <= 10; ++part) {
          document.AddMark(second, TitleOf(chapter, section, part), NextPlace(size));
        }
      }
    }
    document.Save();
  }

  // `size` documents of one page with `lineCount` lines.
  void Documents(std::size_t size, std::size_t lineCount) {
    for (std::size_t number = 0; number < size; ++number) {
      Document document(PathOf(number), input_);
      AddTextPage(document, number, lineCount);
      document.Save();
    }
  }

 private:
  std::string PathOf(std::size_t number) const {
    return folder_ + "/" + std::to_string(number) + ".pdf";
  }

  RichText TextsOnEnd(std::size_t count) const {
    const RichTexts texts(lines_);
    RichText all;
    for (std::size_t number = 0; number < count; ++number) {
      const RichText& text = texts.At(number);
      for (const RichText::Run& run : text.runs) {
        all.runs.push_back({all.text.size() + run.start, run.length, run.isBold});
      }
      all.text += text.text;
    }
    return all;
  }

  void AddTextPage(Document& document, std::size_t page, std::size_t lineCount) {
    document.BeginPage();
    for (std::size_t i = 0; i < lineCount; ++i) {
      document.DrawText(lines_.At(page + i), {72, 750.5F - 11.75F * static_cast<float>(i)});
    }
    document.EndPage();
  }

  void Draw(Document& document, std::size_t kind) {
    const Point at = NextPoint();
    if (kind == 0) {
      document.StrokeLine(NextColor(), at, NextPoint());
      return;
    }
    const Rect rect = {at.x, at.y, Hundredths(5000), Hundredths(5000)};
    if (kind == 1) document.StrokeRect(NextColor(), rect);
    if (kind == 2) document.FillRect(NextColor(), rect);
    if (kind == 3) {
      const Color stroke = NextColor();
      document.PaintRect(stroke, NextColor(), rect);
    }
  }

  // "12.3.4 delivery paid by", without parentheses.
  std::string TitleOf(std::size_t chapter, std::size_t section, std::size_t part) const {
    const std::string& line = lines_.At(8 * (chapter + section) + 1 + part % 7);
    return std::to_string(chapter + 1) + "." + std::to_string(section) + "." +
           std::to_string(part) + line.substr(6, 24);
  }

  Place NextPlace(std::size_t pageCount) {
    const std::size_t page = sequence_.Below(static_cast<std::uint32_t>(pageCount));
    return {page, NextPoint()};
  }

  float Hundredths(std::uint32_t limit) { return static_cast<float>(sequence_.Below(limit)) / 100; }

  Point NextPoint() {
    const float x = Hundredths(56000);
    return {x, Hundredths(74000)};
  }

  Color NextColor() {
    const std::uint32_t bits = sequence_.Below(0x1000000);
    return {static_cast<std::uint8_t>(bits), static_cast<std::uint8_t>(bits >> 8),
            static_cast<std::uint8_t>(bits >> 16)};
  }

  std::string folder_;
  std::string input_;
  Lines lines_;
  Sequence sequence_;
};

// NAME SIZE FOLDER [INPUT]; the files are FOLDER/0.pdf, FOLDER/1.pdf and so on.
template <class Document>
void RunNamed(std::string_view name, std::size_t size, const std::string& folder,
              const std::string& input) {
  Workloads<Document> workloads(folder, input);
  if (name == "text") {
    workloads.Text(size, 60);
  } else if (name == "light") {
    workloads.Text(size, 5);
  } else if (name == "empty") {
    workloads.Text(size, 0);
  } else if (name == "template") {
    workloads.Template(size);
  } else if (name == "rich") {
    workloads.Rich(size);
  } else if (name == "box") {
    workloads.Box(size);
  } else if (name == "selections") {
    workloads.Selections(size);
  } else if (name == "vector") {
    workloads.Vector(size);
  } else if (name == "jpeg") {
    workloads.Pictures(size, ".jpg");
  } else if (name == "bmp") {
    workloads.Pictures(size, ".bmp");
  } else if (name == "navigation") {
    workloads.Navigation(size);
  } else if (name == "small") {
    workloads.Documents(size, 5);
  } else if (name == "startup") {
    workloads.Documents(size, 1);
  } else {
    throw std::runtime_error("There is no workload '" + std::string(name) + "'");
  }
}

inline std::size_t NumberFrom(std::string_view digits) {
  std::size_t number = 0;
  const auto parsed = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  if (parsed.ec != std::errc() || parsed.ptr != digits.data() + digits.size()) {
    throw std::runtime_error("'" + std::string(digits) + "' is no number");
  }
  return number;
}

template <class Document>
int RunWorkload(int argc, char** argv) {
  try {
    if (argc != 4 && argc != 5) {
      throw std::runtime_error("Arguments: WORKLOAD SIZE FOLDER [INPUT]");
    }
    RunNamed<Document>(argv[1], NumberFrom(argv[2]), argv[3], argc == 5 ? argv[4] : "");
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s: %s\n", argv[0], error.what());
    return 1;
  }
}

}  // namespace bench
