// What a user of the libraries does: parse, check, convert, and print one line.
#include <cstdlib>
#include <iostream>
#include <memory>

#include "ZorPbCheck.h"
#include "ZorPbPostmix.h"

int main() {
  com::zor::onyx::fxp_std::Onyx configuration;
  if (ZorPbCheck::isSafe(configuration)) return EXIT_FAILURE;  // lacks its version
  // version: "1.00.02" postmix { postmix_gain: 7 orb_input_gain: [1, -2] }
  if (!configuration.ParseFromString("\n\0071.00.02\x1a\006\x10\x0e\x3a\002\x02\x03")) {
    return EXIT_FAILURE;
  }
  if (!ZorPbCheck::isSafe(configuration)) return EXIT_FAILURE;

  const auto engine = std::make_unique<_zorOnyxPostmixApiCtrlCoeffsEx>();
  ZorPbPostmix(&configuration.postmix()).populateStruct(*engine);
  std::cout << "postmix_gain " << engine->postmix_gain << ", orb_input_gain[1] "
            << engine->orb_input_gain[1] << "; "
            << ZorPbCheck::text(ZorPbCheck::findings(configuration.postmix()).front()) << "\n";
  return EXIT_SUCCESS;
}
