// The library's one diagnostic. Private to the library.
#pragma once

namespace zorpb {

// Writes one line to the standard error stream: a stage wrapper has no message to write out.
void reportNoMessage();

}  // namespace zorpb
