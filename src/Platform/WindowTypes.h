// The names of the window system that the backend's signatures use: HWND, WPARAM, LPARAM, LRESULT, UINT, DWORD, MSG and
// WM_QUIT. On Windows they are the system's own, elsewhere a small set with the same names.
#pragma once

#include "SystemWindowTypes.h"
