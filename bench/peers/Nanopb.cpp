#include <pb_decode.h>
#include <pb_encode.h>

#include "Peers.h"
#include "onyx.nanopb.h"

#define PEER_COUNT(message, list) (message).list##_count
#define PEER_SET_LIST(number, list)                               \
  to.list##_count = static_cast<pb_size_t>(std::size(from.list)); \
  std::copy_n(from.list, std::size(from.list), to.list);

#include <iterator>

#include "CopyByHand.h"

namespace zorbench {
namespace {

// Where lists are static arrays a message is too large for a stack.
com_zor_onyx_fxp_std_Postmix message;

bool toStruct(const std::string& bytes, Engine& to) {
  pb_istream_t stream =
      pb_istream_from_buffer(reinterpret_cast<const pb_byte_t*>(bytes.data()), bytes.size());
  if (!pb_decode(&stream, com_zor_onyx_fxp_std_Postmix_fields, &message)) return false;
  takePostmix(message, to);
  if (message.has_vantix) {
    if (message.vantix.has_imm3d) takeImm3d(message.vantix.imm3d, to.vantix.imm3d);
    if (message.vantix.has_expanse) takeExpanse(message.vantix.expanse, to.vantix.expanse);
    if (message.vantix.has_deep) takeDeep(message.vantix.deep, to.vantix.deep);
    takeVantix(message.vantix, to.vantix);
  }
  if (message.has_geq10b) takeGeq10b(message.geq10b, to.geq10b);
  if (message.has_xeq) takeXeq(message.xeq, to.xeq);
  if (message.has_contour2) takeContour2(message.contour2, to.contour2);
  if (message.has_orb) takeOrb(message.orb, to.orb);
  if (message.has_hpf_coef) takeHpfCoef(message.hpf_coef, to.hpf_coef);
  if (message.has_xeq_coef) {
    takeXeqCoef(message.xeq_coef.coeffs, message.xeq_coef.coeffs_count, to.xeq_coef);
  }
  return true;
}

// Writes every list packed, the room tables too: fewer bytes than the schema asks for, which read
// back the same.
std::size_t toBytes(const Engine& from, uint8_t* to, std::size_t capacity) {
  setPostmix(from, message);
  message.has_vantix = true;
  message.vantix.has_imm3d = true;
  setImm3d(from.vantix.imm3d, message.vantix.imm3d);
  message.vantix.has_expanse = true;
  setExpanse(from.vantix.expanse, message.vantix.expanse);
  message.vantix.has_deep = true;
  setDeep(from.vantix.deep, message.vantix.deep);
  setVantix(from.vantix, message.vantix);
  message.has_geq10b = true;
  setGeq10b(from.geq10b, message.geq10b);
  message.has_xeq = true;
  setXeq(from.xeq, message.xeq);
  message.has_contour2 = true;
  setContour2(from.contour2, message.contour2);
  message.has_orb = true;
  setOrb(from.orb, message.orb);
  message.has_hpf_coef = false;
  message.has_xeq_coef = true;
  std::copy_n(kNoUuid, sizeof(kNoUuid), message.xeq_coef.uuid);
  message.xeq_coef.sample_rate = kSampleRateHz;
  message.xeq_coef.coeffs_count = kXeqWords;
  std::copy_n(reinterpret_cast<const int32_t*>(&from.xeq_coef), kXeqWords, message.xeq_coef.coeffs);
  message.has_fader_info = true;
  setFaderInfo(from.fader_info, message.fader_info);

  pb_ostream_t stream = pb_ostream_from_buffer(to, capacity);
  if (!pb_encode(&stream, com_zor_onyx_fxp_std_Postmix_fields, &message)) return 0;
  return stream.bytes_written;
}

}  // namespace

const Peer kNanopb = {"nanopb", toStruct, toBytes};

}  // namespace zorbench
