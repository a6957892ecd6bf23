// The library's conversions as the command uses them.
#pragma once

#include <memory>
#include <vector>

#include "Configuration.h"
#include "Findings.h"
#include "ZorEngineStructs.h"
#include "onyx.pb.h"

// The two structs that the engine takes.
struct Engine {
  _zorOnyxPremixApiCtrlEx premix;
  _zorOnyxPostmixApiCtrlCoeffsEx postmix;
};

// Whether the conversion would write where it must not. If so, the findings that say it go to
// standard output; an error, which a conversion survives, goes to standard error.
bool isRefused(const Configuration& configuration);

// What the library makes of memory that was all zero, padding included. The configuration must not
// be refused.
std::unique_ptr<Engine> toEngine(const com::zor::onyx::fxp_std::Onyx& configuration);

void addPremix(const _zorOnyxPremixApiCtrlEx& premix, com::zor::onyx::fxp_std::Onyx* to);
void addPostmix(const _zorOnyxPostmixApiCtrlCoeffsEx& postmix, com::zor::onyx::fxp_std::Onyx* to);
