// Holds the engine structs to the layout that the engine was compiled with: every size and every
// member's offset and width, in bytes. Nothing here reaches the library's code.
#include <cstddef>

#include "ZorEngineStructs.h"

namespace {

constexpr std::size_t kPointer = sizeof(void*);
static_assert(kPointer == 4 || kPointer == 8, "the layout is known for these pointers only");

#define ZOR_AT(Struct, member, offset, bytes)                                         \
  static_assert(offsetof(Struct, member) == (offset), #Struct "::" #member " moved"); \
  static_assert(sizeof(Struct::member) == (bytes), #Struct "::" #member " changed width")
#define ZOR_SIZE(Struct, bytes) static_assert(sizeof(Struct) == (bytes), #Struct " changed size")

ZOR_AT(_zorImm3dApiCtrl, enable, 0, 4);
ZOR_AT(_zorImm3dApiCtrl, mode, 4, 4);
ZOR_AT(_zorImm3dApiCtrl, hp_enable, 8, 4);
ZOR_AT(_zorImm3dApiCtrl, hi_bit_rate, 12, 4);
ZOR_AT(_zorImm3dApiCtrl, input_gain, 16, 2);
ZOR_AT(_zorImm3dApiCtrl, output_gain, 18, 2);
ZOR_AT(_zorImm3dApiCtrl, bypass_gain, 20, 2);
ZOR_AT(_zorImm3dApiCtrl, space_level, 22, 2);
ZOR_AT(_zorImm3dApiCtrl, center_level, 24, 2);
ZOR_SIZE(_zorImm3dApiCtrl, 28);

ZOR_AT(_zorExpanseApiCtrl, enable, 0, 4);
ZOR_AT(_zorExpanseApiCtrl, hs_hpf_enable, 4, 4);
ZOR_AT(_zorExpanseApiCtrl, input_gain, 8, 2);
ZOR_AT(_zorExpanseApiCtrl, bypass_gain, 10, 2);
ZOR_AT(_zorExpanseApiCtrl, center_boost_level, 12, 2);
ZOR_AT(_zorExpanseApiCtrl, speaker_separation_level, 14, 2);
ZOR_SIZE(_zorExpanseApiCtrl, 16);

ZOR_AT(_zorDeepApiCtrl, enable, 0, 4);
ZOR_AT(_zorDeepApiCtrl, mode, 4, 4);
ZOR_AT(_zorDeepApiCtrl, li_enable, 8, 4);
ZOR_AT(_zorDeepApiCtrl, sa_enable, 12, 4);
ZOR_AT(_zorDeepApiCtrl, speaker_size, 16, 4);
ZOR_AT(_zorDeepApiCtrl, analysis_size, 20, 4);
ZOR_AT(_zorDeepApiCtrl, output_option, 24, 4);
ZOR_AT(_zorDeepApiCtrl, input_gain, 28, 2);
ZOR_AT(_zorDeepApiCtrl, output_gain, 30, 2);
ZOR_AT(_zorDeepApiCtrl, bypass_gain, 32, 2);
ZOR_AT(_zorDeepApiCtrl, level, 34, 2);
ZOR_AT(_zorDeepApiCtrl, comp_level, 36, 2);
ZOR_AT(_zorDeepApiCtrl, ref_gain, 38, 2);
ZOR_AT(_zorDeepApiCtrl, bass_clarity_level, 40, 2);
ZOR_SIZE(_zorDeepApiCtrl, 44);

ZOR_AT(_zorVantixApiCtrl, imm3d, 0, 28);
ZOR_AT(_zorVantixApiCtrl, expanse, 28, 16);
ZOR_AT(_zorVantixApiCtrl, deep, 44, 44);
ZOR_AT(_zorVantixApiCtrl, enable, 88, 4);
ZOR_AT(_zorVantixApiCtrl, enhance_mode, 92, 4);
ZOR_AT(_zorVantixApiCtrl, crossover_enable, 96, 4);
ZOR_AT(_zorVantixApiCtrl, hpf_enable, 100, 4);
ZOR_AT(_zorVantixApiCtrl, def_enable, 104, 4);
ZOR_AT(_zorVantixApiCtrl, focus_enable, 108, 4);
ZOR_AT(_zorVantixApiCtrl, input_gain, 112, 2);
ZOR_AT(_zorVantixApiCtrl, output_gain, 114, 2);
ZOR_AT(_zorVantixApiCtrl, bypass_gain, 116, 2);
ZOR_AT(_zorVantixApiCtrl, def_level, 118, 2);
ZOR_AT(_zorVantixApiCtrl, focus_level, 120, 2);
ZOR_SIZE(_zorVantixApiCtrl, 124);

ZOR_AT(_zorXeqApiCtrl, enable, 0, 4);
ZOR_AT(_zorXeqApiCtrl, input_gain, 4, 2);
ZOR_AT(_zorXeqApiCtrl, output_gain, 6, 2);
ZOR_AT(_zorXeqApiCtrl, bypass_gain, 8, 2);
ZOR_SIZE(_zorXeqApiCtrl, 12);

ZOR_AT(_zorContour2ApiCtrl, mode, 0, 4);
ZOR_AT(_zorContour2ApiCtrl, mv_downstream, 4, 4);
ZOR_AT(_zorContour2ApiCtrl, master_volume, 8, 4);
ZOR_AT(_zorContour2ApiCtrl, target_spl, 12, 4);
ZOR_AT(_zorContour2ApiCtrl, system_spl, 16, 4);
ZOR_AT(_zorContour2ApiCtrl, system_calib_level, 20, 4);
ZOR_AT(_zorContour2ApiCtrl, hi_freq_compensation, 24, 4);
ZOR_AT(_zorContour2ApiCtrl, lo_freq_compensation, 28, 4);
ZOR_AT(_zorContour2ApiCtrl, htest, 32, 28);
ZOR_AT(_zorContour2ApiCtrl, ref_htest, 60, 28);
ZOR_AT(_zorContour2ApiCtrl, content_dr, 88, 4);
ZOR_AT(_zorContour2ApiCtrl, max_lf_boost, 92, 4);
ZOR_SIZE(_zorContour2ApiCtrl, 96);

ZOR_AT(_zorGeq10bApiCtrl, enable, 0, 4);
ZOR_AT(_zorGeq10bApiCtrl, input_gain, 4, 2);
ZOR_AT(_zorGeq10bApiCtrl, band0_gain, 6, 2);
ZOR_AT(_zorGeq10bApiCtrl, band1_gain, 8, 2);
ZOR_AT(_zorGeq10bApiCtrl, band2_gain, 10, 2);
ZOR_AT(_zorGeq10bApiCtrl, band3_gain, 12, 2);
ZOR_AT(_zorGeq10bApiCtrl, band4_gain, 14, 2);
ZOR_AT(_zorGeq10bApiCtrl, band5_gain, 16, 2);
ZOR_AT(_zorGeq10bApiCtrl, band6_gain, 18, 2);
ZOR_AT(_zorGeq10bApiCtrl, band7_gain, 20, 2);
ZOR_AT(_zorGeq10bApiCtrl, band8_gain, 22, 2);
ZOR_AT(_zorGeq10bApiCtrl, band9_gain, 24, 2);
ZOR_SIZE(_zorGeq10bApiCtrl, 28);

ZOR_AT(_zorOrbApiCtrl, downmix, 0, 4);
ZOR_AT(_zorOrbApiCtrl, super_stereo, 4, 4);
ZOR_AT(_zorOrbApiCtrl, input_gain, 8, 4);
ZOR_AT(_zorOrbApiCtrl, bypass_reverb, 12, 4);
ZOR_AT(_zorOrbApiCtrl, bypass_conv, 16, 4);
ZOR_AT(_zorOrbApiCtrl, bypass_hpeq, 20, 4);
ZOR_AT(_zorOrbApiCtrl, super_stereo_coef, 24, 16);
ZOR_SIZE(_zorOrbApiCtrl, 40);

ZOR_AT(_zorLevelerApiCtrl, enable, 0, 4);
ZOR_AT(_zorLevelerApiCtrl, intensity_level, 4, 4);
ZOR_AT(_zorLevelerApiCtrl, mode, 8, 4);
ZOR_AT(_zorLevelerApiCtrl, input_gain, 12, 2);
ZOR_AT(_zorLevelerApiCtrl, output_gain, 14, 2);
ZOR_AT(_zorLevelerApiCtrl, lkfs_gain, 16, 2);
ZOR_SIZE(_zorLevelerApiCtrl, 20);

ZOR_AT(_zorXeqApiCoeffBlock, head, 0, 8);
ZOR_AT(_zorXeqApiCoeffBlock, table_a, 8, 296);
ZOR_AT(_zorXeqApiCoeffBlock, table_b, 304, 1040);
ZOR_SIZE(_zorXeqApiCoeffBlock, 1344);
ZOR_AT(_zorXeqApiCoeff, block, 0, 2688);
ZOR_SIZE(_zorXeqApiCoeff, 2688);

ZOR_AT(_zorOnyxHpfApiCoeff, order, 0, 4);
ZOR_AT(_zorOnyxHpfApiCoeff, coeffs, 4, 80);
ZOR_SIZE(_zorOnyxHpfApiCoeff, 84);

ZOR_AT(_zorDeepApiCoeffEx, speaker_size, 0, 4);
ZOR_AT(_zorDeepApiCoeffEx, analysis_size, 4, 4);
ZOR_AT(_zorDeepApiCoeffEx, coeffs, 8, 96);
ZOR_AT(_zorDeepApiCoeffEx, uuid, 104, kPointer);
ZOR_AT(_zorDeepApiCoeffEx, sample_rate, 104 + kPointer, 4);
ZOR_SIZE(_zorDeepApiCoeffEx, 104 + 2 * kPointer);

ZOR_AT(_zorOnyxFaderInfo, shadow, 0, 4);
ZOR_AT(_zorOnyxFaderInfo, out_length, 4, 4);
ZOR_AT(_zorOnyxFaderInfo, hold_length, 8, 4);
ZOR_AT(_zorOnyxFaderInfo, in_length, 12, 4);
ZOR_AT(_zorOnyxFaderInfo, state, 16, 4);
ZOR_SIZE(_zorOnyxFaderInfo, 20);

ZOR_AT(_zorOnyxPremixApiCtrlEx, leveler, 0, 20);
ZOR_AT(_zorOnyxPremixApiCtrlEx, contour2, 20, 96);
ZOR_AT(_zorOnyxPremixApiCtrlEx, output_device, 116, 4);
ZOR_AT(_zorOnyxPremixApiCtrlEx, stream_gain, 120, 4);
ZOR_AT(_zorOnyxPremixApiCtrlEx, fader_info, 124, 20);
ZOR_SIZE(_zorOnyxPremixApiCtrlEx, 144);

ZOR_AT(_zorOnyxPostmixApiCtrlCoeffsEx, output_device, 0, 4);
ZOR_AT(_zorOnyxPostmixApiCtrlCoeffsEx, postmix_gain, 4, 4);
ZOR_AT(_zorOnyxPostmixApiCtrlCoeffsEx, hpf_enable, 8, 4);
ZOR_AT(_zorOnyxPostmixApiCtrlCoeffsEx, limiter, 12, 4);
ZOR_AT(_zorOnyxPostmixApiCtrlCoeffsEx, orb_stereo_mode, 16, 4);
ZOR_AT(_zorOnyxPostmixApiCtrlCoeffsEx, orb_multi_ch, 20, 4);
ZOR_AT(_zorOnyxPostmixApiCtrlCoeffsEx, orb_input_gain, 24, 24);
ZOR_AT(_zorOnyxPostmixApiCtrlCoeffsEx, bypass_hpeq, 48, 24);
ZOR_AT(_zorOnyxPostmixApiCtrlCoeffsEx, xeq_enable, 72, 24);
ZOR_AT(_zorOnyxPostmixApiCtrlCoeffsEx, dc_cut_enable, 96, 4);
ZOR_AT(_zorOnyxPostmixApiCtrlCoeffsEx, vantix, 100, 124);
ZOR_AT(_zorOnyxPostmixApiCtrlCoeffsEx, geq10b, 224, 28);
ZOR_AT(_zorOnyxPostmixApiCtrlCoeffsEx, xeq, 252, 12);
ZOR_AT(_zorOnyxPostmixApiCtrlCoeffsEx, contour2, 264, 96);
ZOR_AT(_zorOnyxPostmixApiCtrlCoeffsEx, orb, 360, 40);
ZOR_AT(_zorOnyxPostmixApiCtrlCoeffsEx, room_multi_ch, 400, 32840);
ZOR_AT(_zorOnyxPostmixApiCtrlCoeffsEx, room_stereo_front, 33240, 12340);
ZOR_AT(_zorOnyxPostmixApiCtrlCoeffsEx, room_stereo_wide, 45580, 12340);
ZOR_AT(_zorOnyxPostmixApiCtrlCoeffsEx, hpeq_coeffs, 57920, 540);
ZOR_AT(_zorOnyxPostmixApiCtrlCoeffsEx, hpf_coef, 58460, 84);
ZOR_AT(_zorOnyxPostmixApiCtrlCoeffsEx, xeq_coef, 58544, 2688);
ZOR_AT(_zorOnyxPostmixApiCtrlCoeffsEx, reserved, 61232, 208);
ZOR_AT(_zorOnyxPostmixApiCtrlCoeffsEx, fader_info, 61440, 20);
ZOR_SIZE(_zorOnyxPostmixApiCtrlCoeffsEx, 61460);

#undef ZOR_SIZE
#undef ZOR_AT

}  // namespace
