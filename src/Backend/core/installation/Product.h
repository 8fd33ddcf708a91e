// What the product is called. Resources name it too, so these are macros.
#pragma once

#define MIREL_PRODUCT "Mirel Console 3 LE"
#define MIREL_VERSION "3.2"
