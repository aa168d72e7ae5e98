#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "folivar/folivar.h"
#include "tests/support/Random.h"
#include "tests/support/SavedDocument.h"
#include "tests/support/Tools.h"

// Outlines and links as programs of other people read them, against the calls that made them.

namespace folivar::test {
namespace {

// Numbers that both singles and decimals hold exactly.
std::string Digits(float number) {
  std::string digits = std::to_string(number);
  digits.erase(digits.find_last_not_of('0') + 1);
  if (digits.back() == '.') digits.pop_back();
  return digits;
}

struct Edges {
  float left = 0;
  float bottom = 0;
  float right = 0;
  float top = 0;
};

struct Destination {
  std::size_t page = 0;  // from 1; 0 for none
  int mode = dsXYZ;
  Edges edges;
  float zoom = 0;

  std::string AsText() const {
    const std::string left = " " + Digits(edges.left);
    const std::string top = " " + Digits(edges.top);
    if (page == 0) return "none";
    const std::array<std::string, 5> views = {
        "XYZ" + left + top + " " + Digits(zoom), "Fit", "FitH" + top, "FitV" + left,
        "FitR" + left + " " + Digits(edges.bottom) + " " + Digits(edges.right) + top};
    return std::to_string(page) + " " + views.at(static_cast<std::size_t>(mode));
  }
};

struct Mark {
  std::string title;
  bool expanded = false;
  Destination destination;
  std::vector<Mark> below;
};

struct Link {
  std::size_t page = 0;
  Edges edges;
  int highlight = 0;
  bool isBorderSet = false;
  float width = 1;
  float dashOn = 1;
  float dashOff = 0;
  std::array<std::uint8_t, 3> color{};  // red, green, blue
  Destination destination;
};

// A document at random, and what was asked for.
class RandomDocument {
 public:
  explicit RandomDocument(Random& random) : random_(random) {
    const std::size_t pageCount = 1 + random.Below(6);
    for (std::size_t i = 0; i < pageCount; ++i) pages_.push_back(document_->Pages()->Add());
    AddMarks(*document_->Bookmarks(), marks_, 1);
    for (std::size_t page = 1; page <= pageCount; ++page) {
      for (std::size_t i = random.Below(5); i > 0; --i) AddLink(page);
    }
  }

  PDFDocument& Document() { return *document_; }

  // The lines that tests/readers/navigation.js is to print. Of highlights, and of a border that is
  // there without an entry, pdf.js tells nothing; MuPDF and qpdf tell the outline's own count.
  std::string Lines(bool isPdfjs) const {
    std::string lines = "file\n";
    if (!isPdfjs) {
      const int visible = VisibleIn(marks_);
      lines += "outline count " + (visible == 0 ? "none" : std::to_string(visible)) + "\n";
    }
    AppendMarks(marks_, 1, lines);
    for (const Link& link : links_) {
      lines += "link " + std::to_string(link.page) + " rect " + Digits(link.edges.left) + " " +
               Digits(link.edges.bottom) + " " + Digits(link.edges.right) + " " +
               Digits(link.edges.top) + " highlight " + Highlight(link, isPdfjs) + " border " +
               Border(link) + " color";
      for (const std::uint8_t share : link.color) lines += " " + std::to_string(share);
      lines += " dest " + link.destination.AsText() + "\n";
    }
    return lines;
  }

 private:
  static int VisibleIn(const std::vector<Mark>& marks) {
    int visible = 0;
    for (const Mark& mark : marks) visible += 1 + (mark.expanded ? VisibleIn(mark.below) : 0);
    return visible;
  }

  static void AppendMarks(const std::vector<Mark>& marks, int depth, std::string& lines) {
    for (const Mark& mark : marks) {
      const int visible = VisibleIn(mark.below);
      lines += "bookmark " + std::to_string(depth) + " count " +
               (visible == 0 ? "none" : std::to_string(mark.expanded ? visible : -visible)) +
               " dest " + mark.destination.AsText() + " title " + mark.title + "\n";
      AppendMarks(mark.below, depth + 1, lines);
    }
  }

  static std::string Highlight(const Link& link, bool isPdfjs) {
    static constexpr std::array<const char*, 5> kNames = {"none", "N", "I", "O", "P"};
    return isPdfjs ? "untold" : kNames.at(static_cast<std::size_t>(link.highlight));
  }

  static std::string Border(const Link& link) {
    if (!link.isBorderSet) return "none";
    if (link.width == 0 || link.dashOn == 0) return "1 0 1";
    if (link.width == 1 && link.dashOff == 0) return "none";
    return Digits(link.width) + " " + Digits(link.dashOn) + " " + Digits(link.dashOff);
  }

  float Quarters(std::size_t limit) { return static_cast<float>(random_.Below(4 * limit)) / 4; }

  std::string RandomTitle() {
    // Behind the accented letters always stands a hyphen: one of the characters that titles have
    // from 0x80 on would make UTF-8 of them, which MuPDF then reads.
    static constexpr std::array<std::string_view, 15> kParts = {"(",
                                                                ")",
                                                                "\\",
                                                                "Chapter",
                                                                " ",
                                                                "1",
                                                                "\xC3\xA9-",
                                                                "\xC3\x9F-",
                                                                "(a)",
                                                                ":-)",
                                                                "\xE2\x80\x93",
                                                                "\xE2\x82\xAC",
                                                                "\xE2\x80\x9C",
                                                                "\xC5\x81",
                                                                "\xD0\x96"};
    std::string title = std::to_string(titleCount_++);
    for (std::size_t i = random_.Below(12); i > 0; --i)
      title += kParts[random_.Below(kParts.size())];
    return title + ".";
  }

  Destination Lead(PDFLinkDestination& destination) {
    Destination lead;
    if (random_.Chance(15)) return lead;
    lead.page = 1 + random_.Below(pages_.size());
    lead.mode = static_cast<int>(random_.Below(5));
    lead.edges = RandomEdges(destination);
    lead.zoom = Quarters(4);
    destination.SetPage(pages_[lead.page - 1]);
    destination.SetDestinationMode(static_cast<PDFDestinationStyle>(lead.mode));
    destination.SetZoom(lead.zoom);
    return lead;
  }

  // Sets them by one of the ways there are.
  template <class Owner>
  Edges RandomEdges(Owner& owner) {
    const float left = Quarters(300);
    const float bottom = Quarters(400);
    const float width = 20 + Quarters(200);
    const float height = 20 + Quarters(200);
    const Edges edges = {left, bottom, left + width, bottom + height};
    switch (random_.Below(4)) {
      case 0:
        owner.SetRegion(left, bottom, width, height);
        break;
      case 1:
        owner.SetRegion(edges.right, edges.top, -width, -height);
        break;
      case 2:
        owner.SetLeft(left);
        owner.SetWidth(width);
        owner.SetTop(edges.top);
        owner.SetHeight(height);
        break;
      default:
        owner.SetLeft(left);
        owner.SetBottom(bottom);
        owner.SetRight(edges.right);
        owner.SetTop(edges.top);
        break;
    }
    return edges;
  }

  void AddMarks(PDFBookmarks& bookmarks, std::vector<Mark>& marks, int depth) {
    for (std::size_t i = random_.Below(depth < 5 ? 5 : 1); i > 0; --i) {
      const auto bookmark = bookmarks.Add();
      Mark mark;
      mark.title = RandomTitle();
      mark.expanded = random_.Chance(50);
      bookmark->SetTitle(EscapeTitle(mark.title));
      bookmark->SetExpanded(mark.expanded);
      mark.destination = Lead(*bookmark->Destination());
      AddMarks(*bookmark->SubBookmarks(), mark.below, depth + 1);
      marks.push_back(std::move(mark));
    }
  }

  void AddLink(std::size_t page) {
    const auto made = pages_[page - 1]->HyperLinks()->Add();
    Link link;
    link.page = page;
    link.edges = RandomEdges(*made);
    link.highlight = static_cast<int>(random_.Below(5));
    made->SetLinkHighlightAction(static_cast<PDFLinkHighlightAction>(link.highlight));
    if (random_.Chance(70)) {
      link.isBorderSet = true;
      link.width = static_cast<float>(random_.Below(5));
      link.dashOn = static_cast<float>(random_.Below(4));
      link.dashOff = static_cast<float>(random_.Below(3));
      made->SetBorderWidth(link.width);
      made->SetBorderDashPattern(link.dashOn, link.dashOff);
    }
    if (random_.Chance(60)) {
      for (std::uint8_t& share : link.color) share = static_cast<std::uint8_t>(random_.Bits());
      made->SetBorderColor(link.color[0] | (link.color[1] << 8) | (link.color[2] << 16));
    }
    link.destination = Lead(*made->Destination());
    links_.push_back(link);
  }

  Random& random_;
  int titleCount_ = 0;
  std::shared_ptr<PDFDocument> document_ = PDFDocument::Create();
  std::vector<std::shared_ptr<PDFPage>> pages_;
  std::vector<Mark> marks_;
  std::vector<Link> links_;  // in the order of the pages
};

class NavigationReaders : public testing::TestWithParam<const char*> {};

TEST_P(NavigationReaders, SeeWhatWasAskedFor) {
  Random random;
  SCOPED_TRACE(random.Trace());
  const std::string reader = GetParam();
  std::vector<std::string> command = {"node", FOLIVAR_READERS "/navigation.js", reader};
  std::string expected;
  for (int number = 0; number < 25; ++number) {
    RandomDocument document(random);
    const std::string name = std::to_string(number) + ".pdf";
    command.push_back(Save(document.Document(), name, Check::kForm).path.string());
    expected += document.Lines(reader == "pdfjs");
  }
  const ToolResult told = test::Run(command);
  EXPECT_EQ(told.status, 0) << told.err;
  std::istringstream toldLines(told.out);
  std::istringstream expectedLines(expected);
  std::string line;
  std::string expectedLine;
  while (std::getline(expectedLines, expectedLine)) {
    ASSERT_TRUE(std::getline(toldLines, line)) << "missing: " << expectedLine;
    ASSERT_EQ(line, expectedLine);
  }
  EXPECT_FALSE(std::getline(toldLines, line)) << line;
}

INSTANTIATE_TEST_SUITE_P(All, NavigationReaders, testing::Values("pdfjs", "qpdf", "mupdf"),
                         [](const auto& each) { return std::string(each.param); });

}  // namespace
}  // namespace folivar::test
