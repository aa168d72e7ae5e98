#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "folivar/base/Internal.h"
#include "folivar/file/ObjectNumbers.h"
#include "folivar/file/SaveFile.h"
#include "folivar/folivar.h"
#include "folivar/navigation/PDFOutline.h"
#include "tests/support/Golden.h"
#include "tests/support/MemorySink.h"
#include "tests/support/SavedDocument.h"

namespace folivar::test {
namespace {

TEST(PDFOutline, IsWrittenWithNothingBelowIt) {
  const auto document = PDFDocument::Create();
  document->Pages()->Add();
  EXPECT_EQ(Save(*document, "outline.pdf").pdf.Object(2), "<< /Type /Outlines\n>>\n");
  document->Bookmarks();
  EXPECT_EQ(Save(*document, "outline.pdf").pdf.Object(2), "<< /Type /Outlines\n>>\n");
}

TEST(PDFOutline, WritesWhatTheGoldenFileSays) {
  const auto document = PDFDocument::Create();
  for (const char* key : {"one", "two", "three"}) document->Pages()->Add(key);
  const auto page = [&](const char* key) { return document->Pages()->Item(key); };

  const auto first = document->Bookmarks()->Add();
  first->SetTitle("1 Expanded");
  first->SetExpanded(true);
  first->Destination()->SetPage(page("one"));
  first->Destination()->SetDestinationMode(dsFit);
  for (const char* title : {"1.1 Closed", "1.2 Leaf"}) {
    first->SubBookmarks()->Add()->SetTitle(title);
  }
  const auto closed = first->SubBookmarks()->Item(1);
  closed->SubBookmarks()->Add()->SetTitle("1.1.1 Hidden");
  closed->Destination()->SetPage(page("two"));
  closed->Destination()->SetTop(700.5F);
  const auto hidden = closed->SubBookmarks()->Item(1);
  hidden->Destination()->SetPage(page("three"));
  hidden->Destination()->SetRegion(72, 600, 100, -50);
  hidden->Destination()->SetDestinationMode(dsFitRect);
  document->Bookmarks()->Add()->SetTitle("2 No page");

  const auto links = page("one")->HyperLinks();
  const auto all = links->Add();
  all->SetRegion(10, 10, 100, 20);
  all->Destination()->SetPage(page("two"));
  const auto dashed = links->Add("dashed");
  dashed->SetRegion(72, 72, 144.5F, -10);
  dashed->SetLinkHighlightAction(lhaPush);
  dashed->SetBorderWidth(2);
  dashed->SetBorderDashPattern(3, 2);
  dashed->SetBorderColor(0x0000FF);
  dashed->Destination()->SetPage(page("three"));
  dashed->Destination()->SetDestinationMode(dsFitHorz);
  const auto invisible = page("three")->HyperLinks()->Add();
  invisible->SetBorderWidth(0);
  invisible->SetRegion(0, 0, 612, 792);

  ExpectGolden("navigation.pdf", Save(*document, "navigation.pdf").bytes);
}

// A tree in its plainest form, and all there are.
struct Node {
  bool expanded = false;
  std::vector<Node> below;
};
using Forest = std::vector<Node>;

// Of `count` nodes, each way to arrange them.
std::vector<Forest> ForestsOf(int count) {
  if (count == 0) return {Forest()};
  std::vector<Forest> forests;
  for (int inFirst = 0; inFirst < count; ++inFirst) {
    for (const Forest& below : ForestsOf(inFirst)) {
      for (const Forest& behind : ForestsOf(count - 1 - inFirst)) {
        Forest forest = {Node{false, below}};
        forest.insert(forest.end(), behind.begin(), behind.end());
        forests.push_back(forest);
      }
    }
  }
  return forests;
}

// Gives each node, in the order of their numbers, a bit of `bits`; returns those that are left.
unsigned Expand(Forest& forest, unsigned bits) {
  for (Node& node : forest) {
    node.expanded = (bits & 1U) != 0;
    bits = Expand(node.below, bits >> 1U);
  }
  return bits;
}

// What a reader shows of them.
int VisibleIn(const Forest& forest) {
  int visible = 0;
  for (const Node& node : forest) visible += 1 + (node.expanded ? VisibleIn(node.below) : 0);
  return visible;
}

int SizeOf(const Forest& forest) {
  int size = 0;
  for (const Node& node : forest) size += 1 + SizeOf(node.below);
  return size;
}

std::string Line(const char* name, int number) {
  return number == 0 ? "" : "/" + std::string(name) + " " + std::to_string(number) + " 0 R\n";
}

// The numbers of a level whose first bookmark has the number given.
std::vector<int> NumbersOf(const Forest& forest, int first) {
  std::vector<int> numbers;
  for (const Node& node : forest) {
    numbers.push_back(first);
    first += 1 + SizeOf(node.below);
  }
  return numbers;
}

// Appends the text of each bookmark, each after the one that it is below.
void Expect(const Forest& forest, int parent, int first, std::vector<std::string>& texts) {
  const std::vector<int> numbers = NumbersOf(forest, first);
  for (std::size_t i = 0; i < forest.size(); ++i) {
    const Node& node = forest[i];
    std::string text = "<< /Title ()\n" + Line("Parent", parent);
    text += Line("Prev", i == 0 ? 0 : numbers[i - 1]);
    text += Line("Next", i + 1 == forest.size() ? 0 : numbers[i + 1]);
    if (!node.below.empty()) {
      const std::vector<int> below = NumbersOf(node.below, numbers[i] + 1);
      text += Line("First", below.front()) + Line("Last", below.back());
      const int visible = VisibleIn(node.below);
      text += "/Count " + std::to_string(node.expanded ? visible : -visible);
    }
    texts.push_back(text + ">>\n");
    Expect(node.below, numbers[i], numbers[i] + 1, texts);
  }
}

void Build(const Forest& forest, PDFBookmarks& bookmarks) {
  for (const Node& node : forest) {
    const auto bookmark = bookmarks.Add();
    bookmark->SetExpanded(node.expanded);
    if (!node.below.empty()) Build(node.below, *bookmark->SubBookmarks());
  }
}

// The objects of an outline that is numbered from 1.
StrictPdf WrittenAlone(PDFOutline& outline) {
  ObjectNumbers numbers;
  outline.NumberObjects(Internal(), numbers);
  MemorySink sink;
  SaveFile file(sink);
  outline.WriteObjects(Internal(), file);
  EXPECT_EQ(numbers.NextObjectNumber(), static_cast<int>(file.ObjectCount()) + 1);
  file.Finish(Reference(1));
  return StrictPdf(sink.Bytes());
}

TEST(PDFOutline, EveryTreeOfUpTo6BookmarksIsCountedAsANaiveProgramDoes) {
  int trees = 0;
  for (int count = 0; count <= 6; ++count) {
    for (Forest& forest : ForestsOf(count)) {
      for (unsigned bits = 0; bits < 1U << count; ++bits) {
        Expand(forest, bits);
        PDFOutline outline({});
        Build(forest, *outline.Bookmarks());
        const StrictPdf pdf = WrittenAlone(outline);

        const std::vector<int> top = NumbersOf(forest, 2);
        std::vector<std::string> expected = {"<< /Type /Outlines\n"};
        if (count > 0) {
          expected[0] += Line("First", top.front()) + Line("Last", top.back()) + "/Count " +
                         std::to_string(VisibleIn(forest)) + "\n";
        }
        expected[0] += ">>\n";
        Expect(forest, 1, 2, expected);
        ASSERT_EQ(pdf.Count(), expected.size());
        for (std::size_t i = 0; i < expected.size(); ++i) {
          ASSERT_EQ(pdf.Object(i + 1), expected[i]) << count << " bookmarks, bits " << bits;
        }
        ++trees;
      }
    }
  }
  // The Catalan numbers, each times a power of 2.
  EXPECT_EQ(trees, 1 + 1 * 2 + 2 * 4 + 5 * 8 + 14 * 16 + 42 * 32 + 132 * 64);
}

TEST(PDFOutline, NumbersAreMadeAnewForEachSave) {
  PDFOutline outline({});
  const auto first = outline.Bookmarks()->Add("first");
  first->SubBookmarks()->Add();
  EXPECT_EQ(WrittenAlone(outline).Count(), 3U);
  outline.Bookmarks()->Add("second");
  outline.Bookmarks()->ReOrder("second", 1);
  const StrictPdf pdf = WrittenAlone(outline);
  EXPECT_EQ(pdf.Object(1), "<< /Type /Outlines\n/First 2 0 R\n/Last 3 0 R\n/Count 2\n>>\n");
  EXPECT_EQ(pdf.Object(2), "<< /Title ()\n/Parent 1 0 R\n/Next 3 0 R\n>>\n");
  outline.Bookmarks()->Remove("first");
  outline.Bookmarks()->Remove("second");
  EXPECT_EQ(WrittenAlone(outline).Object(1), "<< /Type /Outlines\n>>\n");
}

}  // namespace
}  // namespace folivar::test
