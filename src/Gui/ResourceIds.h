// Every id of the library's resources. Also read by the resource compiler, so it holds nothing but definitions.
#pragma once

// The red cursor of a value that follows the mouse without a button.
#define IDC_RED_CURSOR 119

// Waiting for work to end.
#define IDD_WORK 213

// Asking for a line of text.
#define IDD_TEXT_PROMPT 240
#define IDC_PROMPT 1060

// The text of both.
#define IDC_DIALOG_TEXT 1059
