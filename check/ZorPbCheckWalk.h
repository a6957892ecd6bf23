// Walks a message in the order of its schema and reports what its conversion to a struct would
// lose. What the schema declares is held against the field lists that the conversion itself uses: a
// field that no list names is one that does not travel. Private to the checker.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <tuple>
#include <type_traits>

#include "ZorPbCheck.h"
#include "ZorPbFields.h"
#include "ZorPbSchema.h"

namespace zorpb {

// Where the walk is, as a chain on the stack, so that a walk that finds nothing allocates nothing.
struct Path {
  const Path* parent = nullptr;
  const char* name = nullptr;
  int index = -1;  // of an element of a repeated message field
};

struct Detail {
  int firstIndex = -1;
  int lastIndex = -1;
  int64_t value = 0;
  int64_t engine = 0;
};

// The field list of message class M; void when no wrapper converts it.
template <class M, class List = AllFields>
struct FieldsOf;
template <class M>
struct FieldsOf<M, std::tuple<>> {
  using Type = void;
};
template <class M, class First, class... Rest>
struct FieldsOf<M, std::tuple<First, Rest...>> {
  using Type = std::conditional_t<std::is_same_v<M, typename First::Message>, First,
                                  typename FieldsOf<M, std::tuple<Rest...>>::Type>;
};

// The number of fields on the longest way down through messages of class M.
template <class M>
constexpr std::size_t deepest() {
  std::size_t below = 0;
  Schema<M>::each([&below](auto declared) {
    using Declared = decltype(declared);
    if constexpr (Declared::kIsMessage) {
      below = std::max(below, deepest<typename Declared::Value>());
    }
  });
  return below + 1;
}

// Accessors are told apart as types: comparing them as values is no constant expression under every
// sanitizer.
template <auto get>
struct Accessor;
template <class Declared, class Field>
constexpr bool isSameField = std::is_same_v<Accessor<Declared::kGet>, Accessor<Field::kGet>>;

// Sink is called with (ZorPbRule, const Path&, const Detail&) for each finding.
template <class Sink>
class Walk {
 public:
  explicit Walk(Sink sink) : sink_(sink) {}

  // A message that a wrapper takes to its struct.
  template <class M>
  void converted(const M& msg, const Path* path) {
    Schema<M>::each([&](auto declared) {
      using Declared = decltype(declared);
      const Path here{path, declared.name};
      this->requirement(declared, msg, here);
      bool mapped = false;
      FieldsOf<M>::Type::each([&](auto field) {
        if constexpr (isSameField<Declared, decltype(field)>) {
          mapped = true;
          this->mappedField(declared, field, msg, here);
        }
      });
      if (!mapped) this->droppedField(declared, msg, here);
    });
  }

  // The whole configuration: the stages are converted one by one, the rest is the application's.
  void converted(const com::zor::onyx::fxp_std::Onyx& msg) {
    Schema<com::zor::onyx::fxp_std::Onyx>::each([&](auto declared) {
      const Path here{nullptr, declared.name};
      this->requirement(declared, msg, here);
      if constexpr (decltype(declared)::kIsMessage) this->block(declared, msg, here);
    });
  }

 private:
  template <class Declared, class M>
  void requirement(Declared declared, const M& msg, const Path& here) {
    if constexpr (Declared::kSingular) {
      if (declared.kRequired && !declared.has(msg)) sink_(ZorPbRule::kMissingRequired, here, {});
    }
  }

  template <class Declared, class Field, class M>
  void mappedField(Declared declared, Field field, const M& msg, const Path& here) {
    if constexpr (Field::kForm == Form::kScalar) {
      scalar(declared, field, msg, here);
    } else if constexpr (Field::kForm == Form::kList) {
      list<Field>((msg.*Field::kGet)().size(), here);
    } else if constexpr (Field::kForm == Form::kBlock) {
      if constexpr (Field::kToStruct) {
        block(declared, msg, here);
      } else {
        droppedField(declared, msg, here);
      }
    }
  }

  template <class Declared, class Field, class M>
  void scalar(Declared declared, Field /*field*/, const M& msg, const Path& here) {
    const int32_t value = (msg.*Field::kGet)();
    if constexpr (!Field::kLoaded) {
      const int32_t engine = (M::default_instance().*Field::kGet)();
      if (declared.has(msg) && value != engine) {
        sink_(ZorPbRule::kNotCarried, here, {-1, -1, value, engine});
      }
    } else if constexpr (sizeof(typename Field::Member) < sizeof(value)) {
      const auto engine = static_cast<typename Field::Member>(value);
      if (value != engine) sink_(ZorPbRule::kInt16Wrap, here, {-1, -1, value, engine});
    }
  }

  template <class Field>
  void list(int count, const Path& here) {
    constexpr int kCapacity = Field::kCapacity;
    if (count > kCapacity) {
      sink_(Field::kBounded ? ZorPbRule::kListCut : ZorPbRule::kOverrun, here,
            {kCapacity, count - 1, count, kCapacity});
    } else if (count < kCapacity) {
      sink_(Field::kMustBeFull ? ZorPbRule::kShortSource : ZorPbRule::kListShort, here,
            {count, kCapacity - 1, count, kCapacity});
    }
  }

  template <class Declared, class M>
  void block(Declared declared, const M& msg, const Path& here) {
    if (declared.has(msg)) {
      converted((msg.*Declared::kGet)(), &here);
    } else {
      sink_(ZorPbRule::kAbsentBlock, here, {});
    }
  }

  // A field that never reaches the struct. What it holds must still be complete.
  template <class Declared, class M>
  void droppedField(Declared declared, const M& msg, const Path& here) {
    if constexpr (Declared::kSingular) {
      if (!declared.has(msg)) return;
      sink_(ZorPbRule::kNotCarried, here, {});
    } else {
      const int count = (msg.*Declared::kGet)().size();
      if (count == 0) return;
      sink_(ZorPbRule::kNotCarried, here, {0, count - 1, count, 0});
    }
    within(declared, msg, here);
  }

  // The required fields of a message that is not converted, at every depth.
  template <class M>
  void complete(const M& msg, const Path& path) {
    Schema<M>::each([&](auto declared) {
      const Path here{&path, declared.name};
      this->requirement(declared, msg, here);
      this->within(declared, msg, here);
    });
  }

  template <Label label, auto has, auto get, class M>
  void within(Singular<label, has, get> declared, const M& msg, const Path& here) {
    if constexpr (decltype(declared)::kIsMessage) {
      if (declared.has(msg)) complete((msg.*get)(), here);
    }
  }
  template <class M, class T, const google::protobuf::RepeatedPtrField<T>& (M::*get)() const>
  void within(Messages<M, T, get> declared, const M& msg, const Path& here) {
    for (int i = 0; i < (msg.*get)().size(); ++i) {
      complete((msg.*get)().Get(i), Path{here.parent, declared.name, i});
    }
  }
  template <class M, const List32& (M::*get)() const>
  void within(Values<M, get> /*declared*/, const M& /*msg*/, const Path& /*here*/) {}

  Sink sink_;
};

}  // namespace zorpb
