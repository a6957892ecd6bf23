#include "Schema.h"

#include <google/protobuf/descriptor.pb.h>
#include <google/protobuf/dynamic_message.h>
#include <google/protobuf/type.pb.h>
#include <google/protobuf/util/type_resolver_util.h>

#include <cstddef>

extern const unsigned char kZorcsDescriptorSet[];
extern const std::size_t kZorcsDescriptorSetSize;

namespace schema {
namespace {

using google::protobuf::DescriptorPool;
using google::protobuf::util::Status;
using google::protobuf::util::TypeResolver;

constexpr const char* kConfiguration = "com.zor.onyx.fxp_std.Onyx";
constexpr const char* kUrlPrefix = "type.googleapis.com";

const DescriptorPool& pool() {
  static const auto* const kPool = [] {
    auto* built = new DescriptorPool;  // lives as long as the program, as messages may outlive main
    google::protobuf::FileDescriptorSet files;
    files.ParseFromArray(kZorcsDescriptorSet, static_cast<int>(kZorcsDescriptorSetSize));
    for (const auto& file : files.file()) built->BuildFile(file);
    return built;
  }();
  return *kPool;
}

class LenientTypes : public TypeResolver {
 public:
  Status ResolveMessageType(const std::string& url, google::protobuf::Type* type) override {
    Status status = strict_->ResolveMessageType(url, type);
    for (auto& field : *type->mutable_fields()) {
      if (field.cardinality() == google::protobuf::Field::CARDINALITY_REQUIRED) {
        field.set_cardinality(google::protobuf::Field::CARDINALITY_OPTIONAL);
      }
    }
    return status;
  }
  Status ResolveEnumType(const std::string& url, google::protobuf::Enum* type) override {
    return strict_->ResolveEnumType(url, type);
  }

 private:
  std::unique_ptr<TypeResolver> strict_{
      google::protobuf::util::NewTypeResolverForDescriptorPool(kUrlPrefix, &pool())};
};

}  // namespace

std::unique_ptr<google::protobuf::Message> newConfiguration() {
  static auto* const kFactory = new google::protobuf::DynamicMessageFactory;
  return std::unique_ptr<google::protobuf::Message>(
      kFactory->GetPrototype(findMessage(kConfiguration))->New());
}

const google::protobuf::Descriptor* findMessage(const std::string& name) {
  return pool().FindMessageTypeByName(name);
}

TypeResolver* jsonTypes() {
  static LenientTypes types;
  return &types;
}

std::string jsonTypeUrl() { return std::string(kUrlPrefix) + "/" + kConfiguration; }

}  // namespace schema
