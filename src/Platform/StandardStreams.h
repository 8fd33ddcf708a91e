#pragma once

namespace Platform {

// [main, at the start] Makes standard input and output carry bytes as they are, so that a line ends the same way on all
// systems.
void useBinaryStandardStreams();

}
