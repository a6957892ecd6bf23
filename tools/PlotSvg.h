// Draws a configuration: the graphic equalizer's bands, the room tables and filter coefficients.
#pragma once

#include <string>

#include "onyx.pb.h"

// A self-contained SVG document, without scripts, fonts or anything else to load. Its size does not
// grow with the lists: where more words than pixels lie side by side, each pixel column shows the
// lowest and the highest. What the configuration lacks is named at the end. Numbers are written for
// reading, with "," between thousands and U+2212 for minus.
std::string plotSvg(const com::zor::onyx::fxp_std::Onyx& configuration, const std::string& title);
