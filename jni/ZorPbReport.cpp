#include "ZorPbReport.h"

#include <iostream>

namespace zorpb {

void reportNoMessage() { std::cerr << " *** error -- msg is NULL" << std::endl; }

}  // namespace zorpb
