// Every id of the library's resources. Also read by the resource compiler, so it holds nothing but definitions.
#pragma once

// The red cursor of a value that follows the mouse without a button.
#define IDC_RED_CURSOR 119
