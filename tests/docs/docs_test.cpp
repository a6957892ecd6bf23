// The programs that the documents show do what is said of them.
#include <hal.cpp>  // NOLINT(bugprone-suspicious-include): what is shown has no header

#include <gtest/gtest.h>

#include <fstream>

bool load(const std::string& bytes, _zorOnyxPostmixApiCtrlCoeffsEx* engine);  // README's first

namespace {

Onyx headphones() {
  Onyx configuration;
  std::ifstream file(ZORCS_CONFIGURATION, std::ios::binary);
  EXPECT_TRUE(configuration.ParseFromIstream(&file));
  return configuration;
}

TEST(Docs, ProgramsConvert) {
  const std::string bytes = headphones().SerializeAsString();
  const auto state = engineStateOf(bytes);
  ASSERT_NE(state, nullptr);
  EXPECT_EQ(state->premix.leveler.lkfs_gain, 8192);
  EXPECT_EQ(state->postmix.room_multi_ch[48], 5872026);
  Onyx back;
  ASSERT_TRUE(back.ParseFromString(bytesOf(*state)));
  EXPECT_EQ(back.premix().leveler().lkfs_gain(), 8192);
  EXPECT_EQ(back.postmix().room_multi_ch(48), 5872026);

  const auto engine = std::make_unique<_zorOnyxPostmixApiCtrlCoeffsEx>();
  ASSERT_TRUE(load(bytes, engine.get()));
  EXPECT_EQ(engine->room_multi_ch[48], 5872026);
}

TEST(Docs, ProgramsKeepTheUuid) {
  Onyx configuration = headphones();
  auto* deep = configuration.mutable_postmix()->mutable_deep_coef();
  deep->set_uuid("3d1f7a52-6c0e-4b8e-9a41-5e2c90b7d816");
  deep->set_speaker_size(180);
  deep->set_analysis_size(120);
  deep->set_sample_rate(48000);
  const auto state = engineStateOf(configuration.SerializeAsString());
  ASSERT_NE(state, nullptr);
  EXPECT_STREQ(state->deepCoef.uuid, deep->uuid().c_str());
}

TEST(Docs, ProgramsRefuse) {
  Onyx configuration = headphones();
  auto* hpf = configuration.mutable_postmix()->mutable_hpf_coef();
  hpf->set_uuid("");
  hpf->set_cutoff(180);
  hpf->set_order(4);
  hpf->set_sample_rate(48000);
  hpf->mutable_coeffs()->Resize(21, 1);
  _zorOnyxPostmixApiCtrlCoeffsEx* const untouched = nullptr;
  for (const std::string& bytes : {configuration.SerializeAsString(), std::string("none")}) {
    EXPECT_EQ(engineStateOf(bytes), nullptr);
    EXPECT_FALSE(load(bytes, untouched));
  }
}

}  // namespace
