#pragma once

#include <map>
#include <memory>
#include <mutex>
#include <set>
#include <string>
#include <vector>

#include "folivar/base/Api.h"
#include "folivar/base/Text.h"
#include "folivar/fonts/SystemFonts.h"

namespace folivar {

struct FontFileFace;
class Internal;

// TrueType fonts from files that the host names, for systems that have no fonts installed or not
// the right ones. They win over the system's: a family that is here is taken from here, in the
// nearest style that is here (italic counts first, then the weight, then the width), the one added
// first of several. A face that is added again is here once. May be shared by documents, in several
// threads too. The files are opened again when their faces are used, so they must stay where they
// are; relative names are taken from the folder that is the working folder when they are added.
class FOLIVAR_API FontFiles final : public SystemFonts {
 public:
  FontFiles();
  ~FontFiles() override;

  // Adds the faces of a font file (.ttf), or of every font in a collection (.ttc). Raises 53 for a
  // file that is not there, 52, 70, 75 or 76 for one that cannot be read, and 321 for one that is
  // damaged, has no TrueType outlines (the text says when it has PostScript's), or no name that can
  // be read.
  void AddFile(TextView fileName);

  // Adds every file of the folder and of those below it whose name ends in ".ttf", ".ttc" or
  // ".otf", in any case; links to folders are not followed. What cannot be added (files that
  // AddFile would refuse, folders that cannot be read) is left out and returned as a sentence each,
  // which names it and the reason. Raises 52, 70, 75 or 76 for a folder that cannot be read itself.
  std::vector<Text> AddFolder(TextView folderName);

  // Null for a family that is not here.
  std::unique_ptr<SystemFace> SelectFace(const Text& name, bool isBold, bool isItalic) override;

  std::vector<Text> FaceNames() override;

  // For the library

  bool IsEmpty(const Internal&);
  // Of the files that faces are here of, each once.
  std::vector<Text> FileNames(const Internal&);

 private:
  void Add(const Text& name);
  const FontFileFace* NearestFace(const Text& name, bool isBold, bool isItalic);

  std::mutex mutex_;
  std::set<FontFileFace> faces_;
  // By the family's name, its case folded; the faces added first come first.
  std::multimap<std::u16string, const FontFileFace*> families_;
};

}  // namespace folivar
