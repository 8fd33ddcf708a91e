#pragma once

#include <windows.h>

namespace Gui {

// [any] A square picture, diameter + 1 pixels wide: a disc of the foreground with soft edges at its top left, on the
// background. smooth moves the disc's centre from between pixels onto one. The caller owns it; null if it can't be
// created.
HBITMAP createKnobBitmap(COLORREF foreground, COLORREF background, bool smooth, int diameter);

}
