// Holds the checker against the truth: what a conversion really changes, loses and leaves alone,
// seen from outside, over generated configurations.
#include <google/protobuf/descriptor.pb.h>
#include <google/protobuf/dynamic_message.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <fstream>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "ZorPbCheck.h"
#include "ZorPbPostmix.h"
#include "ZorPbPremix.h"
#include "support/EngineLayout.h"

namespace zortest {
namespace {

namespace onyx = com::zor::onyx::fxp_std;
using google::protobuf::FieldDescriptor;
using google::protobuf::Message;
using Effects = std::vector<std::string>;

// The schema as the protobuf compiler reads it: neither the library's nor the checker's view of it.
class Configurations {
 public:
  Configurations() {
    std::ifstream in(ZORCS_DESCRIPTORS, std::ios::binary);
    google::protobuf::FileDescriptorSet files;
    EXPECT_TRUE(files.ParseFromIstream(&in)) << ZORCS_DESCRIPTORS;
    for (const auto& file : files.file()) EXPECT_NE(pool_.BuildFile(file), nullptr);
    prototype_ = factory_.GetPrototype(pool_.FindMessageTypeByName("com.zor.onyx.fxp_std.Onyx"));
  }

  std::unique_ptr<Message> random(uint32_t seed) {
    random_.seed(seed);
    setOneIn_ = 2 + below(8);
    std::unique_ptr<Message> msg(prototype_->New());
    fill(msg.get());
    return msg;
  }

 private:
  uint32_t below(uint32_t limit) { return static_cast<uint32_t>(random_() % limit); }

  int32_t value() {
    constexpr int32_t kEdges[] = {0, 1, -1, 32767, -32768, 32768, -32769, 70000, INT32_MIN};
    const uint32_t pick = below(12);
    return pick < std::size(kEdges) ? kEdges[pick] : static_cast<int32_t>(random_());
  }

  // List lengths about each capacity there is; no more high-pass coefficients than fit.
  int count(const FieldDescriptor& field) {
    constexpr int kCapacities[] = {4, 6, 7, 20, 24, 135, 672, 3085, 8210};
    if (field.message_type() != nullptr) return static_cast<int>(below(3));
    const int n = kCapacities[below(std::size(kCapacities))] + static_cast<int>(below(3)) - 1;
    return field.full_name() == "com.zor.coef.Hpf.coeffs" ? std::min(n, 20) : n;
  }

  void fill(Message* msg) {
    for (int i = 0; i < msg->GetDescriptor()->field_count(); ++i) {
      const FieldDescriptor* field = msg->GetDescriptor()->field(i);
      if (below(setOneIn_) == 0) continue;
      for (int n = field->is_repeated() ? count(*field) : 1; n > 0; --n) set(msg, field);
    }
  }

  void set(Message* msg, const FieldDescriptor* field) {
    const auto* reflection = msg->GetReflection();
    switch (field->cpp_type()) {
      case FieldDescriptor::CPPTYPE_INT32:
        if (field->is_repeated()) return reflection->AddInt32(msg, field, value());
        return reflection->SetInt32(msg, field, value());
      case FieldDescriptor::CPPTYPE_UINT32:
        return reflection->SetUInt32(msg, field, static_cast<uint32_t>(value()));
      case FieldDescriptor::CPPTYPE_STRING:
        return reflection->SetString(msg, field, "text");
      case FieldDescriptor::CPPTYPE_MESSAGE:
        return fill(field->is_repeated() ? reflection->AddMessage(msg, field)
                                         : reflection->MutableMessage(msg, field));
      case FieldDescriptor::CPPTYPE_FLOAT:
        return reflection->SetFloat(msg, field, 0.5F);
      default:
        return reflection->SetEnumValue(msg, field, 0);
    }
  }

  google::protobuf::DescriptorPool pool_;
  google::protobuf::DynamicMessageFactory factory_;
  const Message* prototype_ = nullptr;
  std::mt19937 random_;
  uint32_t setOneIn_ = 2;
};

std::string indices(int first, int last) {
  return "[" + std::to_string(first) + ".." + std::to_string(last) + "]";
}

// What a conversion did to one stage: two structs, poisoned differently, filled from one message.
class Observation {
 public:
  template <class W, class M, class S>
  static Observation of(const M& msg) {
    Observation seen;
    unsigned char poison = kPoison;
    for (auto* bytes : {&seen.one_, &seen.other_}) {
      auto s = std::make_unique<S>();
      std::memset(s.get(), poison, sizeof(S));
      W(&msg).populateStruct(*s);
      const auto* first = reinterpret_cast<const unsigned char*>(s.get());
      bytes->assign(first, first + sizeof(S));
      poison = static_cast<unsigned char>(~poison);
    }
    return seen;
  }

  bool written(std::size_t offset, std::size_t width) const {
    return std::equal(&one_[offset], &one_[offset] + width, &other_[offset]);
  }
  int32_t value(std::size_t offset, std::size_t width) const {
    int32_t wide = 0;
    int16_t narrow = 0;
    std::memcpy(width == 2 ? static_cast<void*>(&narrow) : &wide, &one_[offset], width);
    return width == 2 ? narrow : wide;
  }

 private:
  std::vector<unsigned char> one_, other_;
};

// Reads off the effects, field by field in the order of the schema.
class Truth {
 public:
  explicit Truth(Effects* effects) : effects_(effects) {}

  // A message without a layout does not reach any struct.
  void read(const Message& msg, const Layout* layout, const Observation* seen, std::size_t base,
            const std::string& path) {
    const auto* reflection = msg.GetReflection();
    for (int i = 0; i < msg.GetDescriptor()->field_count(); ++i) {
      const FieldDescriptor* field = msg.GetDescriptor()->field(i);
      const std::string here = path + field->name();
      const bool set = field->is_repeated() ? reflection->FieldSize(msg, field) > 0
                                            : reflection->HasField(msg, field);
      if (field->is_required() && !set) add("missing", here);
      if (layout != nullptr && mapped(msg, field, *layout, *seen, base, here)) continue;
      if (layout != nullptr && set) lost(msg, field, here);
      nested(msg, field, here);
    }
  }

  void nested(const Message& msg, const FieldDescriptor* field, const std::string& here) {
    if (field->message_type() == nullptr) return;
    const auto* reflection = msg.GetReflection();
    if (!field->is_repeated()) {
      if (!reflection->HasField(msg, field)) return;
      return read(reflection->GetMessage(msg, field), nullptr, nullptr, 0, here + ".");
    }
    for (int i = 0; i < reflection->FieldSize(msg, field); ++i) {
      const std::string element = here + "[" + std::to_string(i) + "].";
      read(reflection->GetRepeatedMessage(msg, field, i), nullptr, nullptr, 0, element);
    }
  }

  void add(const std::string& effect, const std::string& where) {
    effects_->push_back(effect + " " + where);
  }

 private:
  void lost(const Message& msg, const FieldDescriptor* field, const std::string& here) {
    const int size = field->is_repeated() ? msg.GetReflection()->FieldSize(msg, field) : 0;
    add("lost", size > 0 ? here + indices(0, size - 1) : here);
  }

  bool mapped(const Message& msg, const FieldDescriptor* field, const Layout& layout,
              const Observation& seen, std::size_t base, const std::string& here) {
    const auto* reflection = msg.GetReflection();
    const int number = field->number();
    for (const Run& run : layout.runs) {
      if (number < run.number || number >= run.number + run.count) continue;
      const auto index = static_cast<std::size_t>(number - run.number);
      const auto offset = base + run.offset + run.width * index;
      EXPECT_TRUE(seen.written(offset, run.width)) << here;
      compare("changed", reflection->GetInt32(msg, field), seen.value(offset, run.width), here);
      return true;
    }
    for (const ZeroWord& word : layout.zeroWords) {
      if (number != word.number) continue;
      compare("lost", reflection->GetInt32(msg, field), seen.value(base + word.offset, 4), here);
      return true;
    }
    for (const Array& array : layout.arrays) {
      if (number != array.number) continue;
      readArray(msg, field, array, seen, base + array.offset, here);
      return true;
    }
    for (const Block& block : layout.blocks) {
      if (number != block.number || block.travels == Travels::kToMessage) continue;
      if (reflection->HasField(msg, field)) {
        read(reflection->GetMessage(msg, field), block.layout, &seen, base + block.offset,
             here + ".");
      } else {
        EXPECT_FALSE(seen.written(base + block.offset, 4)) << here;
        add("kept", here);
      }
      return true;
    }
    return false;
  }

  void compare(const std::string& effect, int32_t value, int32_t engine, const std::string& here) {
    if (value == engine) return;
    add(effect, here + " " + std::to_string(value) + "->" + std::to_string(engine));
  }

  void readArray(const Message& msg, const FieldDescriptor* field, const Array& array,
                 const Observation& seen, std::size_t offset, const std::string& here) {
    const auto* reflection = msg.GetReflection();
    const int size = reflection->FieldSize(msg, field);
    int written = 0;
    for (; written < array.capacity; ++written) {
      const auto at = offset + 4 * static_cast<std::size_t>(written);
      if (!seen.written(at, 4)) break;
      EXPECT_LT(written, size) << here;
      EXPECT_EQ(seen.value(at, 4), reflection->GetRepeatedInt32(msg, field, written)) << here;
    }
    if (written < array.capacity) add("kept", here + indices(written, array.capacity - 1));
    if (written < size) add("cut", here + indices(written, size - 1));
  }

  Effects* effects_;
};

Effects truth(const Message& generated, const onyx::Onyx& msg) {
  Effects effects;
  Truth reader(&effects);
  const auto* reflection = generated.GetReflection();
  for (int i = 0; i < generated.GetDescriptor()->field_count(); ++i) {
    const FieldDescriptor* field = generated.GetDescriptor()->field(i);
    const bool set = reflection->HasField(generated, field);
    if (field->is_required() && !set) reader.add("missing", field->name());
    if (field->message_type() == nullptr) continue;
    if (!set) {
      reader.add("kept", field->name());
      continue;
    }
    const bool premix = field->name() == "premix";
    const auto seen =
        premix ? Observation::of<ZorPbPremix, onyx::Premix, _zorOnyxPremixApiCtrlEx>(msg.premix())
               : Observation::of<ZorPbPostmix, onyx::Postmix, _zorOnyxPostmixApiCtrlCoeffsEx>(
                     msg.postmix());
    reader.read(reflection->GetMessage(generated, field), premix ? &kPremix : &kPostmix, &seen, 0,
                field->name() + ".");
  }
  return effects;
}

Effects told(const std::vector<ZorPbFinding>& findings) {
  const std::map<ZorPbRule, std::string> effectOf = {
      {ZorPbRule::kMissingRequired, "missing"}, {ZorPbRule::kShortSource, "kept"},
      {ZorPbRule::kInt16Wrap, "changed"},       {ZorPbRule::kListCut, "cut"},
      {ZorPbRule::kNotCarried, "lost"},         {ZorPbRule::kListShort, "kept"},
      {ZorPbRule::kAbsentBlock, "kept"}};
  Effects effects;
  for (const ZorPbFinding& finding : findings) {
    std::string where = finding.path();
    if (finding.firstIndex >= 0) {
      where += indices(finding.firstIndex, finding.lastIndex);
    } else if (finding.value != finding.engine) {
      where += " " + std::to_string(finding.value) + "->" + std::to_string(finding.engine);
    }
    effects.push_back(effectOf.at(finding.rule) + " " + where);
  }
  return effects;
}

TEST(Check, TellsExactlyWhatHappens) {
  Configurations configurations;
  std::map<ZorPbRule, int> times;
  for (uint32_t seed = 0; seed < 300; ++seed) {
    SCOPED_TRACE(seed);
    const auto generated = configurations.random(seed);
    onyx::Onyx msg;
    ASSERT_TRUE(msg.ParsePartialFromString(generated->SerializePartialAsString()));
    const auto findings = ZorPbCheck::findings(msg);
    ASSERT_EQ(told(findings), truth(*generated, msg));

    bool safe = true;
    for (const ZorPbFinding& finding : findings) {
      ++times[finding.rule];
      EXPECT_TRUE(finding.firstIndex >= 0 || (finding.firstIndex == -1 && finding.lastIndex == -1));
      for (const auto& step : finding.steps) EXPECT_GE(step.index, -1);
      if (finding.rule == ZorPbRule::kNotCarried && finding.firstIndex >= 0) {
        EXPECT_EQ(finding.engine, 0);
      }
      if (ZorPbCheck::severity(finding.rule) <= ZorPbSeverity::kError) safe = false;
    }
    EXPECT_EQ(ZorPbCheck::isSafe(msg), safe);

    std::vector<std::string> missing;
    generated->FindInitializationErrors(&missing);
    const auto named = std::count_if(findings.begin(), findings.end(), [](const auto& finding) {
      return finding.rule == ZorPbRule::kMissingRequired;
    });
    EXPECT_EQ(static_cast<std::size_t>(named), missing.size());
  }
  EXPECT_EQ(times.size(), 7U);  // every rule but the overrun, which ends the comparison
}

// One finding of each rule and form, as people read it.
TEST(Check, Texts) {
  onyx::Postmix msg;
  msg.mutable_vantix()->mutable_imm3d()->set_enable(1);
  msg.mutable_vantix()->mutable_imm3d()->set_input_gain(40000);
  for (int i = 0; i < 3; ++i) msg.mutable_contour2()->add_htest(i);
  for (int i = 0; i < 21; ++i) msg.mutable_hpf_coef()->add_coeffs(i);
  msg.mutable_hpf_coef()->set_order(4);
  msg.mutable_xeq_coef()->add_channel_bands()->add_band_data();
  msg.mutable_vrm();
  for (int i = 0; i < 8300; ++i) msg.add_room_multi_ch(i);
  std::vector<std::string> texts;
  for (const auto& finding : ZorPbCheck::findings(msg)) {
    texts.push_back(ZorPbCheck::text(finding));
  }
  for (const char* expected :
       {"postmix.vantix.imm3d.input_gain: lossy: 40000 does not fit 16 bits, the engine gets "
        "-25536 "
        "[int16-wrap]",
        "postmix.orb_input_gain[0..5]: partial: 0 values for 6, the struct keeps what it had "
        "[list-short]",
        "postmix.vantix.enable: error: is required and not set [missing-required]",
        "postmix.geq10b: partial: is absent, the struct keeps what it had [absent-block]",
        "postmix.contour2.htest[3..6]: error: 3 values where the engine takes 7, the struct keeps "
        "what it had [short-source]",
        "postmix.contour2.ref_htest[0..6]: error: 0 values where the engine takes 7, the struct "
        "keeps what it had [short-source]",
        "postmix.hpf_coef.order: dropped: 4 is not carried, the engine gets 0 [not-carried]",
        "postmix.hpf_coef.coeffs[20]: unsafe: 1 value past the capacity of 20 is written over what "
        "follows the table [overrun]",
        "postmix.xeq_coef.channel_bands[0]: dropped: 1 element never reaches the engine "
        "[not-carried]",
        "postmix.xeq_coef.channel_bands[0].band_data[0].q: error: is required and not set "
        "[missing-required]",
        "postmix.vrm: dropped: is set, but never reaches the engine [not-carried]",
        "postmix.vrm.version: error: is required and not set [missing-required]",
        "postmix.room_multi_ch[8210..8299]: lossy: 90 values past the capacity of 8210 are cut "
        "[list-cut]"}) {
    EXPECT_NE(std::find(texts.begin(), texts.end(), expected), texts.end()) << expected;
  }
  EXPECT_FALSE(ZorPbCheck::isSafe(msg));

  onyx::Premix premix;
  premix.mutable_leveler();
  EXPECT_EQ(ZorPbCheck::text(ZorPbCheck::findings(premix).at(0)),
            "premix.leveler.enable: error: is required and not set [missing-required]");
  EXPECT_FALSE(ZorPbCheck::isSafe(premix));
}

TEST(Check, TextsSayOneOrSeveral) {
  const struct {
    ZorPbRule rule;
    int last;
    const char* text;
  } cases[] = {
      {ZorPbRule::kOverrun, 21,
       "[20..21]: unsafe: 2 values past the capacity of 20 are written over what follows the table "
       "[overrun]"},
      {ZorPbRule::kListCut, 20, "[20]: lossy: 1 value past the capacity of 20 is cut [list-cut]"},
      {ZorPbRule::kNotCarried, 21,
       "[20..21]: dropped: 2 elements never reach the engine "
       "[not-carried]"}};
  for (const auto& c : cases) {
    EXPECT_EQ(ZorPbCheck::text({c.rule, {}, 20, c.last, c.last + 1, 20}), c.text);
  }
  // As it is made, a finding is about no element.
  ZorPbFinding made;
  EXPECT_EQ(ZorPbCheck::text(made),
            ": unsafe: 1 value past the capacity of 0 is written over what "
            "follows the table [overrun]");
  made.rule = ZorPbRule::kListShort;
  EXPECT_EQ(ZorPbCheck::text(made),
            ": partial: 0 values for 0, the struct keeps what it had [list-short]");
}

// As a caller meets it who was compiled with a later checker's header.
TEST(Check, TakesAnUnknownRuleForUnsafe) {
  ZorPbFinding finding;
  finding.rule = static_cast<ZorPbRule>(-1);
  EXPECT_EQ(ZorPbCheck::text(finding), ": unsafe:  []");
  EXPECT_STREQ(ZorPbCheck::name(static_cast<ZorPbSeverity>(-1)), "");
}

}  // namespace
}  // namespace zortest
