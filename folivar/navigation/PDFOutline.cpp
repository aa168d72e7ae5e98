#include "folivar/navigation/PDFOutline.h"

#include "folivar/document/ObjectNumbers.h"
#include "folivar/document/SaveFile.h"

namespace folivar {

void PDFOutline::NumberObjects(ObjectNumbers& numbers) { objectNumber_ = numbers.Take(); }

//   2 0 obj
//   << /Type /Outlines
//   >>
//   endobj
void PDFOutline::WriteObjects(SaveFile& file) {
  file.BeginObject(objectNumber_).Append("<< /Type /Outlines\n>>\n");
  file.EndObject();
}

}  // namespace folivar
