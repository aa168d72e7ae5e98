#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "folivar/base/Api.h"
#include "folivar/base/Tagged.h"
#include "folivar/base/Text.h"

namespace folivar {

class Internal;
class PDFDocument;

// Role of what is painted by name: a template or an image. The library asks it for what a resource
// dictionary lists, and for the document in whose file it will be.
class FOLIVAR_API XObject : public Tagged {
 public:
  // The key given when it was added; empty without one.
  virtual const Text& Key() const = 0;

  // "/T1" or "/I1", the slash included; never changes.
  virtual const std::string& ResourceName(const Internal&) const = 0;
  // As numbered by the save in progress.
  virtual std::int32_t ObjectNumber(const Internal&) const = 0;
  virtual const std::weak_ptr<PDFDocument>& ParentDocument(const Internal&) const = 0;

 protected:
  XObject() = default;
};

// For the text of an error: its key in quotes, else its resource name.
std::string NameOf(const XObject& object);

}  // namespace folivar
