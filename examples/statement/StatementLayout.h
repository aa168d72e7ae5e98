#pragma once

#include <folivar/folivar.h>

#include <memory>
#include <string>

#include "PageSize.h"
#include "Statement.h"
#include "common/Typeface.h"

// Sets a statement as a document of pages of one size: a title block, then the entries as a table
// whose sums are carried from page to page. `holder`, the account's owner, is UTF-8.
std::shared_ptr<folivar::PDFDocument> LayOutStatement(const Statement& statement,
                                                      const std::string& holder,
                                                      const PageSize& pageSize,
                                                      const Typeface& typeface);
