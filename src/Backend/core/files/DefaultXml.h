// The keys and controls that a desk starts with. The build generates them from the files in resources/.
#pragma once

namespace Backend {

extern const char* const DEFAULT_COMPUTER_INPUT_XML;
extern const char* const DEFAULT_CONTROLS_XML;

}
