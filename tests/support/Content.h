#pragma once

#include <functional>
#include <string>

#include "folivar/folivar.h"

namespace folivar::test {

// What was drawn on a page: the content between the page's own "q" and "Q", as it stands in the
// saved file.
std::string ContentOf(PDFPage& page);

// The same for a new page on which `draw` has drawn.
std::string ContentAfter(const std::function<void(PDFPage&)>& draw);

// Runs `action` and returns the number of the Error that it throws, 0 when it throws none.
int ErrorNumberOf(const std::function<void()>& action);

// The text of that Error.
std::string ErrorTextOf(const std::function<void()>& action);

}  // namespace folivar::test
