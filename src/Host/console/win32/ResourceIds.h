// The ids of the program's own resources. Also read by the resource compiler, so it holds nothing but definitions.
#pragma once

#define IDI_MIREL_CONSOLE 1
