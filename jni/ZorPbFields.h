// What each wrapper converts: one list a class, one line a field, in the order of the struct. The
// conversions, the dumps and the proof that no member was forgotten all derive from these lists;
// adding a field is one line here. Private to the library and its tools.
#pragma once

#include <tuple>

#include "ZorEngineStructs.h"
#include "ZorPbFieldKinds.h"
#include "coefDeep.pb.h"
#include "coefHpf.pb.h"
#include "coefXeq.pb.h"
#include "onyx.pb.h"
#include "techContour2.pb.h"
#include "techGeq10b.pb.h"
#include "techLeveler.pb.h"
#include "techOrb.pb.h"
#include "techVantix.pb.h"
#include "techXeq.pb.h"

// Inside a list, Message and Struct name its two sides and visit is what each field is handed to.
// The lists are the only place where a field's name, accessors and member come from one mention.
#define ZOR_FIELD(Kind, field) \
  visit(Kind<&Message::field, &Message::set_##field, &Struct::field>{#field})
#define ZOR_LIST_OF(Kind, field, member) \
  visit(Kind<Message, &Message::field, &Message::mutable_##field, &Struct::member>{#field})

#define ZOR_SCALAR(field) ZOR_FIELD(Scalar, field)
#define ZOR_UNLOADED_SCALAR(field) ZOR_FIELD(UnloadedScalar, field)
#define ZOR_LIST(field) ZOR_LIST_OF(List, field, field)
#define ZOR_FULL_LIST(field) ZOR_LIST_OF(FullList, field, field)
#define ZOR_OPEN_LIST(field) ZOR_LIST_OF(OpenList, field, field)
#define ZOR_OPEN_LIST_AT(field, member) ZOR_LIST_OF(OpenList, field, member)
#define ZOR_UNBOUNDED_LIST(field) ZOR_LIST_OF(UnboundedList, field, field)
#define ZOR_BORROWED_STRING(field) \
  visit(BorrowedString<&Message::field, &Message::mutable_##field, &Struct::field>{#field})
#define ZOR_NESTED(field) visit(Nested<&Message::field, &Struct::field>{#field})
#define ZOR_NESTED_TO_MESSAGE(field) visit(NestedToMessage<&Message::field, &Struct::field>{#field})
#define ZOR_RESERVED(member) visit(Reserved<&Struct::member>{#member})

namespace zorpb {

// True when the list names every member of its struct: the bytes that it names, rounded up to the
// struct's alignment, are the struct's size.
template <class Fields>
constexpr bool namesEveryMember() {
  using Struct = typename Fields::Struct;
  std::size_t bytes = 0;
  Fields::each([&bytes](auto field) { bytes += sizeof(typename decltype(field)::Member); });
  return (bytes + alignof(Struct) - 1) / alignof(Struct) * alignof(Struct) == sizeof(Struct);
}

struct TechImm3dFields {
  using Message = com::zor::tech::Imm3d;
  using Struct = _zorImm3dApiCtrl;

  template <class Visitor>
  static constexpr void each(Visitor&& visit) {
    ZOR_SCALAR(enable);
    ZOR_SCALAR(mode);
    ZOR_SCALAR(hp_enable);
    ZOR_SCALAR(hi_bit_rate);
    ZOR_SCALAR(input_gain);
    ZOR_SCALAR(output_gain);
    ZOR_SCALAR(bypass_gain);
    ZOR_SCALAR(space_level);
    ZOR_SCALAR(center_level);
  }
};
static_assert(namesEveryMember<TechImm3dFields>());

struct TechExpanseFields {
  using Message = com::zor::tech::Expanse;
  using Struct = _zorExpanseApiCtrl;

  template <class Visitor>
  static constexpr void each(Visitor&& visit) {
    ZOR_SCALAR(enable);
    ZOR_SCALAR(hs_hpf_enable);
    ZOR_SCALAR(input_gain);
    ZOR_SCALAR(bypass_gain);
    ZOR_SCALAR(center_boost_level);
    ZOR_SCALAR(speaker_separation_level);
  }
};
static_assert(namesEveryMember<TechExpanseFields>());

struct TechDeepFields {
  using Message = com::zor::tech::Deep;
  using Struct = _zorDeepApiCtrl;

  template <class Visitor>
  static constexpr void each(Visitor&& visit) {
    ZOR_SCALAR(enable);
    ZOR_SCALAR(mode);
    ZOR_SCALAR(li_enable);
    ZOR_SCALAR(sa_enable);
    ZOR_SCALAR(speaker_size);
    ZOR_SCALAR(analysis_size);
    ZOR_SCALAR(output_option);
    ZOR_SCALAR(input_gain);
    ZOR_SCALAR(output_gain);
    ZOR_SCALAR(bypass_gain);
    ZOR_SCALAR(level);
    ZOR_SCALAR(comp_level);
    ZOR_SCALAR(ref_gain);
    ZOR_SCALAR(bass_clarity_level);
  }
};
static_assert(namesEveryMember<TechDeepFields>());

struct TechVantixFields {
  using Message = com::zor::tech::Vantix;
  using Struct = _zorVantixApiCtrl;

  template <class Visitor>
  static constexpr void controls(Visitor&& visit) {
    ZOR_SCALAR(enable);
    ZOR_SCALAR(enhance_mode);
    ZOR_SCALAR(crossover_enable);
    ZOR_SCALAR(hpf_enable);
    ZOR_SCALAR(def_enable);
    ZOR_SCALAR(focus_enable);
    ZOR_SCALAR(input_gain);
    ZOR_SCALAR(output_gain);
    ZOR_SCALAR(bypass_gain);
    ZOR_SCALAR(def_level);
    ZOR_SCALAR(focus_level);
  }

  template <class Visitor>
  static constexpr void each(Visitor&& visit) {
    ZOR_NESTED(imm3d);
    ZOR_NESTED(expanse);
    ZOR_NESTED(deep);
    controls(visit);
  }
};
static_assert(namesEveryMember<TechVantixFields>());

struct TechXeqFields {
  using Message = com::zor::tech::Xeq;
  using Struct = _zorXeqApiCtrl;

  template <class Visitor>
  static constexpr void each(Visitor&& visit) {
    ZOR_SCALAR(enable);
    ZOR_SCALAR(input_gain);
    ZOR_SCALAR(output_gain);
    ZOR_SCALAR(bypass_gain);
  }
};
static_assert(namesEveryMember<TechXeqFields>());

struct TechContour2Fields {
  using Message = com::zor::tech::Contour2;
  using Struct = _zorContour2ApiCtrl;

  template <class Visitor>
  static constexpr void each(Visitor&& visit) {
    ZOR_SCALAR(mode);
    ZOR_SCALAR(mv_downstream);
    ZOR_SCALAR(master_volume);
    ZOR_SCALAR(target_spl);
    ZOR_SCALAR(system_spl);
    ZOR_SCALAR(system_calib_level);
    ZOR_SCALAR(hi_freq_compensation);
    ZOR_SCALAR(lo_freq_compensation);
    ZOR_FULL_LIST(htest);
    ZOR_FULL_LIST(ref_htest);
    ZOR_SCALAR(content_dr);
    ZOR_SCALAR(max_lf_boost);
  }
};
static_assert(namesEveryMember<TechContour2Fields>());

struct TechGeq10bFields {
  using Message = com::zor::tech::Geq10b;
  using Struct = _zorGeq10bApiCtrl;

  template <class Visitor>
  static constexpr void each(Visitor&& visit) {
    ZOR_SCALAR(enable);
    ZOR_SCALAR(input_gain);
    ZOR_SCALAR(band0_gain);
    ZOR_SCALAR(band1_gain);
    ZOR_SCALAR(band2_gain);
    ZOR_SCALAR(band3_gain);
    ZOR_SCALAR(band4_gain);
    ZOR_SCALAR(band5_gain);
    ZOR_SCALAR(band6_gain);
    ZOR_SCALAR(band7_gain);
    ZOR_SCALAR(band8_gain);
    ZOR_SCALAR(band9_gain);
  }
};
static_assert(namesEveryMember<TechGeq10bFields>());

struct TechOrbFields {
  using Message = com::zor::tech::Orb;
  using Struct = _zorOrbApiCtrl;

  template <class Visitor>
  static constexpr void each(Visitor&& visit) {
    ZOR_SCALAR(downmix);
    ZOR_SCALAR(super_stereo);
    ZOR_SCALAR(input_gain);
    ZOR_SCALAR(bypass_reverb);
    ZOR_SCALAR(bypass_conv);
    ZOR_SCALAR(bypass_hpeq);
    ZOR_OPEN_LIST(super_stereo_coef);
  }
};
static_assert(namesEveryMember<TechOrbFields>());

struct TechLevelerFields {
  using Message = com::zor::tech::Leveler;
  using Struct = _zorLevelerApiCtrl;

  template <class Visitor>
  static constexpr void each(Visitor&& visit) {
    ZOR_SCALAR(enable);
    ZOR_SCALAR(intensity_level);
    ZOR_SCALAR(mode);
    ZOR_SCALAR(input_gain);
    ZOR_SCALAR(output_gain);
    ZOR_SCALAR(lkfs_gain);
  }
};
static_assert(namesEveryMember<TechLevelerFields>());

struct CoefXeqFields {
  using Message = com::zor::coef::Xeq;
  using Struct = _zorXeqApiCoeff;

  template <class Visitor>
  static constexpr void each(Visitor&& visit) {
    ZOR_OPEN_LIST_AT(coeffs, block);
  }
};
static_assert(namesEveryMember<CoefXeqFields>());

struct CoefHpfFields {
  using Message = com::zor::coef::Hpf;
  using Struct = _zorOnyxHpfApiCoeff;

  template <class Visitor>
  static constexpr void each(Visitor&& visit) {
    ZOR_UNLOADED_SCALAR(order);
    ZOR_UNBOUNDED_LIST(coeffs);
  }
};
static_assert(namesEveryMember<CoefHpfFields>());

struct CoefDeepFields {
  using Message = com::zor::coef::Deep;
  using Struct = _zorDeepApiCoeffEx;

  template <class Visitor>
  static constexpr void each(Visitor&& visit) {
    ZOR_SCALAR(speaker_size);
    ZOR_SCALAR(analysis_size);
    ZOR_OPEN_LIST(coeffs);
    ZOR_BORROWED_STRING(uuid);
    ZOR_SCALAR(sample_rate);
  }
};
static_assert(namesEveryMember<CoefDeepFields>());

struct FaderInfoFields {
  using Message = com::zor::onyx::fxp_std::FaderInfo;
  using Struct = _zorOnyxFaderInfo;

  template <class Visitor>
  static constexpr void each(Visitor&& visit) {
    ZOR_SCALAR(shadow);
    ZOR_SCALAR(out_length);
    ZOR_SCALAR(hold_length);
    ZOR_SCALAR(in_length);
    ZOR_SCALAR(state);
  }
};
static_assert(namesEveryMember<FaderInfoFields>());

struct PremixFields {
  using Message = com::zor::onyx::fxp_std::Premix;
  using Struct = _zorOnyxPremixApiCtrlEx;

  template <class Visitor>
  static constexpr void controls(Visitor&& visit) {
    ZOR_SCALAR(output_device);
    ZOR_SCALAR(stream_gain);
  }

  template <class Visitor>
  static constexpr void each(Visitor&& visit) {
    ZOR_NESTED(leveler);
    ZOR_NESTED(contour2);
    controls(visit);
    ZOR_NESTED(fader_info);
  }
};
static_assert(namesEveryMember<PremixFields>());

struct PostmixFields {
  using Message = com::zor::onyx::fxp_std::Postmix;
  using Struct = _zorOnyxPostmixApiCtrlCoeffsEx;

  template <class Visitor>
  static constexpr void controls(Visitor&& visit) {
    ZOR_SCALAR(output_device);
    ZOR_SCALAR(postmix_gain);
    ZOR_SCALAR(hpf_enable);
    ZOR_SCALAR(limiter);
    ZOR_SCALAR(orb_stereo_mode);
    ZOR_SCALAR(orb_multi_ch);
    ZOR_LIST(orb_input_gain);
    ZOR_LIST(bypass_hpeq);
    ZOR_LIST(xeq_enable);
    ZOR_SCALAR(dc_cut_enable);
  }

  template <class Visitor>
  static constexpr void tables(Visitor&& visit) {
    ZOR_LIST(room_multi_ch);
    ZOR_LIST(room_stereo_front);
    ZOR_LIST(room_stereo_wide);
    ZOR_LIST(hpeq_coeffs);
  }

  template <class Visitor>
  static constexpr void each(Visitor&& visit) {
    controls(visit);
    ZOR_NESTED(vantix);
    ZOR_NESTED(geq10b);
    ZOR_NESTED(xeq);
    ZOR_NESTED(contour2);
    ZOR_NESTED(orb);
    tables(visit);
    ZOR_NESTED(hpf_coef);
    ZOR_NESTED(xeq_coef);
    ZOR_RESERVED(reserved);
    ZOR_NESTED_TO_MESSAGE(fader_info);
  }
};
static_assert(namesEveryMember<PostmixFields>());

using AllFields = std::tuple<TechImm3dFields, TechExpanseFields, TechDeepFields, TechVantixFields,
                             TechXeqFields, TechContour2Fields, TechGeq10bFields, TechOrbFields,
                             TechLevelerFields, CoefXeqFields, CoefHpfFields, CoefDeepFields,
                             FaderInfoFields, PremixFields, PostmixFields>;

}  // namespace zorpb

#undef ZOR_RESERVED
#undef ZOR_NESTED_TO_MESSAGE
#undef ZOR_NESTED
#undef ZOR_BORROWED_STRING
#undef ZOR_UNBOUNDED_LIST
#undef ZOR_OPEN_LIST_AT
#undef ZOR_OPEN_LIST
#undef ZOR_FULL_LIST
#undef ZOR_LIST
#undef ZOR_UNLOADED_SCALAR
#undef ZOR_SCALAR
#undef ZOR_LIST_OF
#undef ZOR_FIELD
