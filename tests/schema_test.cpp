// What the messages look like on the wire, and what a parse makes of it.
#include <google/protobuf/stubs/logging.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "onyx.pb.h"
#include "support/Wire.h"

namespace zortest {
namespace {

namespace coef = com::zor::coef;
namespace onyx = com::zor::onyx::fxp_std;
namespace peq = com::zor::peq;
namespace tech = com::zor::tech;
namespace vrm = com::zor::vrm;
using google::protobuf::MessageLite;

constexpr char kNoUuid[] = "00000000-0000-0000-0000-000000000000";

struct Kind {
  const MessageLite& prototype;
  const char* name;
  std::string required;  // the wire bytes of its required fields, and of nothing else
};

const std::vector<Kind>& kinds() {
  const auto sints = [](std::initializer_list<int> numbers) {
    Wire wire;
    for (const int number : numbers) wire.sint(number, number);
    return wire;
  };
  const auto identified = [](const Wire& rest) {
    return Wire().text(1, "id").bytes() + rest.bytes();
  };
  const std::string tone = sints({1, 2, 3}).fixed32(4, 0).varint(5, 2).bytes();
  const std::string room = Wire().text(1, "id").text(2, "name").bytes() +
                           Wire().varint(3, 1).varint(4, 1).varint(5, 1).bytes() +
                           Wire().varint(6, 1).varint(7, 1).varint(8, 1).bytes();
  static const std::vector<Kind> all = {
      {peq::BandData::default_instance(), "com.zor.peq.BandData", tone},
      {peq::ChannelBands::default_instance(), "com.zor.peq.ChannelBands", sints({1}).bytes()},
      {coef::Xeq::default_instance(), "com.zor.coef.Xeq", identified(sints({2}))},
      {coef::Hpf::default_instance(), "com.zor.coef.Hpf", identified(sints({2, 3, 4}))},
      {coef::Deep::default_instance(), "com.zor.coef.Deep", identified(sints({2, 3, 4}))},
      {coef::VantixXover::default_instance(), "com.zor.coef.VantixXover",
       identified(sints({2, 3, 4}))},
      {tech::Leveler::default_instance(), "com.zor.tech.Leveler", sints({1}).bytes()},
      {tech::Contour2::default_instance(), "com.zor.tech.Contour2", ""},
      {tech::Imm3d::default_instance(), "com.zor.tech.Imm3d", sints({1}).bytes()},
      {tech::Expanse::default_instance(), "com.zor.tech.Expanse", sints({1}).bytes()},
      {tech::Deep::default_instance(), "com.zor.tech.Deep", sints({1}).bytes()},
      {tech::Vantix::default_instance(), "com.zor.tech.Vantix", sints({10}).bytes()},
      {tech::Geq10b::default_instance(), "com.zor.tech.Geq10b",
       sints({1, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}).bytes()},
      {tech::Xeq::default_instance(), "com.zor.tech.Xeq", sints({1}).bytes()},
      {tech::Orb::default_instance(), "com.zor.tech.Orb", ""},
      {onyx::FaderInfo::default_instance(), "com.zor.onyx.fxp_std.FaderInfo", ""},
      {onyx::Premix::default_instance(), "com.zor.onyx.fxp_std.Premix", ""},
      {onyx::Postmix::default_instance(), "com.zor.onyx.fxp_std.Postmix", ""},
      {onyx::Onyx::default_instance(), "com.zor.onyx.fxp_std.Onyx", Wire().text(1, "v").bytes()},
      {vrm::roomModel::default_instance(), "com.zor.vrm.roomModel", room},
      {vrm::headphoneEq::default_instance(), "com.zor.vrm.headphoneEq",
       Wire().text(1, "id").text(2, "name").varint(3, 1).varint(4, 1).bytes()},
      {vrm::vrmCollection::default_instance(), "com.zor.vrm.vrmCollection",
       Wire().text(1, "v").bytes()},
  };
  return all;
}

// Fields that no message declares, of every wire type, nested groups included.
std::string unknownFields() {
  const std::string inner = Wire().sint(1, 1).group(2, Wire().sint(3, 3).bytes()).bytes();
  return Wire().varint(900, 1).fixed32(901, 2).fixed64(902, 3).text(903, "abc").bytes() +
         Wire().group(904, inner).bytes();
}

std::string written(const MessageLite& msg) { return msg.SerializePartialAsString(); }

TEST(Schema, TypeNames) {
  for (const Kind& kind : kinds()) EXPECT_EQ(kind.prototype.GetTypeName(), kind.name);
}

TEST(Schema, RequiredFieldsAndNoOthers) {
  google::protobuf::LogSilencer quiet;
  for (const Kind& kind : kinds()) {
    const std::unique_ptr<MessageLite> msg(kind.prototype.New());
    EXPECT_EQ(msg->ParseFromString(""), kind.required.empty()) << kind.name;
    EXPECT_TRUE(msg->ParseFromString(kind.required)) << kind.name;
    EXPECT_EQ(msg->SerializeAsString(), kind.required) << kind.name;

    // Without any one of them the message is not initialised, though a partial parse takes it.
    google::protobuf::io::CodedInputStream in(
        reinterpret_cast<const uint8_t*>(kind.required.data()),
        static_cast<int>(kind.required.size()));
    size_t end = 0;
    while (end < kind.required.size()) {
      const size_t start = end;
      const uint32_t tag = in.ReadTag();
      Wire::Format::SkipField(&in, tag);
      end = static_cast<size_t>(in.CurrentPosition());
      std::string rest = kind.required;
      rest.erase(start, end - start);
      EXPECT_FALSE(msg->ParseFromString(rest)) << kind.name << " without " << (tag >> 3);
      EXPECT_TRUE(msg->ParsePartialFromString(rest));
      EXPECT_FALSE(msg->IsInitialized());
    }
  }
}

TEST(Schema, UnknownFieldsAreDropped) {
  for (const Kind& kind : kinds()) {
    const std::unique_ptr<MessageLite> msg(kind.prototype.New());
    const std::string wire = unknownFields() + kind.required + unknownFields();
    EXPECT_TRUE(msg->ParseFromString(wire)) << kind.name;
    EXPECT_EQ(written(*msg), kind.required) << kind.name;
    EXPECT_EQ(msg->ByteSizeLong(), kind.required.size()) << kind.name;
  }
}

TEST(Schema, UnknownFieldsAreDroppedAtDepth) {
  const auto nested = [](const std::string& inner) {
    const std::string imm3d = Wire().sint(1, 1).bytes() + inner;
    const std::string vantix = Wire().text(1, imm3d).sint(10, 1).bytes() + inner;
    const std::string band = Wire().sint(1, 1).sint(2, 2).sint(3, 3).fixed32(4, 0).bytes();
    const std::string bands = Wire().sint(1, 0).text(2, band + inner).bytes() + inner;
    const std::string xeq = Wire().text(1, "id").sint(2, 2).text(3, bands).bytes() + inner;
    const std::string postmix = Wire().text(11, vantix).text(19, xeq).bytes() + inner;
    return Wire().text(1, "v").text(3, postmix).bytes() + inner;
  };
  onyx::Onyx msg;
  ASSERT_TRUE(msg.ParsePartialFromString(nested(unknownFields())));
  EXPECT_EQ(written(msg), nested(""));
}

// A number that is declared, with a wire type that is not its own, counts as unknown.
TEST(Schema, WrongWireTypeIsDropped) {
  tech::Imm3d msg;
  ASSERT_TRUE(msg.ParseFromString(Wire().fixed32(2, 7).text(3, "x").sint(1, 5).bytes()));
  EXPECT_EQ(written(msg), Wire().sint(1, 5).bytes());
}

TEST(Schema, MalformedInputFailsTheParse) {
  onyx::Onyx msg;
  const std::string whole = Wire().text(1, "v").text(3, Wire().sint(1, 1).bytes()).bytes();
  EXPECT_TRUE(msg.ParseFromString(whole));
  EXPECT_FALSE(msg.ParseFromString(whole.substr(0, whole.size() - 1)));
  EXPECT_FALSE(msg.ParseFromString(whole + "\xFF"));
}

TEST(Schema, EnumsTakeTheirOwnValuesOnly) {
  const auto negative = [](int value) {
    return static_cast<uint64_t>(static_cast<int64_t>(value));
  };
  for (int value = -3; value <= 4; ++value) {
    const bool isBand = value >= -1 && value <= 2;
    peq::BandData band;
    ASSERT_TRUE(band.ParsePartialFromString(Wire().varint(5, negative(value)).bytes()));
    EXPECT_EQ(peq::BandType_IsValid(value), isBand);
    EXPECT_EQ(band.has_type(), isBand) << value;
    EXPECT_EQ(int{band.type()}, isBand ? value : 0);
    EXPECT_EQ(written(band), isBand ? Wire().varint(5, negative(value)).bytes() : "") << value;

    const bool isRef = value == -1 || value == 0;
    vrm::roomModel room;
    vrm::headphoneEq headphone;
    ASSERT_TRUE(room.ParsePartialFromString(Wire().varint(9, negative(value)).bytes()));
    ASSERT_TRUE(headphone.ParsePartialFromString(Wire().varint(5, negative(value)).bytes()));
    EXPECT_EQ(vrm::extRefType_IsValid(value), isRef);
    EXPECT_EQ(room.has_ext_type(), isRef) << value;
    EXPECT_EQ(int{room.ext_type()}, isRef ? value : -1);
    EXPECT_EQ(written(room), isRef ? Wire().varint(9, negative(value)).bytes() : "") << value;
    EXPECT_EQ(headphone.has_ext_type(), isRef) << value;
    EXPECT_EQ(written(headphone), isRef ? Wire().varint(5, negative(value)).bytes() : "") << value;
  }
}

TEST(Schema, DeclaredDefaults) {
  EXPECT_EQ(onyx::Onyx().version(), "1.00.02");
  EXPECT_EQ(vrm::vrmCollection().version(), "0.0.0.0");
  EXPECT_EQ(coef::Hpf().uuid(), kNoUuid);
  EXPECT_EQ(coef::Deep().uuid(), kNoUuid);
  EXPECT_EQ(coef::VantixXover().uuid(), kNoUuid);
  EXPECT_EQ(coef::Hpf().sample_rate(), 48000);
  EXPECT_EQ(coef::Deep().sample_rate(), 48000);
  EXPECT_EQ(coef::VantixXover().sample_rate(), 48000);
  EXPECT_EQ(coef::Xeq().uuid(), "");
  EXPECT_EQ(coef::Xeq().sample_rate(), 0);
  EXPECT_EQ(peq::BandData().type(), peq::BAND_TYPE_ZERO);
  EXPECT_EQ(vrm::roomModel().ext_type(), vrm::EXT_REF_TYPE_NONE);
  for (const Kind& kind : kinds()) EXPECT_EQ(written(kind.prototype), "") << kind.name;
}

// Every kind of declaration, against the bytes that the format prescribes.
TEST(Schema, WireBytes) {
  const std::string nines(9, '\xFF');
  onyx::Onyx top;
  top.set_version("");
  top.set_route_flags(-1);
  EXPECT_EQ(written(top), std::string("\x0A\x00\x50", 3) + nines + "\x01");

  onyx::Postmix msg;
  msg.set_postmix_gain(-1);
  for (const int value : {1, -1}) {
    msg.add_orb_input_gain(value);
    msg.add_bypass_hpeq(value);
    msg.add_xeq_enable(value);
    msg.mutable_contour2()->add_htest(value);
    msg.mutable_contour2()->add_ref_htest(value);
    msg.mutable_orb()->add_super_stereo_coef(value);
    msg.mutable_deep_coef()->add_coeffs(value);
    msg.mutable_vantix_xover_coef()->add_lpf_coeffs(value);
    msg.mutable_vantix_xover_coef()->add_hpf_coeffs(value);
    msg.mutable_hpf_coef()->add_coeffs(value);
    msg.mutable_xeq_coef()->add_coeffs(value);
    msg.add_room_multi_ch(value);
    msg.add_room_stereo_front(value);
    msg.add_room_stereo_wide(value);
    msg.add_hpeq_coeffs(value);
  }
  const std::string packed("\x02\x02\x01");
  EXPECT_EQ(written(msg), "\x10\x01\x3A" + packed + "\x42" + packed + "\x4A" + packed +
                              "\x72\x08\x4A" + packed + "\x52" + packed +         // contour2
                              "\x7A\x04\x42" + packed +                           // orb
                              "\x82\x01\x04\x2A" + packed +                       // deep_coef
                              "\x8A\x01\x08\x2A" + packed + "\x32" + packed +     // crossover
                              "\x92\x01\x04\x2A" + packed +                       // hpf_coef
                              "\x9A\x01\x04\x22" + packed +                       // xeq_coef
                              "\xB0\x01\x02\xB0\x01\x01\xB8\x01\x02\xB8\x01\x01"  // room tables
                              "\xC0\x01\x02\xC0\x01\x01\xC8\x01\x02\xC8\x01\x01");

  coef::Xeq xeq;
  xeq.add_channel_bands()->add_band_data()->set_q(1);
  EXPECT_EQ(written(xeq), std::string("\x1A\x07\x12\x05\x25\x00\x00\x80\x3F", 9));
  vrm::roomModel room;
  room.set_channel_mask(~0U);
  room.set_reverb_gain(-1);
  room.add_coeff_table(-1);
  EXPECT_EQ(written(room), "\x28\xFF\xFF\xFF\xFF\x0F\x38" + nines + "\x01\x5A\x01\x01");
  vrm::headphoneEq headphone;
  headphone.add_coeff_table(-1);
  EXPECT_EQ(written(headphone), "\x3A\x01\x01");
}

// Each list parses in both encodings and is written in its own.
TEST(Schema, PackedAndUnpackedParseAlike) {
  onyx::Postmix one;
  onyx::Postmix each;
  const std::string two = Wire().sint(1, 5).sint(1, -6).bytes();
  const std::string elements{two[1], two[3]};
  for (const int number : {7, 8, 9, 22, 23, 24, 25}) {
    ASSERT_TRUE(one.MergeFromString(Wire().text(number, elements).bytes()));
    ASSERT_TRUE(each.MergeFromString(Wire().sint(number, 5).sint(number, -6).bytes()));
  }
  EXPECT_EQ(each.room_stereo_wide(1), -6);
  EXPECT_EQ(each.xeq_enable(0), 5);
  EXPECT_EQ(written(one), written(each));
}

// A table's values come one by one through the library's own reader, packed through the runtime's:
// in every length, padded, with bits past the 32nd, cut off at the end.
TEST(Schema, TablesReadValuesAsTheRuntimeDoes) {
  const std::string tag = Wire().varint(22, 0).bytes().substr(0, 2);
  for (const char body : {'\x80', '\xFF', '\xA5'}) {
    for (const char last : {'\x00', '\x01', '\x7F', '\x8F'}) {
      for (std::size_t length = 1; length <= 11; ++length) {
        const std::string value = std::string(length - 1, body) + last;
        onyx::Postmix each;
        onyx::Postmix packed;
        const bool taken = each.ParseFromString(tag + value);
        ASSERT_EQ(taken, packed.ParseFromString(Wire().text(22, value).bytes()));
        EXPECT_EQ(taken, last != '\x8F' && length <= 10);
        EXPECT_TRUE(!taken || written(each) == written(packed)) << length << " bytes " << int{body};
      }
    }
  }
}

// A full table gets its room in one piece, a short one no more than its bytes could need.
TEST(Schema, ParseMakesRoomForTheTables) {
  onyx::Postmix full;
  full.mutable_room_multi_ch()->Resize(8210, 1);
  full.mutable_hpeq_coeffs()->Resize(3, -1);
  onyx::Postmix parsed;
  ASSERT_TRUE(parsed.ParseFromString(written(full)));
  EXPECT_EQ(parsed.room_multi_ch().Capacity(), 8210);
  EXPECT_EQ(parsed.hpeq_coeffs_size(), 3);
  EXPECT_LE(parsed.hpeq_coeffs().Capacity(), 4);

  full.add_room_multi_ch(2);
  ASSERT_TRUE(parsed.ParseFromString(written(full)));
  EXPECT_EQ(written(parsed), written(full));
}

}  // namespace
}  // namespace zortest
