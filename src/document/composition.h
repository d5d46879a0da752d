#pragma once

#include "imaging/bitmap_class.h"

// Draws the whole load screen as the document has it into an 800 x 520 surface of either kind;
// the document stays unchanged. Nothing for null. Where two kinds of surface draw differently (the
// end points of lines), so does the picture.
void ComposeLoadScreen(BitmapClass* target);
