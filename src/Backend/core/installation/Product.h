// The names of the product. Resources use them too, so they are macros.
#pragma once

#define MIREL_PRODUCT "Mirel Console 3 LE"
#define MIREL_VERSION "3.2"
