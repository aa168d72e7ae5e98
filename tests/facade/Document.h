#pragma once

#include "Handle.h"

namespace facade {

// Makes a document in the host.
Handle<automation::_PDFDocument> NewDocument();

}  // namespace facade
