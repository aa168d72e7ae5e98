#pragma once

#include "folivar/base/Api.h"
#include "folivar/base/Text.h"

namespace folivar {

// A text as the title of a bookmark, which is written as it stands and read as a PDF string: "a(b"
// becomes "a\(b". Besides parentheses, backslashes and line ends (as "\n" and "\r"), it escapes the
// characters that readers have at other bytes in a title than on a page, such as dashes, curly
// quotes and the euro sign: the en dash becomes "\205", and a no-break space a space. A text with
// characters that this leaves no byte for, Greek or Chinese, say, becomes UTF-16 as a whole, every
// byte of it escaped. Raises 5 for text that is not UTF-8.
FOLIVAR_API Text EscapeTitle(TextView text);

}  // namespace folivar
