// Bytes as the image of an engine struct: the first says of which, the others repeat to fill it.
#include "Roads.h"

namespace zortest {

void runOne(Input input) {
  const int chosen = input.next() % 15;
  const std::string content = input.rest();
  if (content.empty()) return;
  int number = 0;
  eachConversion([&](auto conversion) {
    using C = decltype(conversion);
    static Guarded<typename C::S> image;
    static Guarded<typename C::S> back;
    if (number++ != chosen) return;
    auto* bytes = reinterpret_cast<char*>(&image.fill(kPoison));
    for (std::size_t i = 0; i < sizeof(typename C::S); i += content.size()) {
      content.copy(bytes + i, sizeof(typename C::S) - i);
    }
    if constexpr (std::is_same_v<C, DeepConversion>) image.get().uuid = content.c_str();
    thereAndBack<C>(&image, &back);
  });
}

}  // namespace zortest
