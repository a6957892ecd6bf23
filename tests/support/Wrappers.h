// The fifteen wrappers, each with its message, its struct and its layout, for tests to sweep.
#pragma once

#include <tuple>

#include "EngineLayout.h"
#include "ZorPbCoefDeep.h"
#include "ZorPbCoefHpf.h"
#include "ZorPbCoefXeq.h"
#include "ZorPbFaderInfo.h"
#include "ZorPbPostmix.h"
#include "ZorPbPremix.h"
#include "ZorPbTechContour2.h"
#include "ZorPbTechDeep.h"
#include "ZorPbTechExpanse.h"
#include "ZorPbTechGeq10b.h"
#include "ZorPbTechImm3d.h"
#include "ZorPbTechLeveler.h"
#include "ZorPbTechOrb.h"
#include "ZorPbTechVantix.h"
#include "ZorPbTechXeq.h"

namespace zortest {

template <class W_, class M_, class S_, const Layout& layout_>
struct Conversion {
  using W = W_;
  using M = M_;
  using S = S_;
  static constexpr const Layout& layout() { return layout_; }
};

namespace coef = com::zor::coef;
namespace onyx = com::zor::onyx::fxp_std;
namespace tech = com::zor::tech;

// Those whose struct is the layout and nothing else, in whatever holds types.
template <template <class...> class Types>
using LaidOutConversions =
    Types<Conversion<ZorPbTechImm3d, tech::Imm3d, _zorImm3dApiCtrl, kImm3d>,
          Conversion<ZorPbTechExpanse, tech::Expanse, _zorExpanseApiCtrl, kExpanse>,
          Conversion<ZorPbTechDeep, tech::Deep, _zorDeepApiCtrl, kDeep>,
          Conversion<ZorPbTechVantix, tech::Vantix, _zorVantixApiCtrl, kVantix>,
          Conversion<ZorPbTechXeq, tech::Xeq, _zorXeqApiCtrl, kXeq>,
          Conversion<ZorPbTechContour2, tech::Contour2, _zorContour2ApiCtrl, kContour2>,
          Conversion<ZorPbTechGeq10b, tech::Geq10b, _zorGeq10bApiCtrl, kGeq10b>,
          Conversion<ZorPbTechOrb, tech::Orb, _zorOrbApiCtrl, kOrb>,
          Conversion<ZorPbTechLeveler, tech::Leveler, _zorLevelerApiCtrl, kLeveler>,
          Conversion<ZorPbCoefXeq, coef::Xeq, _zorXeqApiCoeff, kCoefXeq>,
          Conversion<ZorPbCoefHpf, coef::Hpf, _zorOnyxHpfApiCoeff, kCoefHpf>,
          Conversion<ZorPbFaderInfo, onyx::FaderInfo, _zorOnyxFaderInfo, kFaderInfo>,
          Conversion<ZorPbPremix, onyx::Premix, _zorOnyxPremixApiCtrlEx, kPremix>,
          Conversion<ZorPbPostmix, onyx::Postmix, _zorOnyxPostmixApiCtrlCoeffsEx, kPostmix>>;

// And the one that also borrows a string.
using DeepConversion = Conversion<ZorPbCoefDeep, coef::Deep, _zorDeepApiCoeffEx, kCoefDeep>;

// Calls visit(Conversion<...>()) for each of the fifteen.
template <class Visit>
void eachConversion(Visit visit) {
  std::apply([&](auto... conversion) { (visit(conversion), ...); },
             LaidOutConversions<std::tuple>());
  visit(DeepConversion());
}

}  // namespace zortest
