// Holds the wrappers to the binary interface that callers were compiled with: callers allocate
// them, read their messages, derive from them for the children, and destroy them through the
// virtual table. All is counted in pointers, the one for that table first. What the table itself
// holds shows in the exported symbols. Nothing here reaches the library's code.
#include <cstddef>
#include <type_traits>

#include "ZorPbBase.h"
#include "ZorPbCoefDeep.h"
#include "ZorPbCoefHpf.h"
#include "ZorPbCoefXeq.h"
#include "ZorPbFaderInfo.h"
#include "ZorPbPostmix.h"
#include "ZorPbPremix.h"
#include "ZorPbTechContour2.h"
#include "ZorPbTechDeep.h"
#include "ZorPbTechExpanse.h"
#include "ZorPbTechGeq10b.h"
#include "ZorPbTechImm3d.h"
#include "ZorPbTechLeveler.h"
#include "ZorPbTechOrb.h"
#include "ZorPbTechVantix.h"
#include "ZorPbTechXeq.h"

namespace {

#define ZOR_AT(Class, member, pointers)                                \
  static_assert(offsetof(Class, member) == (pointers) * sizeof(void*), \
                #Class "::" #member " moved");                         \
  static_assert(std::is_pointer_v<decltype(Class::member)>, #Class "::" #member " is no pointer")
#define ZOR_WRAPPER(Class, pointers)                                                    \
  static_assert(sizeof(Class) == (pointers) * sizeof(void*), #Class " changed size");   \
  static_assert(alignof(Class) == alignof(void*), #Class " changed alignment");         \
  static_assert(std::is_base_of_v<ZorPbBase, Class>, #Class " is no wrapper any more"); \
  static_assert(std::has_virtual_destructor_v<Class>, #Class " is not destroyed as it was")

ZOR_WRAPPER(ZorPbBase, 2);
ZOR_WRAPPER(ZorPbCoefDeep, 2);
ZOR_WRAPPER(ZorPbCoefHpf, 3);
ZOR_WRAPPER(ZorPbCoefXeq, 2);
ZOR_WRAPPER(ZorPbFaderInfo, 2);
ZOR_WRAPPER(ZorPbPostmix, 10);
ZOR_WRAPPER(ZorPbPremix, 5);
ZOR_WRAPPER(ZorPbTechContour2, 2);
ZOR_WRAPPER(ZorPbTechDeep, 2);
ZOR_WRAPPER(ZorPbTechExpanse, 2);
ZOR_WRAPPER(ZorPbTechGeq10b, 2);
ZOR_WRAPPER(ZorPbTechImm3d, 2);
ZOR_WRAPPER(ZorPbTechLeveler, 2);
ZOR_WRAPPER(ZorPbTechOrb, 2);
ZOR_WRAPPER(ZorPbTechVantix, 5);
ZOR_WRAPPER(ZorPbTechXeq, 2);

// That members have constant offsets in classes with virtual functions is for compilers to support,
// and ours do.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Winvalid-offsetof"

ZOR_AT(ZorPbBase, msg_, 1);
ZOR_AT(ZorPbCoefHpf, hpfMsg_, 2);

// The children are protected: seen from a class that derives, as callers' classes do.
struct Postmix : ZorPbPostmix {
  using ZorPbPostmix::vantix_, ZorPbPostmix::geq10b_, ZorPbPostmix::xeq_, ZorPbPostmix::contour2_,
      ZorPbPostmix::orb_, ZorPbPostmix::xeqCoef_, ZorPbPostmix::hpfCoef_, ZorPbPostmix::faderInfo_;
};
ZOR_AT(Postmix, vantix_, 2);
ZOR_AT(Postmix, geq10b_, 3);
ZOR_AT(Postmix, xeq_, 4);
ZOR_AT(Postmix, contour2_, 5);
ZOR_AT(Postmix, orb_, 6);
ZOR_AT(Postmix, xeqCoef_, 7);
ZOR_AT(Postmix, hpfCoef_, 8);
ZOR_AT(Postmix, faderInfo_, 9);

struct Premix : ZorPbPremix {
  using ZorPbPremix::leveler_, ZorPbPremix::contour2_, ZorPbPremix::faderInfo_;
};
ZOR_AT(Premix, leveler_, 2);
ZOR_AT(Premix, contour2_, 3);
ZOR_AT(Premix, faderInfo_, 4);

struct TechVantix : ZorPbTechVantix {
  using ZorPbTechVantix::imm3d_, ZorPbTechVantix::expanse_, ZorPbTechVantix::deep_;
};
ZOR_AT(TechVantix, imm3d_, 2);
ZOR_AT(TechVantix, expanse_, 3);
ZOR_AT(TechVantix, deep_, 4);

#pragma GCC diagnostic pop

#undef ZOR_WRAPPER
#undef ZOR_AT

}  // namespace
