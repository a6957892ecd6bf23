#include "ZorPbBase.h"

ZorPbBase::~ZorPbBase() {
  delete msg_;
  msg_ = nullptr;
}
