// The fields that travel between messages and engine structs, by number and name, as someone writes
// them out who has no library: stated apart from the library's own lists, for the code that is
// measured beside it. Each list hands its fields, in the order of their numbers, to the macros that
// it is given: one for required scalars, one for optional ones and one for lists.
#pragma once

#define BENCH_IMM3D(REQUIRED, OPTIONAL, LIST) \
  REQUIRED(1, enable)                         \
  OPTIONAL(2, mode)                           \
  OPTIONAL(3, hp_enable)                      \
  OPTIONAL(4, hi_bit_rate)                    \
  OPTIONAL(5, input_gain)                     \
  OPTIONAL(6, output_gain)                    \
  OPTIONAL(7, bypass_gain)                    \
  OPTIONAL(8, space_level)                    \
  OPTIONAL(9, center_level)

#define BENCH_EXPANSE(REQUIRED, OPTIONAL, LIST) \
  REQUIRED(1, enable)                           \
  OPTIONAL(2, hs_hpf_enable)                    \
  OPTIONAL(3, input_gain)                       \
  OPTIONAL(4, bypass_gain)                      \
  OPTIONAL(5, center_boost_level)               \
  OPTIONAL(6, speaker_separation_level)

#define BENCH_DEEP(REQUIRED, OPTIONAL, LIST) \
  REQUIRED(1, enable)                        \
  OPTIONAL(2, mode)                          \
  OPTIONAL(3, li_enable)                     \
  OPTIONAL(4, sa_enable)                     \
  OPTIONAL(5, speaker_size)                  \
  OPTIONAL(6, analysis_size)                 \
  OPTIONAL(7, output_option)                 \
  OPTIONAL(8, input_gain)                    \
  OPTIONAL(9, output_gain)                   \
  OPTIONAL(10, bypass_gain)                  \
  OPTIONAL(11, level)                        \
  OPTIONAL(12, comp_level)                   \
  OPTIONAL(13, ref_gain)                     \
  OPTIONAL(14, bass_clarity_level)

#define BENCH_VANTIX(REQUIRED, OPTIONAL, LIST) \
  REQUIRED(10, enable)                         \
  OPTIONAL(11, enhance_mode)                   \
  OPTIONAL(12, crossover_enable)               \
  OPTIONAL(13, hpf_enable)                     \
  OPTIONAL(14, def_enable)                     \
  OPTIONAL(15, focus_enable)                   \
  OPTIONAL(16, input_gain)                     \
  OPTIONAL(17, output_gain)                    \
  OPTIONAL(18, bypass_gain)                    \
  OPTIONAL(19, def_level)                      \
  OPTIONAL(20, focus_level)

#define BENCH_XEQ(REQUIRED, OPTIONAL, LIST) \
  REQUIRED(1, enable)                       \
  OPTIONAL(2, input_gain)                   \
  OPTIONAL(3, output_gain)                  \
  OPTIONAL(4, bypass_gain)

#define BENCH_CONTOUR2(REQUIRED, OPTIONAL, LIST) \
  OPTIONAL(1, mode)                              \
  OPTIONAL(2, mv_downstream)                     \
  OPTIONAL(3, master_volume)                     \
  OPTIONAL(4, target_spl)                        \
  OPTIONAL(5, system_spl)                        \
  OPTIONAL(6, system_calib_level)                \
  OPTIONAL(7, hi_freq_compensation)              \
  OPTIONAL(8, lo_freq_compensation)              \
  LIST(9, htest)                                 \
  LIST(10, ref_htest)                            \
  OPTIONAL(11, content_dr)                       \
  OPTIONAL(12, max_lf_boost)

#define BENCH_GEQ10B(REQUIRED, OPTIONAL, LIST) \
  REQUIRED(1, enable)                          \
  OPTIONAL(2, input_gain)                      \
  REQUIRED(3, band0_gain)                      \
  REQUIRED(4, band1_gain)                      \
  REQUIRED(5, band2_gain)                      \
  REQUIRED(6, band3_gain)                      \
  REQUIRED(7, band4_gain)                      \
  REQUIRED(8, band5_gain)                      \
  REQUIRED(9, band6_gain)                      \
  REQUIRED(10, band7_gain)                     \
  REQUIRED(11, band8_gain)                     \
  REQUIRED(12, band9_gain)

#define BENCH_ORB(REQUIRED, OPTIONAL, LIST) \
  OPTIONAL(1, downmix)                      \
  OPTIONAL(2, super_stereo)                 \
  OPTIONAL(3, input_gain)                   \
  OPTIONAL(4, bypass_reverb)                \
  OPTIONAL(5, bypass_conv)                  \
  OPTIONAL(6, bypass_hpeq)                  \
  LIST(8, super_stereo_coef)

#define BENCH_LEVELER(REQUIRED, OPTIONAL, LIST) \
  REQUIRED(1, enable)                           \
  OPTIONAL(2, intensity_level)                  \
  OPTIONAL(3, mode)                             \
  OPTIONAL(4, input_gain)                       \
  OPTIONAL(5, output_gain)                      \
  OPTIONAL(6, lkfs_gain)

#define BENCH_FADER_INFO(REQUIRED, OPTIONAL, LIST) \
  OPTIONAL(1, shadow)                              \
  OPTIONAL(2, out_length)                          \
  OPTIONAL(3, hold_length)                         \
  OPTIONAL(4, in_length)                           \
  OPTIONAL(5, state)

#define BENCH_POSTMIX_CONTROLS(REQUIRED, OPTIONAL, LIST) \
  OPTIONAL(1, output_device)                             \
  OPTIONAL(2, postmix_gain)                              \
  OPTIONAL(3, hpf_enable)                                \
  OPTIONAL(4, limiter)                                   \
  OPTIONAL(5, orb_stereo_mode)                           \
  OPTIONAL(6, orb_multi_ch)                              \
  LIST(7, orb_input_gain)                                \
  LIST(8, bypass_hpeq)                                   \
  LIST(9, xeq_enable)                                    \
  OPTIONAL(10, dc_cut_enable)

// Alone among the lists these are not packed.
#define BENCH_POSTMIX_TABLES(LIST) \
  LIST(22, room_multi_ch)          \
  LIST(23, room_stereo_front)      \
  LIST(24, room_stereo_wide)       \
  LIST(25, hpeq_coeffs)

// Nothing, for a kind of field that a message does not have.
#define BENCH_NOTHING(number, field)
