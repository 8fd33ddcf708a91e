#pragma once

namespace Platform {

// [main, at the start] Makes standard input and output pass bytes unchanged, so that lines end the same way on all
// systems.
void useBinaryStandardStreams();

}
