/// \file
/// The plain structs that the audio engine takes: its binary interface, valid as C and as C++.
///
/// Member order and widths are the engine's and must not change; ZorEngineLayout.cpp holds every
/// size and offset to account. All values are signed fixed-width integers in the machine's own byte
/// order. The structs carry no element counts: every array is full-length by definition. Units,
/// ranges and fixed-point formats are the engine's.
#pragma once

#include <stdint.h>

/// 3-D spatial enhancement controls.
struct _zorImm3dApiCtrl {
  int32_t enable;
  int32_t mode;
  int32_t hp_enable;
  int32_t hi_bit_rate;
  int16_t input_gain;
  int16_t output_gain;
  int16_t bypass_gain;
  int16_t space_level;
  int16_t center_level;
};

/// Wide-surround controls.
struct _zorExpanseApiCtrl {
  int32_t enable;
  int32_t hs_hpf_enable;
  int16_t input_gain;
  int16_t bypass_gain;
  int16_t center_boost_level;
  int16_t speaker_separation_level;
};

/// Bass enhancement controls.
struct _zorDeepApiCtrl {
  int32_t enable;
  int32_t mode;
  int32_t li_enable;
  int32_t sa_enable;
  int32_t speaker_size;
  int32_t analysis_size;
  int32_t output_option;
  int16_t input_gain;
  int16_t output_gain;
  int16_t bypass_gain;
  int16_t level;
  int16_t comp_level;
  int16_t ref_gain;
  int16_t bass_clarity_level;
};

/// Speaker virtualizer: the three technologies that it bundles, then its own controls.
struct _zorVantixApiCtrl {
  struct _zorImm3dApiCtrl imm3d;
  struct _zorExpanseApiCtrl expanse;
  struct _zorDeepApiCtrl deep;
  int32_t enable;
  int32_t enhance_mode;
  int32_t crossover_enable;
  int32_t hpf_enable;
  int32_t def_enable;
  int32_t focus_enable;
  int16_t input_gain;
  int16_t output_gain;
  int16_t bypass_gain;
  int16_t def_level;
  int16_t focus_level;
};

/// Parametric equalizer controls.
struct _zorXeqApiCtrl {
  int32_t enable;
  int16_t input_gain;
  int16_t output_gain;
  int16_t bypass_gain;
};

/// Loudness and speaker enhancement controls.
struct _zorContour2ApiCtrl {
  int32_t mode;
  int32_t mv_downstream;
  int32_t master_volume;
  int32_t target_spl;
  int32_t system_spl;
  int32_t system_calib_level;
  int32_t hi_freq_compensation;
  int32_t lo_freq_compensation;
  int32_t htest[7];
  int32_t ref_htest[7];
  int32_t content_dr;
  int32_t max_lf_boost;
};

/// Ten-band graphic equalizer controls, lowest band first.
struct _zorGeq10bApiCtrl {
  int32_t enable;
  int16_t input_gain;
  int16_t band0_gain;
  int16_t band1_gain;
  int16_t band2_gain;
  int16_t band3_gain;
  int16_t band4_gain;
  int16_t band5_gain;
  int16_t band6_gain;
  int16_t band7_gain;
  int16_t band8_gain;
  int16_t band9_gain;
};

/// Headphone virtualizer controls; every scalar is 32 bits wide, input_gain included.
struct _zorOrbApiCtrl {
  int32_t downmix;
  int32_t super_stereo;
  int32_t input_gain;
  int32_t bypass_reverb;
  int32_t bypass_conv;
  int32_t bypass_hpeq;
  int32_t super_stereo_coef[4];
};

/// Volume leveler controls.
struct _zorLevelerApiCtrl {
  int32_t enable;
  int32_t intensity_level;
  int32_t mode;
  int16_t input_gain;
  int16_t output_gain;
  int16_t lkfs_gain;
};

/// One half of the equalizer coefficients: 336 words.
struct _zorXeqApiCoeffBlock {
  int32_t head[2];
  int32_t table_a[74];
  int32_t table_b[260];
};

/// Equalizer coefficients: 672 words.
struct _zorXeqApiCoeff {
  struct _zorXeqApiCoeffBlock block[2];
};

/// High-pass coefficients. ZorPbCoefHpf::populateStruct does not stop at the end of coeffs.
struct _zorOnyxHpfApiCoeff {
  int32_t order;
  int32_t coeffs[20];
};

/// Bass enhancement coefficients.
struct _zorDeepApiCoeffEx {
  int32_t speaker_size;
  int32_t analysis_size;
  int32_t coeffs[24];
  const char* uuid;     ///< NUL-terminated textual UUID; borrowed, never owned by the struct
  int32_t sample_rate;  ///< Hz
};

/// Fader settings; the lengths stand in the order out, hold, in.
struct _zorOnyxFaderInfo {
  int32_t shadow;
  int32_t out_length;
  int32_t hold_length;
  int32_t in_length;
  int32_t state;
};

/// Everything the pre-mix stage takes.
struct _zorOnyxPremixApiCtrlEx {
  struct _zorLevelerApiCtrl leveler;
  struct _zorContour2ApiCtrl contour2;
  int32_t output_device;
  int32_t stream_gain;
  struct _zorOnyxFaderInfo fader_info;
};

/// Everything the post-mix stage takes. The per-channel lists have one entry a channel.
struct _zorOnyxPostmixApiCtrlCoeffsEx {
  int32_t output_device;
  int32_t postmix_gain;
  int32_t hpf_enable;
  int32_t limiter;
  int32_t orb_stereo_mode;
  int32_t orb_multi_ch;
  int32_t orb_input_gain[6];
  int32_t bypass_hpeq[6];
  int32_t xeq_enable[6];
  int32_t dc_cut_enable;
  struct _zorVantixApiCtrl vantix;
  struct _zorGeq10bApiCtrl geq10b;
  struct _zorXeqApiCtrl xeq;
  struct _zorContour2ApiCtrl contour2;
  struct _zorOrbApiCtrl orb;
  int32_t room_multi_ch[8210];
  int32_t room_stereo_front[3085];
  int32_t room_stereo_wide[3085];
  int32_t hpeq_coeffs[135];
  struct _zorOnyxHpfApiCoeff hpf_coef;
  struct _zorXeqApiCoeff xeq_coef;
  int32_t reserved[52];  ///< the engine's own: the library neither reads nor writes these words
  struct _zorOnyxFaderInfo fader_info;
};
