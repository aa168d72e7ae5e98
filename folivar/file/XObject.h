#pragma once

#include <memory>
#include <string>

#include "folivar/base/Api.h"
#include "folivar/base/MemberKey.h"
#include "folivar/base/Text.h"
#include "folivar/file/Reference.h"

namespace folivar {

class Internal;
class ObjectNumbers;
class PDFDocument;

// What templates and images have in common: they are in the file once, and painted by name.
class FOLIVAR_API XObject {
 public:
  XObject(const XObject&) = delete;
  XObject& operator=(const XObject&) = delete;

  // The key given when it was added; empty without one.
  const Text& Key() const { return key_.AsText(); }

  // For the library

  // "/T1" or "/I1", the slash included; never changes.
  const std::string& ResourceName(const Internal&) const { return resourceName_; }
  // As numbered by the save in progress.
  Reference ObjectNumber(const Internal&) const { return object_; }
  // In whose file it will be.
  const std::weak_ptr<PDFDocument>& ParentDocument(const Internal&) const { return document_; }
  // For the text of an error: its key in quotes, else its resource name.
  std::string NameInErrors(const Internal&) const;

 protected:
  XObject(std::weak_ptr<PDFDocument> document, TextView key, std::string resourceName);
  ~XObject() = default;

  void TakeNumber(ObjectNumbers& numbers);

 private:
  std::weak_ptr<PDFDocument> document_;
  MemberKey key_;
  std::string resourceName_;
  Reference object_;
};

}  // namespace folivar
