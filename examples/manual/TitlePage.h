#pragma once

#include "BookStyle.h"
#include "Manual.h"
#include "PagePen.h"

void DrawTitlePage(PagePen& pen, const BookStyle& style, const Manual& manual);
