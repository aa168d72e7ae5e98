#pragma once

#include <memory>

#include "folivar/base/Api.h"
#include "folivar/base/MemberList.h"
#include "folivar/base/Object.h"
#include "folivar/base/Text.h"
#include "folivar/base/Value.h"
#include "folivar/textbox/PDFTextBox.h"

namespace folivar {

class Canvas;
class Internal;
class PDFText;
class Surface;
struct ClipBox;

// The text boxes of one page or template, in the order in which they are drawn; reached through its
// TextBoxes.
class FOLIVAR_API PDFTextBoxes final : public Object, public MemberList<PDFTextBox> {
 public:
  // Makes an empty box whose text is in a copy of the owner's current font, at the place before or
  // after the box that `before` or `after` names (position or key), or at the end. An empty key is
  // no key. Raises 5 when both places are given, 457 for a key in use, then 5 for a key or 9 for a
  // position that names no box.
  std::shared_ptr<PDFTextBox> Add(TextView key = {}, const Value& before = {},
                                  const Value& after = {});

  // Takes a box out, so that it is no longer drawn; who holds it may still use it. Raises as Item.
  void Remove(const Value& indexOrKey);

  // Moves the box with this key to the place named, or to the end. Never raises: an unknown key
  // changes nothing. When both places are given, `after` is ignored; a box whose new place does not
  // exist, counted without the box, stays removed.
  template <class Before = Value, class After = Value>
  void ReOrder(TextView key, const Before& before = {}, const After& after = {}) noexcept {
    MoveMember(key, before, after, [this](const Value& name) { Remove(name); });
  }

  // For the library

  PDFTextBoxes(const Internal&, std::weak_ptr<Canvas> parent,
               std::shared_ptr<Surface> parentSurface);

  // Null when it is gone.
  std::shared_ptr<Canvas> Owner(const Internal&) const { return parent_.lock(); }
  // Grows a box of edges over every text box. Raises 6 for an edge beyond a single.
  void ExtendClipBox(const Internal&, ClipBox& clipBox) const;
  // Lists the faces of all boxes among the owner's resources.
  void RegisterFaces(const Internal&) const;
  // Appends what draws the boxes.
  void Render(const Internal&, PDFText& content) const;

 private:
  std::weak_ptr<Canvas> parent_;
  std::shared_ptr<Surface> parentSurface_;
};

}  // namespace folivar
