#include "ByHand.h"

#include "Assignments.h"

namespace zorbench {

template <class Message, class Struct>
ByHand<Message, Struct>::ByHand(const Message* msg) : msg_(std::make_unique<Message>()) {
  load(*msg, *msg_);
}

template <class Message, class Struct>
ByHand<Message, Struct>::ByHand(const Struct& s) : msg_(std::make_unique<Message>()) {
  read(s, *msg_);
}

template <class Message, class Struct>
ByHand<Message, Struct>::~ByHand() = default;

template <class Message, class Struct>
void ByHand<Message, Struct>::populateStruct(Struct& s) {
  write(*msg_, s);
}

template class ByHand<com::zor::tech::Imm3d, _zorImm3dApiCtrl>;
template class ByHand<com::zor::tech::Expanse, _zorExpanseApiCtrl>;
template class ByHand<com::zor::tech::Deep, _zorDeepApiCtrl>;
template class ByHand<com::zor::tech::Xeq, _zorXeqApiCtrl>;
template class ByHand<com::zor::tech::Contour2, _zorContour2ApiCtrl>;
template class ByHand<com::zor::tech::Geq10b, _zorGeq10bApiCtrl>;
template class ByHand<com::zor::tech::Orb, _zorOrbApiCtrl>;
template class ByHand<com::zor::tech::Leveler, _zorLevelerApiCtrl>;
template class ByHand<com::zor::onyx::fxp_std::FaderInfo, _zorOnyxFaderInfo>;
template class ByHand<com::zor::coef::Xeq, _zorXeqApiCoeff>;
template class ByHand<com::zor::coef::Deep, _zorDeepApiCoeffEx>;
template class ByHand<com::zor::coef::Hpf, _zorOnyxHpfApiCoeff>;

}  // namespace zorbench
