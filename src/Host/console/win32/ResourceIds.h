// The ids of the program's own resources. The resource compiler reads this too, so it holds only definitions.
#pragma once

#define IDI_MIREL_CONSOLE 1
