#include "Peers.h"
#include "onyx.pb.h"

bool zorbench::plainParse(const std::string& bytes) {
  plain::zor::onyx::fxp_std::Postmix message;
  return message.ParsePartialFromString(bytes);
}
