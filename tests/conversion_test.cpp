// Every member of every struct, in both directions, and nothing beside it.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "support/EngineLayout.h"
#include "support/Wrappers.h"

namespace zortest {
namespace {

namespace onyx = com::zor::onyx::fxp_std;
namespace coef = com::zor::coef;
namespace tech = com::zor::tech;

template <class M>
M parsed(const std::string& wire) {
  M msg;
  EXPECT_TRUE(msg.ParsePartialFromString(wire));
  return msg;
}

// The wire bytes as the message class itself writes them: packed where it packs.
template <class M>
std::string canonical(const std::string& wire) {
  return parsed<M>(wire).SerializePartialAsString();
}

// A struct on the heap, at its exact size, every byte of it poisoned.
template <class S>
std::unique_ptr<S> poisoned() {
  auto s = std::make_unique<S>();
  std::memset(s.get(), kPoison, sizeof(S));
  return s;
}

template <class S>
void expectImage(const S& s, const std::vector<unsigned char>& expected) {
  const auto* bytes = reinterpret_cast<const unsigned char*>(&s);
  for (std::size_t i = 0; i < sizeof(S); ++i) {
    ASSERT_EQ(int{bytes[i]}, int{expected[i]}) << "byte " << i << " of " << sizeof(S);
  }
}

template <class C>
class Carries : public testing::Test {
 protected:
  // Loads a message with these values and list lengths; holds the wrapper's message and the struct
  // that it fills against the layout.
  static void fromMessage(const ValueAt& value, const CountOf& count) {
    const auto msg = parsed<typename C::M>(wireOf(C::layout(), Depth::kToStruct, value, count));
    typename C::W wrapper(&msg);
    if (wrapper.msg_ != nullptr) {
      const CountOf kept = [&](const Array& array) {
        return array.open ? count(array) : std::min(count(array), array.capacity);
      };
      EXPECT_EQ(wrapper.msg_->SerializePartialAsString(),
                canonical<typename C::M>(wireOf(C::layout(), Depth::kOwnFields, value, kept)));
    }
    auto s = poisoned<typename C::S>();
    wrapper.populateStruct(*s);
    std::vector<unsigned char> image(sizeof(*s), kPoison);
    fillImage(C::layout(), Depth::kToStruct, value, count, image.data());
    expectImage(*s, image);
  }
};

TYPED_TEST_SUITE(Carries, LaidOutConversions<testing::Types>);

TYPED_TEST(Carries, EveryFieldToItsMember) { this->fromMessage(distinctValue, capacityOf); }

TYPED_TEST(Carries, DefaultsOfFieldsThatAreAbsent) {
  this->fromMessage(zero, [](const Array&) { return 0; });
  const typename TypeParam::M empty;
  typename TypeParam::W wrapper(&empty);
  auto s = poisoned<typename TypeParam::S>();
  wrapper.populateStruct(*s);
  std::vector<unsigned char> image(sizeof(*s), kPoison);
  fillImage(
      TypeParam::layout(), Depth::kOwnFields, zero, [](const Array&) { return 0; }, image.data());
  expectImage(*s, image);
}

TYPED_TEST(Carries, ListsShortExactAndLong) {
  for (const int missing : {1, 2, 3}) {
    this->fromMessage(distinctValue, [&](const Array& a) { return a.capacity - missing; });
  }
  this->fromMessage(distinctValue, [](const Array&) { return 1; });
  // The high-pass table is written whole; its overrun has a test of its own.
  if (&TypeParam::layout() == &kCoefHpf) return;
  this->fromMessage(distinctValue,
                    [](const Array& a) { return a.number == 5 ? a.capacity : a.capacity + 3; });
}

TYPED_TEST(Carries, LowSixteenBits) {
  for (const int32_t wide : {40000, -32769, 70000, 32768, 65536, INT32_MAX, INT32_MIN}) {
    this->fromMessage(
        [&](std::size_t offset, std::size_t width) {
          return width == 2 ? wide ^ static_cast<int32_t>(offset) : distinctValue(offset, width);
        },
        capacityOf);
  }
}

TYPED_TEST(Carries, EveryMemberToItsField) {
  if constexpr (std::is_constructible_v<typename TypeParam::W, const typename TypeParam::S&>) {
    using M = typename TypeParam::M;
    auto s = poisoned<typename TypeParam::S>();
    fillImage(TypeParam::layout(), Depth::kToMessage, distinctValue, capacityOf,
              reinterpret_cast<unsigned char*>(s.get()));
    typename TypeParam::W wrapper(*s);
    const auto wire = wireOf(TypeParam::layout(), Depth::kToMessage);
    EXPECT_EQ(wrapper.msg_->SerializePartialAsString(), canonical<M>(wire));

    auto back = poisoned<typename TypeParam::S>();
    wrapper.populateStruct(*back);
    std::vector<unsigned char> image(sizeof(*back), kPoison);
    fillImage(TypeParam::layout(), Depth::kToMessage, distinctValue, capacityOf, image.data());
    expectImage(*back, image);
  }
}

TEST(SixteenBits, WrapAsTheEngineSeesThem) {
  const struct {
    int32_t sent;
    int16_t arrives;
  } cases[] = {{40000, -25536}, {-32769, 32767}, {70000, 4464}, {-1, -1}, {32767, 32767}};
  for (const auto& c : cases) {
    tech::Imm3d msg;
    msg.set_input_gain(c.sent);
    _zorImm3dApiCtrl ctrl = {};
    ZorPbTechImm3d(&msg).populateStruct(ctrl);
    EXPECT_EQ(ctrl.input_gain, c.arrives) << c.sent;
  }
}

TEST(Limiter, IsDropped) {
  tech::Contour2 contour2;
  contour2.set_limiter(1);
  EXPECT_FALSE(dynamic_cast<tech::Contour2&>(*ZorPbTechContour2(&contour2).msg_).has_limiter());
  tech::Orb orb;
  orb.set_limiter(1);
  EXPECT_FALSE(dynamic_cast<tech::Orb&>(*ZorPbTechOrb(&orb).msg_).has_limiter());
}

TEST(Orb, NullIsNoMessage) {
  ZorPbTechOrb wrapper(static_cast<const tech::Orb*>(nullptr));
  EXPECT_EQ(wrapper.msg_, nullptr);
  auto s = poisoned<_zorOrbApiCtrl>();
  wrapper.populateStruct(*s);
  expectImage(*s, std::vector<unsigned char>(sizeof(*s), kPoison));

  ZorPbTechOrb loaded(_zorOrbApiCtrl{});
  const auto* held = loaded.msg_;
  loaded.init(static_cast<const tech::Orb*>(nullptr));
  EXPECT_EQ(loaded.msg_, held);
}

TEST(CoefXeq, KeepsIdentifierAndRateButNoBands) {
  coef::Xeq msg;
  msg.set_uuid("12345678-1234-1234-1234-123456789abc");
  msg.set_sample_rate(44100);
  msg.add_channel_bands()->set_channel(1);
  const auto held = dynamic_cast<coef::Xeq&>(*ZorPbCoefXeq(&msg).msg_);
  EXPECT_EQ(held.uuid(), msg.uuid());
  EXPECT_EQ(held.sample_rate(), 44100);
  EXPECT_EQ(held.channel_bands_size(), 0);

  const auto empty = dynamic_cast<coef::Xeq&>(*ZorPbCoefXeq(&coef::Xeq::default_instance()).msg_);
  EXPECT_TRUE(empty.has_uuid() && empty.has_sample_rate());
}

TEST(CoefHpf, KeepsCoefficientsOnly) {
  coef::Hpf msg;
  msg.set_uuid("12345678-1234-1234-1234-123456789abc");
  msg.set_cutoff(100);
  msg.set_order(4);
  msg.set_sample_rate(44100);
  for (int i = 1; i <= 25; ++i) msg.add_coeffs(i);
  ZorPbCoefHpf wrapper(&msg);
  EXPECT_EQ(wrapper.msg_, nullptr);
  EXPECT_FALSE(wrapper.hpfMsg_->has_uuid() || wrapper.hpfMsg_->has_cutoff() ||
               wrapper.hpfMsg_->has_order() || wrapper.hpfMsg_->has_sample_rate());
  EXPECT_EQ(wrapper.hpfMsg_->coeffs_size(), 25);

  delete wrapper.hpfMsg_;
  wrapper.hpfMsg_ = nullptr;
  auto s = poisoned<_zorOnyxHpfApiCoeff>();
  wrapper.populateStruct(*s);
  expectImage(*s, std::vector<unsigned char>(sizeof(*s), kPoison));
}

// What passes the table's end lands in the equalizer's coefficients, after those were written.
TEST(CoefHpf, OverrunsIntoTheNextMember) {
  onyx::Postmix msg;
  for (int i = 1; i <= 25; ++i) msg.mutable_hpf_coef()->add_coeffs(-i);
  for (int i = 0; i < 672; ++i) msg.mutable_xeq_coef()->add_coeffs(1000 + i);
  auto s = poisoned<_zorOnyxPostmixApiCtrlCoeffsEx>();
  ZorPbPostmix(&msg).populateStruct(*s);
  EXPECT_EQ(s->hpf_coef.order, 0);
  EXPECT_EQ(s->hpf_coef.coeffs[19], -20);
  const auto& block = s->xeq_coef.block[0];
  EXPECT_EQ(std::vector<int32_t>({block.head[0], block.head[1], block.table_a[0], block.table_a[1],
                                  block.table_a[2], block.table_a[3]}),
            std::vector<int32_t>({-21, -22, -23, -24, -25, 1005}));
}

class CoefDeep : public testing::Test {
 protected:
  static coef::Deep message(int count) {
    coef::Deep msg;
    msg.set_uuid("12345678-1234-1234-1234-123456789abc");
    msg.set_speaker_size(-7);
    msg.set_analysis_size(8);
    msg.set_sample_rate(96000);
    for (int i = 0; i < count; ++i) msg.add_coeffs(100 + i);
    return msg;
  }
};

TEST_F(CoefDeep, ClearsSixEntriesAndWritesAtMostTwentyFour) {
  for (const int count : {0, 3, 6, 10, 23, 24, 27}) {
    const auto msg = message(count);
    ZorPbCoefDeep wrapper(&msg);
    const auto& held = dynamic_cast<const coef::Deep&>(*wrapper.msg_);
    EXPECT_EQ(held.SerializeAsString(), msg.SerializeAsString());

    auto s = poisoned<_zorDeepApiCoeffEx>();
    wrapper.populateStruct(*s);
    EXPECT_EQ(s->speaker_size, -7);
    EXPECT_EQ(s->analysis_size, 8);
    EXPECT_EQ(s->sample_rate, 96000);
    EXPECT_EQ(s->uuid, held.uuid().c_str());
    int32_t untouched = 0;
    std::memset(&untouched, kPoison, sizeof(untouched));
    for (int i = 0; i < 24; ++i) {
      EXPECT_EQ(s->coeffs[i], i < count ? 100 + i : i < 6 ? 0 : untouched) << count << ", " << i;
    }
  }
}

TEST_F(CoefDeep, FromStruct) {
  _zorDeepApiCoeffEx s = {};
  s.speaker_size = -7;
  s.analysis_size = 8;
  s.uuid = "12345678-1234-1234-1234-123456789abc";
  s.sample_rate = 96000;
  for (int i = 0; i < 24; ++i) s.coeffs[i] = 100 + i;
  ZorPbCoefDeep wrapper(s);
  EXPECT_EQ(wrapper.msg_->SerializeAsString(), message(24).SerializeAsString());

  // A struct that the wrapper itself filled borrows its uuid from the message that a load replaces.
  wrapper.populateStruct(s);
  wrapper.init(s);
  EXPECT_EQ(wrapper.msg_->SerializeAsString(), message(24).SerializeAsString());
}

TEST_F(CoefDeep, DefaultsReadAsPresent) {
  const auto held = dynamic_cast<coef::Deep&>(*ZorPbCoefDeep(&coef::Deep::default_instance()).msg_);
  EXPECT_TRUE(held.IsInitialized());
  EXPECT_EQ(held.uuid(), "00000000-0000-0000-0000-000000000000");
  EXPECT_EQ(held.sample_rate(), 48000);
}

// A nested struct is written when its block is present, and only then.
TEST(AbsentBlocks, LeaveTheirStructsAlone) {
  for (const Block& block : kPostmix.blocks) {
    Layout only = kPostmix;
    only.blocks = {block};
    const auto msg = parsed<onyx::Postmix>(wireOf(only, Depth::kToStruct));
    auto s = poisoned<_zorOnyxPostmixApiCtrlCoeffsEx>();
    ZorPbPostmix(&msg).populateStruct(*s);
    std::vector<unsigned char> image(sizeof(*s), kPoison);
    fillImage(only, Depth::kToStruct, distinctValue, capacityOf, image.data());
    expectImage(*s, image);
  }
}

TEST(Postmix, NeverCarriesWhatHasNoMember) {
  onyx::Postmix msg;
  msg.mutable_deep_coef();
  msg.mutable_vantix_xover_coef();
  msg.mutable_vrm();
  msg.mutable_fader_info();
  ZorPbPostmix wrapper(&msg);
  const auto& held = dynamic_cast<const onyx::Postmix&>(*wrapper.msg_);
  EXPECT_FALSE(held.has_deep_coef() || held.has_vantix_xover_coef() || held.has_vrm() ||
               held.has_fader_info());
}

}  // namespace
}  // namespace zortest
