// What the library prints, to the blank.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>

#include "ZorPbCoefDeep.h"
#include "ZorPbPostmix.h"
#include "ZorPbPremix.h"
#include "ZorPbTechImm3d.h"
#include "ZorPbTechVantix.h"
#include "support/EngineLayout.h"
#include "support/Wire.h"

namespace zortest {
namespace {

namespace onyx = com::zor::onyx::fxp_std;
namespace tech = com::zor::tech;

// Field number n of every message holds -n.
template <class M>
M numbered(const Layout& layout) {
  Wire wire;
  for (const Run& run : layout.runs) {
    for (int n = run.number; n < run.number + run.count; ++n) wire.sint(n, -n);
  }
  M msg;
  EXPECT_TRUE(msg.ParseFromString(wire.bytes()));
  return msg;
}

template <class W, class M>
std::string dumped(const M& msg) {
  std::ostringstream os;
  W::dumpRef(msg, os);
  return os.str();
}

// A dump kept in tests/data.
std::string kept(const std::string& file) {
  std::ifstream in(std::string(ZORCS_TEST_DATA_DIR "/") + file);
  EXPECT_TRUE(in) << file;
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

tech::Vantix vantix() {
  auto msg = numbered<tech::Vantix>(kVantix);
  *msg.mutable_imm3d() = numbered<tech::Imm3d>(kImm3d);
  *msg.mutable_expanse() = numbered<tech::Expanse>(kExpanse);
  *msg.mutable_deep() = numbered<tech::Deep>(kDeep);
  return msg;
}

TEST(Dump, Vantix) {
  EXPECT_EQ(dumped<ZorPbTechVantix>(vantix()), kept("vantix.dump"));
  const auto empty = dumped<ZorPbTechVantix>(tech::Vantix());
  EXPECT_EQ(std::count(empty.begin(), empty.end(), '\n'), 40);
  EXPECT_NE(empty.find("deepRef.ref_gain           = 0\n"), std::string::npos);
}

TEST(Dump, Postmix) {
  auto msg = numbered<onyx::Postmix>(kPostmix);
  msg.add_bypass_hpeq(71);
  msg.add_bypass_hpeq(-72);
  for (int i = 0; i < 8; ++i) msg.add_xeq_enable(i);
  const auto expected = [&msg] {
    std::ostringstream address;
    address << "&vantixRef: " << static_cast<const void*>(&msg.vantix()) << "\n";
    return kept("postmix.dump") + address.str() + dumped<ZorPbTechVantix>(msg.vantix());
  };
  EXPECT_EQ(&msg.vantix(), &tech::Vantix::default_instance());
  EXPECT_EQ(dumped<ZorPbPostmix>(msg), expected());
  *msg.mutable_vantix() = vantix();
  EXPECT_EQ(dumped<ZorPbPostmix>(msg), expected());
}

// The stream's own formatting is the caller's: it applies to the values and, once, to a label.
TEST(Dump, KeepsTheStreamsFormat) {
  std::ostringstream os;
  os << std::hex << std::showbase;
  os.width(30);
  tech::Imm3d msg;
  msg.set_enable(255);
  ZorPbTechImm3d::dumpRef(msg, os);
  EXPECT_EQ(os.str().substr(0, os.str().find('\n')), "      imm3dRef.enable       = 0xff");
}

// A wrapper whose message is missing or of another type writes nothing; the stages say so.
template <class W, class M, class S>
void expectNoMessage(const std::string& error) {
  for (google::protobuf::MessageLite* other :
       {static_cast<google::protobuf::MessageLite*>(nullptr),
        static_cast<google::protobuf::MessageLite*>(new onyx::Onyx)}) {
    const M msg;
    W wrapper(&msg);
    delete wrapper.msg_;
    wrapper.msg_ = other;
    S s = {};
    testing::internal::CaptureStderr();
    wrapper.populateStruct(s);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), error);
    EXPECT_EQ(std::string(reinterpret_cast<const char*>(&s), sizeof(s)),
              std::string(sizeof(s), '\0'));
  }
}

TEST(NoMessage, IsReportedByTheStagesOnly) {
  const std::string line = " *** error -- msg is NULL\n";
  expectNoMessage<ZorPbPostmix, onyx::Postmix, _zorOnyxPostmixApiCtrlCoeffsEx>(line);
  expectNoMessage<ZorPbPremix, onyx::Premix, _zorOnyxPremixApiCtrlEx>(line);
  expectNoMessage<ZorPbTechVantix, tech::Vantix, _zorVantixApiCtrl>("");
  expectNoMessage<ZorPbCoefDeep, com::zor::coef::Deep, _zorDeepApiCoeffEx>("");
  expectNoMessage<ZorPbTechImm3d, tech::Imm3d, _zorImm3dApiCtrl>("");
}

TEST(NoMessage, ChildrenOfTheVirtualizerWriteAllTheSame) {
  const auto msg = vantix();
  ZorPbTechVantix wrapper(&msg);
  delete wrapper.msg_;
  wrapper.msg_ = nullptr;
  _zorVantixApiCtrl ctrl = {};
  wrapper.populateStruct(ctrl);
  EXPECT_EQ(ctrl.enable, 0);
  EXPECT_EQ(ctrl.imm3d.center_level, -9);
  EXPECT_EQ(ctrl.expanse.speaker_separation_level, -6);
  EXPECT_EQ(ctrl.deep.bass_clarity_level, -14);
}

}  // namespace
}  // namespace zortest
