// The names of the window system that signatures of the backend use: HWND, WPARAM, LPARAM, LRESULT, UINT, DWORD, MSG
// and WM_QUIT. On Windows they are the system's own, elsewhere a small set of the same names.
#pragma once

#include "SystemWindowTypes.h"
