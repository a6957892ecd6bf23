// Wrappers that release what their contract leaves behind, so that a target can run for hours, and
// so that whatever else is left behind is a leak.
#pragma once

#include "support/Wrappers.h"

namespace zortest {

template <class W>
struct NoLeftovers : W {
  using W::W;
};

// The child's message goes with the held one where that shares it.
template <class Child>
void releaseChild(Child* child, bool isShared) {
  if (child != nullptr && isShared) child->msg_ = nullptr;
  delete child;
}

template <>
struct NoLeftovers<ZorPbPremix> : ZorPbPremix {
  using ZorPbPremix::ZorPbPremix;
  ~NoLeftovers() override {
    const auto& held = dynamic_cast<const onyx::Premix&>(*msg_);
    releaseChild(leveler_, held.has_leveler());
    releaseChild(contour2_, held.has_contour2());
    releaseChild(faderInfo_, held.has_fader_info());
  }
};

template <>
struct NoLeftovers<ZorPbPostmix> : ZorPbPostmix {
  using ZorPbPostmix::ZorPbPostmix;
  ~NoLeftovers() override { releaseChild(faderInfo_, true); }
};

}  // namespace zortest
