// Takes a configuration from a file to the engine structs and back: the library's whole road.
//
//   convert CONFIGURATION    a serialised com.zor.onyx.fxp_std.Onyx
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <fstream>
#include <iomanip>
#include <iostream>
#include <memory>
#include <string>

#include "ZorPbCheck.h"
#include "ZorPbPostmix.h"
#include "ZorPbPremix.h"
#include "onyx.pb.h"

namespace {

using com::zor::onyx::fxp_std::Onyx;
using com::zor::onyx::fxp_std::Postmix;
using com::zor::onyx::fxp_std::Premix;
using google::protobuf::MessageLite;
using google::protobuf::RepeatedField;

// The structs are large: the post-mix stage alone takes 60 KB. They belong on the heap.
struct Engine {
  _zorOnyxPremixApiCtrlEx premix = {};
  _zorOnyxPostmixApiCtrlCoeffsEx postmix = {};
};

// Message to struct. The wrappers copy what they need and need not outlive the call; the structs
// are ours.
void fill(const Onyx& configuration, Engine* engine) {
  ZorPbPremix(&configuration.premix()).populateStruct(engine->premix);
  ZorPbPostmix(&configuration.postmix()).populateStruct(engine->postmix);
}

template <std::size_t n>
void summarize(const std::string& name, const int32_t (&words)[n]) {
  std::size_t used = 0;
  int32_t lowest = words[0];
  int32_t highest = words[0];
  for (const int32_t word : words) {
    if (word != 0) ++used;
    lowest = std::min(lowest, word);
    highest = std::max(highest, word);
  }
  std::cout << "  " << std::left << std::setw(20) << name << std::right << std::setw(5) << used
            << " of " << std::setw(4) << n << " words are not 0, from " << lowest << " to "
            << highest << "\n";
}

void summarize(const Engine& engine) {
  const auto& s = engine.postmix;
  std::cout << "What arrived in the engine structs:\n"
            << "  stream_gain " << engine.premix.stream_gain << ", leveler.lkfs_gain "
            << engine.premix.leveler.lkfs_gain << ", vantix.deep.ref_gain "
            << s.vantix.deep.ref_gain << ", geq10b.band9_gain " << s.geq10b.band9_gain << "\n"
            << "  hpf_coef.order " << s.hpf_coef.order << ", fader_info.out_length "
            << s.fader_info.out_length << "\n";
  summarize("hpf_coef.coeffs", s.hpf_coef.coeffs);
  summarize("xeq_coef table_a", s.xeq_coef.block[0].table_a);
  summarize("room_multi_ch", s.room_multi_ch);
  summarize("room_stereo_front", s.room_stereo_front);
  summarize("room_stereo_wide", s.room_stereo_wide);
  summarize("hpeq_coeffs", s.hpeq_coeffs);
}

void report(const std::string& name, bool same, const std::string& whyNot) {
  std::cout << "  " << std::left << std::setw(27) << name
            << (same ? "the same" : "not the same: " + whyNot) << std::right << "\n";
}
void compare(const std::string& name, const MessageLite& sent, const MessageLite& back,
             const std::string& whyNot = "it was absent, the struct always has one") {
  report(name, sent.SerializePartialAsString() == back.SerializePartialAsString(), whyNot);
}
void compare(const std::string& name, const RepeatedField<int32_t>& sent,
             const RepeatedField<int32_t>& back) {
  const bool same = std::equal(sent.begin(), sent.end(), back.begin(), back.end());
  report(name, same,
         std::to_string(sent.size()) + " values were sent, the struct always has " +
             std::to_string(back.size()));
}

// Struct to message. A wrapper's message is there as long as the wrapper is.
void compare(const Onyx& sent, const Engine& engine) {
  const ZorPbPremix premixWrapper(engine.premix);
  const ZorPbPostmix postmixWrapper(engine.postmix);
  const auto& premix = dynamic_cast<const Premix&>(*premixWrapper.msg_);
  const auto& postmix = dynamic_cast<const Postmix&>(*postmixWrapper.msg_);
  const Premix& oldPremix = sent.premix();
  const Postmix& old = sent.postmix();
  const std::string noLimiter = "the struct has no limiter";

  std::cout << "What came back from the structs:\n";
  compare("premix.leveler", oldPremix.leveler(), premix.leveler());
  compare("premix.contour2", oldPremix.contour2(), premix.contour2(), noLimiter);
  compare("premix.fader_info", oldPremix.fader_info(), premix.fader_info());
  compare("postmix.orb_input_gain", old.orb_input_gain(), postmix.orb_input_gain());
  compare("postmix.vantix", old.vantix(), postmix.vantix());
  compare("postmix.geq10b", old.geq10b(), postmix.geq10b());
  compare("postmix.xeq", old.xeq(), postmix.xeq());
  compare("postmix.contour2", old.contour2(), postmix.contour2());
  compare("postmix.orb", old.orb(), postmix.orb(),
          old.has_orb() ? noLimiter : "it was absent, the struct always has one");
  compare("postmix.xeq_coef", old.xeq_coef(), postmix.xeq_coef(),
          "the struct has no uuid, sample rate or bands");
  compare("postmix.xeq_coef.coeffs", old.xeq_coef().coeffs(), postmix.xeq_coef().coeffs());
  compare("postmix.hpf_coef", old.hpf_coef(), postmix.hpf_coef(),
          "it travels from message to struct only");
  compare("postmix.fader_info", old.fader_info(), postmix.fader_info(),
          "it travels from struct to message only");
  compare("postmix.room_multi_ch", old.room_multi_ch(), postmix.room_multi_ch());
  compare("postmix.room_stereo_front", old.room_stereo_front(), postmix.room_stereo_front());
  compare("postmix.room_stereo_wide", old.room_stereo_wide(), postmix.room_stereo_wide());
  compare("postmix.hpeq_coeffs", old.hpeq_coeffs(), postmix.hpeq_coeffs());
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: convert CONFIGURATION\n";
    return 2;
  }
  std::ifstream file(argv[1], std::ios::binary);
  if (!file) {
    std::cerr << "convert: " << argv[1] << ": cannot be read\n";
    return 2;
  }
  Onyx configuration;
  if (!configuration.ParseFromIstream(&file)) {
    std::cerr << "convert: " << argv[1] << ": not a configuration\n";
    return 3;
  }
  // The conversion itself refuses nothing: whoever loads a file asks first.
  if (!ZorPbCheck::isSafe(configuration)) {
    for (const ZorPbFinding& finding : ZorPbCheck::findings(configuration)) {
      if (ZorPbCheck::severity(finding.rule) > ZorPbSeverity::kError) continue;
      std::cerr << "convert: " << argv[1] << ": " << ZorPbCheck::text(finding) << "\n";
    }
    return 1;
  }

  const auto engine = std::make_unique<Engine>();
  fill(configuration, engine.get());
  ZorPbPostmix::dumpRef(configuration.postmix(), std::cout);
  std::cout << "\n";
  summarize(*engine);
  std::cout << "\n";
  compare(configuration, *engine);
  return 0;
}
