// Who owns what: sharing between parents and children, what repeated loads release and what they
// leave behind, and what remains after an allocation that failed.
#include <gtest/gtest.h>

#include <memory>
#include <new>
#include <string>
#include <vector>

#include "ZorPbCheck.h"
#include "support/EngineLayout.h"
#include "support/LiveObjects.h"
#include "support/OwnershipModel.h"
#include "support/Wrappers.h"

namespace zortest {
namespace {

// The child slots, for the tests to see.
struct OpenVantix : ZorPbTechVantix {
  using ZorPbTechVantix::deep_;
  using ZorPbTechVantix::expanse_;
  using ZorPbTechVantix::imm3d_;
  using ZorPbTechVantix::ZorPbTechVantix;
};
struct OpenPremix : ZorPbPremix {
  using ZorPbPremix::contour2_;
  using ZorPbPremix::faderInfo_;
  using ZorPbPremix::leveler_;
  using ZorPbPremix::ZorPbPremix;
};
struct OpenPostmix : ZorPbPostmix {
  using ZorPbPostmix::contour2_;
  using ZorPbPostmix::faderInfo_;
  using ZorPbPostmix::geq10b_;
  using ZorPbPostmix::hpfCoef_;
  using ZorPbPostmix::orb_;
  using ZorPbPostmix::vantix_;
  using ZorPbPostmix::xeq_;
  using ZorPbPostmix::xeqCoef_;
  using ZorPbPostmix::ZorPbPostmix;
};

template <class M>
const M& held(const ZorPbBase& wrapper) {
  return dynamic_cast<const M&>(*wrapper.msg_);
}

TEST(Sharing, VantixWithItsChildren) {
  const OpenVantix wrapper(_zorVantixApiCtrl{});
  const auto& msg = held<tech::Vantix>(wrapper);
  EXPECT_EQ(&msg.imm3d(), wrapper.imm3d_->msg_);
  EXPECT_EQ(&msg.expanse(), wrapper.expanse_->msg_);
  EXPECT_EQ(&msg.deep(), wrapper.deep_->msg_);
  EXPECT_TRUE(msg.has_imm3d() && msg.has_expanse() && msg.has_deep());
}

TEST(Sharing, PremixWithItsChildren) {
  const OpenPremix wrapper(_zorOnyxPremixApiCtrlEx{});
  const auto& msg = held<onyx::Premix>(wrapper);
  EXPECT_EQ(&msg.leveler(), wrapper.leveler_->msg_);
  EXPECT_EQ(&msg.contour2(), wrapper.contour2_->msg_);
  EXPECT_EQ(&msg.fader_info(), wrapper.faderInfo_->msg_);
  EXPECT_TRUE(msg.has_leveler() && msg.has_contour2() && msg.has_fader_info());
}

TEST(Sharing, PostmixWithItsChildren) {
  const auto s = std::make_unique<_zorOnyxPostmixApiCtrlCoeffsEx>();
  const OpenPostmix wrapper(*s);
  const auto& msg = held<onyx::Postmix>(wrapper);
  EXPECT_EQ(&msg.vantix(), wrapper.vantix_->msg_);
  EXPECT_EQ(&msg.geq10b(), wrapper.geq10b_->msg_);
  EXPECT_EQ(&msg.xeq(), wrapper.xeq_->msg_);
  EXPECT_EQ(&msg.contour2(), wrapper.contour2_->msg_);
  EXPECT_EQ(&msg.orb(), wrapper.orb_->msg_);
  EXPECT_EQ(&msg.xeq_coef(), wrapper.xeqCoef_->msg_);
  EXPECT_EQ(&msg.fader_info(), wrapper.faderInfo_->msg_);
  EXPECT_EQ(wrapper.hpfCoef_, nullptr);
  EXPECT_FALSE(msg.has_hpf_coef());
}

// What the wrappers are loaded from: each composite with all of its blocks, and with none.
template <class M>
M parsed(const Layout& layout) {
  M msg;
  EXPECT_TRUE(msg.ParsePartialFromString(wireOf(layout, Depth::kToStruct)));
  return msg;
}
struct Sources {
  const tech::Imm3d imm3d = parsed<tech::Imm3d>(kImm3d);
  const tech::Vantix vantix = parsed<tech::Vantix>(kVantix);
  const onyx::Premix premix = parsed<onyx::Premix>(kPremix);
  const onyx::Postmix postmix = parsed<onyx::Postmix>(kPostmix);
  const tech::Vantix noVantix;
  const onyx::Premix noPremix;
  const onyx::Postmix noPostmix;
  const _zorImm3dApiCtrl imm3dStruct = {};
  const _zorVantixApiCtrl vantixStruct = {};
  const _zorOnyxPremixApiCtrlEx premixStruct = {};
  const _zorOnyxPostmixApiCtrlCoeffsEx postmixStruct = {};
};

enum class Load { kFull, kBare, kStruct };

template <class W, class M, class S>
struct Subject {
  const ClassModel& model;
  const M& full;
  const M& bare;
  const S& engine;

  std::unique_ptr<W> construct(Load load) const {
    if (load == Load::kStruct) return std::make_unique<W>(engine);
    return std::make_unique<W>(load == Load::kFull ? &full : &bare);
  }
  void init(W& wrapper, Load load) const {
    if (load == Load::kStruct) return wrapper.init(engine);
    wrapper.init(load == Load::kFull ? &full : &bare);
  }
};

class Ownership : public testing::Test {
 protected:
  Ownership() { knowAll(&objects_); }

  // The live objects that came since before.
  Census since(const Census& before) const {
    Census now = objects_.census();
    for (const auto& [name, count] : before) {
      if ((now[name] -= count) == 0) now.erase(name);
    }
    return now;
  }

  // Runs the loads on the subject and on the model and holds their censuses together after each,
  // and after the destruction.
  template <class W, class M, class S>
  void follow(const Subject<W, M, S>& subject, const std::vector<Load>& loads) const {
    Census expected;
    OwnershipModel model(subject.model, &expected);
    const Census before = objects_.census();
    std::unique_ptr<W> wrapper;
    for (const Load load : loads) {
      wrapper == nullptr ? void(wrapper = subject.construct(load)) : subject.init(*wrapper, load);
      load == Load::kStruct ? model.loadStruct() : model.loadMessage(load == Load::kFull ? ~0U : 0);
      EXPECT_EQ(since(before), expected);
    }
    wrapper.reset();
    model.destroy();
    EXPECT_EQ(since(before), expected);
  }

  template <class W, class M, class S>
  void followAll(const Subject<W, M, S>& subject) const {
    const Load kinds[] = {Load::kFull, Load::kBare, Load::kStruct};
    for (const Load a : kinds) {
      follow(subject, {a});
      for (const Load b : kinds) {
        follow(subject, {a, b});
        for (const Load c : kinds) {
          SCOPED_TRACE(testing::Message() << "loads " << int(a) << int(b) << int(c));
          follow(subject, {a, b, c});
        }
      }
    }
  }

  // Lets each allocation of a load fail in turn, on a fresh wrapper and after each other load.
  // Every wrapper must still be fit for another load and for destruction.
  template <class W, class M, class S>
  void failEach(const Subject<W, M, S>& subject) const {
    for (const Load first : {Load::kFull, Load::kStruct}) {
      for (const Load second : {Load::kFull, Load::kStruct}) {
        bool failed = true;
        for (int after = 0; failed; ++after) {
          auto wrapper = subject.construct(first);
          LiveObjects::failAfter(after);
          try {
            subject.init(*wrapper, second);
            failed = false;
          } catch (const std::bad_alloc&) {
          }
          LiveObjects::failAfter(-1);
          if (after % 2 == 0) subject.init(*wrapper, Load::kStruct);
        }
      }
      bool failed = true;
      for (int after = 0; failed; ++after) {
        const std::size_t before = LiveObjects::blocks();
        LiveObjects::failAfter(after);
        try {
          subject.construct(first);
          failed = false;
        } catch (const std::bad_alloc&) {
        }
        LiveObjects::failAfter(-1);
        if (failed && releasesItsChildren(subject.model, first)) {
          EXPECT_EQ(LiveObjects::blocks(), before) << "allocation " << after;
        }
      }
    }
  }

  static bool releasesItsChildren(const ClassModel& model, Load load) {
    if (&model == &kPostmixModel) return load != Load::kStruct;
    return &model != &kPremixModel;
  }

  LiveObjects objects_;
  const Sources sources_;
  const Subject<ZorPbTechImm3d, tech::Imm3d, _zorImm3dApiCtrl> imm3d_{
      kImm3dModel, sources_.imm3d, sources_.imm3d, sources_.imm3dStruct};
  const Subject<ZorPbTechVantix, tech::Vantix, _zorVantixApiCtrl> vantix_{
      kVantixModel, sources_.vantix, sources_.noVantix, sources_.vantixStruct};
  const Subject<ZorPbPremix, onyx::Premix, _zorOnyxPremixApiCtrlEx> premix_{
      kPremixModel, sources_.premix, sources_.noPremix, sources_.premixStruct};
  const Subject<ZorPbPostmix, onyx::Postmix, _zorOnyxPostmixApiCtrlCoeffsEx> postmix_{
      kPostmixModel, sources_.postmix, sources_.noPostmix, sources_.postmixStruct};
};

TEST_F(Ownership, Leaf) { followAll(imm3d_); }
TEST_F(Ownership, Vantix) { followAll(vantix_); }
TEST_F(Ownership, Premix) { followAll(premix_); }
TEST_F(Ownership, Postmix) { followAll(postmix_); }

TEST_F(Ownership, HighPassCoefficients) {
  const Census before = objects_.census();
  {
    coef::Hpf msg;
    ZorPbCoefHpf wrapper(&msg);
    wrapper.init(&msg);
  }
  EXPECT_EQ(since(before), (Census{{"com.zor.coef.Hpf", 1}}));
}

// The coefficient wrappers load in ways of their own.
TEST_F(Ownership, EqualizerCoefficients) {
  const Census before = objects_.census();
  {
    ZorPbCoefXeq wrapper(_zorXeqApiCoeff{});
    wrapper.init(_zorXeqApiCoeff{});
    EXPECT_EQ(since(before), (Census{{"com.zor.coef.Xeq", 1}}));
    wrapper.init(&coef::Xeq::default_instance());
  }
  EXPECT_EQ(since(before), (Census{{"com.zor.coef.Xeq", 1}}));
}

// A child that an earlier load left writes last, over high-pass coefficients that reach so far.
TEST_F(Ownership, FaderSettingsFromTheLoadBefore) {
  auto s = std::make_unique<_zorOnyxPostmixApiCtrlCoeffsEx>();
  s->fader_info = {1, 2, 3, 4, 5};
  ZorPbPostmix wrapper(*s);
  onyx::Postmix msg;
  msg.mutable_hpf_coef()->mutable_coeffs()->Resize(749, -1);
  wrapper.init(&msg);
  wrapper.populateStruct(*s);
  EXPECT_EQ(s->reserved[51], -1);
  EXPECT_EQ(s->fader_info.shadow, 1);
  EXPECT_EQ(s->fader_info.state, 5);
}

TEST_F(Ownership, AfterAFailedAllocation) {
  failEach(imm3d_);
  failEach(vantix_);
  failEach(premix_);
  failEach(postmix_);
}

// A configuration that loses nothing is checked without an allocation, an unsafe one is found out
// without one.
TEST_F(Ownership, ChecksAllocateNothing) {
  onyx::Postmix unsafe = sources_.postmix;
  for (int i = 0; i <= 20; ++i) unsafe.mutable_hpf_coef()->add_coeffs(i);
  LiveObjects::failAfter(0);
  const bool nothing = ZorPbCheck::findings(sources_.premix).empty();
  const bool premixIsSafe = ZorPbCheck::isSafe(sources_.premix);
  const bool postmixIsSafe = ZorPbCheck::isSafe(unsafe);
  LiveObjects::failAfter(-1);
  EXPECT_TRUE(nothing);
  EXPECT_TRUE(premixIsSafe);
  EXPECT_FALSE(postmixIsSafe);
}

// A load from a struct releases everything, buffers included.
TEST_F(Ownership, LoadsFromStructsLeaveNothing) {
  ZorPbPostmix postmix(sources_.postmixStruct);
  ZorPbPremix premix(sources_.premixStruct);
  _zorDeepApiCoeffEx coefficients = {};
  coefficients.uuid = "";
  ZorPbCoefDeep deep(coefficients);
  const std::size_t before = LiveObjects::blocks();
  postmix.init(sources_.postmixStruct);
  premix.init(sources_.premixStruct);
  deep.init(coefficients);
  EXPECT_EQ(LiveObjects::blocks(), before);
}

}  // namespace
}  // namespace zortest
