#include <gtest/gtest.h>

#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "tests/hosts/c/Held.h"

namespace folivar::test {
namespace {

// Everything that can be reached from a document with something of each in it, by the class.
std::map<std::string, Held<folivar_object>> OneOfEachClass() {
  const auto document = NewDocument();
  const auto page = AddPage(document, "a");
  folivar_PDFTemplates* templates = nullptr;
  folivar_PDFTemplate* made = nullptr;
  folivar_PDFImages* images = nullptr;
  folivar_PDFImage* image = nullptr;
  folivar_PDFBookmarks* bookmarks = nullptr;
  folivar_PDFBookmark* bookmark = nullptr;
  folivar_PDFHyperLinks* links = nullptr;
  folivar_PDFHyperLink* link = nullptr;
  const folivar_value none = folivar_missing();
  EXPECT_EQ(folivar_PDFDocument_Templates(document, &templates), 0);
  EXPECT_EQ(folivar_PDFTemplates_Add(templates, "", none, none, &made), 0);
  // One of each class is looked into, so both have a box.
  folivar_PDFTextBoxes* boxes = nullptr;
  folivar_PDFTextBox* box = nullptr;
  EXPECT_EQ(folivar_PDFTemplate_TextBoxes(made, &boxes), 0);
  EXPECT_EQ(folivar_PDFTextBoxes_Add(boxes, "", none, none, &box), 0);
  AddTextBox(page);
  EXPECT_EQ(folivar_PDFDocument_Images(document, &images), 0);
  EXPECT_EQ(folivar_PDFImages_Add(images, "", none, none, &image), 0);
  EXPECT_EQ(folivar_PDFDocument_Bookmarks(document, &bookmarks), 0);
  EXPECT_EQ(folivar_PDFBookmarks_Add(bookmarks, "", none, none, &bookmark), 0);
  EXPECT_EQ(folivar_PDFPage_HyperLinks(page, &links), 0);
  EXPECT_EQ(folivar_PDFHyperLinks_Add(links, "", none, none, &link), 0);
  for (void* object : std::vector<void*>{templates, made, boxes, box, images, image, bookmarks,
                                         bookmark, links, link}) {
    folivar_release(object);
  }

  std::map<std::string, Held<folivar_object>> found;
  std::vector<Held<folivar_object>> left;
  folivar_retain(document);
  left.emplace_back(document.Any());
  while (!left.empty()) {
    Held<folivar_object> next = std::move(left.back());
    left.pop_back();
    const folivar_class* type = folivar_class_of(next);
    if (found.count(type->name) != 0) continue;
    for (std::size_t i = 0; i < type->member_count; ++i) {
      const folivar_member& member = type->members[i];
      if ((member.actions & FOLIVAR_GET) == 0 || member.parameter_count != 0) continue;
      folivar_value value;
      EXPECT_EQ(folivar_invoke(next, member.id, FOLIVAR_GET, nullptr, 0, &value), 0)
          << type->name << "." << member.name << ": " << LastText();
      const folivar_value* values = &value;
      std::size_t count = 1;
      if (value.kind == FOLIVAR_ARRAY) {
        values = value.as.values;
        count = value.with.length;
      }
      for (std::size_t j = 0; j < count; ++j) {
        void* object = folivar_object_in(values[j]);
        if (object == nullptr) continue;
        folivar_retain(object);
        left.emplace_back(folivar_any(object));
      }
      folivar_clear(&value);
    }
    found.emplace(type->name, std::move(next));
  }
  return found;
}

TEST(CMembers, EveryPropertyCanBeReadAndSetAsItIs) {
  const auto objects = OneOfEachClass();
  const folivar_library* library = folivar_describe();
  for (std::size_t i = 0; i < library->class_count; ++i) {
    EXPECT_EQ(objects.count(library->classes[i].name), 1U) << library->classes[i].name;
  }
  int set = 0;
  for (const auto& [name, object] : objects) {
    const folivar_class* type = folivar_class_of(object);
    for (std::size_t i = 0; i < type->member_count; ++i) {
      const folivar_member& member = type->members[i];
      if (member.actions != (FOLIVAR_GET | FOLIVAR_SET) || member.type == FOLIVAR_TYPE_VALUE) {
        continue;
      }
      folivar_value value;
      ASSERT_EQ(folivar_invoke(object, member.id, FOLIVAR_GET, nullptr, 0, &value), 0);
      folivar_value given = value;
      const int error = folivar_invoke(object, member.id, FOLIVAR_SET, &given, 1, nullptr);
      // An image without a file has no name that it could be given.
      constexpr int kUnknownImageType = -2147220504;
      const bool isNoFile = name == "PDFImage" && std::string(member.name) == "FileName";
      EXPECT_EQ(error, isNoFile ? kUnknownImageType : 0)
          << name << "." << member.name << ": " << LastText();
      ++set;
      folivar_clear(&value);
    }
  }
  EXPECT_GT(set, 50);
}

TEST(CMembers, AreDescribedSoundly) {
  const folivar_library* library = folivar_describe();
  EXPECT_EQ(library->class_count, 18U);
  EXPECT_EQ(library->enumeration_count, 9U);
  std::set<std::string> names;
  for (std::size_t i = 0; i < library->class_count; ++i) {
    const folivar_class& type = library->classes[i];
    EXPECT_TRUE(names.insert(type.name).second);
    EXPECT_NE(std::string(type.help), "");
    EXPECT_EQ(type.is_creatable, std::string(type.name) == "PDFDocument");
    std::set<std::string> members;
    std::set<int> ids;
    for (std::size_t j = 0; j < type.member_count; ++j) {
      const folivar_member& member = type.members[j];
      EXPECT_TRUE(members.insert(member.name).second) << member.name;
      EXPECT_TRUE(ids.insert(member.id).second) << member.name;
      EXPECT_NE(std::string(member.help), "");
      EXPECT_EQ((member.traits & FOLIVAR_TAG) != 0, std::string(member.name) == "Tag");
      EXPECT_TRUE(member.actions == FOLIVAR_CALL ||
                  (member.actions & ~(FOLIVAR_GET | FOLIVAR_SET)) == 0);
    }
    EXPECT_EQ(type.event_count, std::string(type.name) == "PDFPage" ? 1U : 0U);
  }
  for (std::size_t i = 0; i < library->enumeration_count; ++i) {
    EXPECT_TRUE(names.insert(library->enumerations[i].name).second);
  }
}

}  // namespace
}  // namespace folivar::test
