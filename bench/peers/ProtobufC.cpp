#include "Peers.h"
#include "onyx.pb-c.h"

// A message refers to the struct's own list: the packer only reads it.
#define PEER_COUNT(message, list) (message).n_##list
#define PEER_SET_LIST(number, field)    \
  to.n_##field = std::size(from.field); \
  to.field = const_cast<int32_t*>(from.field);

#include <iterator>
#include <memory>
#include <new>

#include "CopyByHand.h"

namespace zorbench {
namespace {
using Message = Com__Zor__Onyx__FxpStd__Postmix;

// As the other roads do it, so that what it allocates can be counted with theirs.
void* allocate(void*, std::size_t size) { return ::operator new(size, std::nothrow); }
void release(void*, void* block) { ::operator delete(block); }
ProtobufCAllocator allocator = {allocate, release, nullptr};

struct Free {
  void operator()(Message* message) const {
    com__zor__onyx__fxp_std__postmix__free_unpacked(message, &allocator);
  }
};

bool toStruct(const std::string& bytes, Engine& to) {
  const std::unique_ptr<Message, Free> message(com__zor__onyx__fxp_std__postmix__unpack(
      &allocator, bytes.size(), reinterpret_cast<const uint8_t*>(bytes.data())));
  if (message == nullptr) return false;
  takePostmix(*message, to);
  if (const auto* vantix = message->vantix) {
    if (vantix->imm3d != nullptr) takeImm3d(*vantix->imm3d, to.vantix.imm3d);
    if (vantix->expanse != nullptr) takeExpanse(*vantix->expanse, to.vantix.expanse);
    if (vantix->deep != nullptr) takeDeep(*vantix->deep, to.vantix.deep);
    takeVantix(*vantix, to.vantix);
  }
  if (message->geq10b != nullptr) takeGeq10b(*message->geq10b, to.geq10b);
  if (message->xeq != nullptr) takeXeq(*message->xeq, to.xeq);
  if (message->contour2 != nullptr) takeContour2(*message->contour2, to.contour2);
  if (message->orb != nullptr) takeOrb(*message->orb, to.orb);
  if (message->hpf_coef != nullptr) takeHpfCoef(*message->hpf_coef, to.hpf_coef);
  if (const auto* xeq = message->xeq_coef) takeXeqCoef(xeq->coeffs, xeq->n_coeffs, to.xeq_coef);
  return true;
}

std::size_t toBytes(const Engine& from, uint8_t* to, std::size_t capacity) {
  Message message;
  com__zor__onyx__fxp_std__postmix__init(&message);
  setPostmix(from, message);

  Com__Zor__Tech__Imm3d imm3d;
  com__zor__tech__imm3d__init(&imm3d);
  setImm3d(from.vantix.imm3d, imm3d);
  Com__Zor__Tech__Expanse expanse;
  com__zor__tech__expanse__init(&expanse);
  setExpanse(from.vantix.expanse, expanse);
  Com__Zor__Tech__Deep deep;
  com__zor__tech__deep__init(&deep);
  setDeep(from.vantix.deep, deep);
  Com__Zor__Tech__Vantix vantix;
  com__zor__tech__vantix__init(&vantix);
  setVantix(from.vantix, vantix);
  vantix.imm3d = &imm3d;
  vantix.expanse = &expanse;
  vantix.deep = &deep;
  message.vantix = &vantix;

  Com__Zor__Tech__Geq10b geq10b;
  com__zor__tech__geq10b__init(&geq10b);
  setGeq10b(from.geq10b, geq10b);
  message.geq10b = &geq10b;
  Com__Zor__Tech__Xeq xeq;
  com__zor__tech__xeq__init(&xeq);
  setXeq(from.xeq, xeq);
  message.xeq = &xeq;
  Com__Zor__Tech__Contour2 contour2;
  com__zor__tech__contour2__init(&contour2);
  setContour2(from.contour2, contour2);
  message.contour2 = &contour2;
  Com__Zor__Tech__Orb orb;
  com__zor__tech__orb__init(&orb);
  setOrb(from.orb, orb);
  message.orb = &orb;
  Com__Zor__Coef__Xeq xeqCoef;
  com__zor__coef__xeq__init(&xeqCoef);
  xeqCoef.uuid = const_cast<char*>(kNoUuid);
  xeqCoef.sample_rate = kSampleRateHz;
  xeqCoef.n_coeffs = kXeqWords;
  xeqCoef.coeffs = reinterpret_cast<int32_t*>(const_cast<_zorXeqApiCoeff*>(&from.xeq_coef));
  message.xeq_coef = &xeqCoef;
  Com__Zor__Onyx__FxpStd__FaderInfo faderInfo;
  com__zor__onyx__fxp_std__fader_info__init(&faderInfo);
  setFaderInfo(from.fader_info, faderInfo);
  message.fader_info = &faderInfo;

  // The packer does not look where its buffer ends.
  if (com__zor__onyx__fxp_std__postmix__get_packed_size(&message) > capacity) return 0;
  return com__zor__onyx__fxp_std__postmix__pack(&message, to);
}

}  // namespace

const Peer kProtobufC = {"protobuf-c and copy", toStruct, toBytes};

}  // namespace zorbench
