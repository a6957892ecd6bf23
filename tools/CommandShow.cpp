#include <google/protobuf/descriptor.h>
#include <google/protobuf/reflection.h>
#include <google/protobuf/text_format.h>
#include <google/protobuf/util/json_util.h>
#include <zlib.h>

#include <algorithm>
#include <cstdint>
#include <iomanip>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

#include "Commands.h"
#include "Configuration.h"
#include "JsonRecord.h"
#include "Layout.h"
#include "Schema.h"
#include "Trouble.h"
#include "ZorPbPostmix.h"

namespace {

using google::protobuf::FieldDescriptor;
using google::protobuf::Message;
using google::protobuf::TextFormat;

constexpr int kLongestList = 16;

TextFormat::Printer textPrinter() {
  TextFormat::Printer printer;
  printer.SetUseShortRepeatedPrimitives(true);
  printer.SetHideUnknownFields(true);  // they have no name, so that no one could read them back
  return printer;
}

std::vector<int32_t> integers(const Message& message, const FieldDescriptor* field) {
  const auto& list = message.GetReflection()->GetRepeatedFieldRef<int32_t>(message, field);
  return {list.begin(), list.end()};
}

// The CRC-32 of the values as little-endian words, so that it is the same on every machine.
uint32_t crc32Of(const std::vector<int32_t>& values) {
  std::string bytes;
  for (const int32_t value : values) {
    for (int shift = 0; shift < 32; shift += 8) {
      bytes += static_cast<char>(static_cast<uint32_t>(value) >> shift & 0xFF);
    }
  }
  return static_cast<uint32_t>(
      crc32_z(0, reinterpret_cast<const Bytef*>(bytes.data()), bytes.size()));
}

std::string summaryOf(const Message& message, const FieldDescriptor* field) {
  const auto values = integers(message, field);
  const int capacity = capacityOf(message.GetDescriptor()->full_name(), field->name());
  const auto [lowest, highest] = std::minmax_element(values.begin(), values.end());
  std::ostringstream text;
  text << "# " << values.size();
  if (capacity > 0) text << " of " << capacity;
  text << ", " << *lowest << " to " << *highest << ", "
       << std::count(values.begin(), values.end(), 0) << " zeros, crc32 " << std::hex
       << std::setw(8) << std::setfill('0') << crc32Of(values);
  return text.str();
}

bool isLong(const Message& message, const FieldDescriptor* field) {
  return field->is_repeated() && field->cpp_type() == FieldDescriptor::CPPTYPE_INT32 &&
         message.GetReflection()->FieldSize(message, field) > kLongestList;
}

void printFolded(const Message& message, const std::string& indent, std::ostream& os);

void printBlock(const Message& block, const std::string& name, const std::string& indent,
                std::ostream& os) {
  os << indent << name << " {\n";
  printFolded(block, indent + "  ", os);
  os << indent << "}\n";
}

// Values other than nested messages, in one line.
void printValues(const Message& message, const FieldDescriptor* field, std::ostream& os) {
  const auto printer = textPrinter();
  const int count = field->is_repeated() ? message.GetReflection()->FieldSize(message, field) : 1;
  os << field->name() << ": " << (field->is_repeated() ? "[" : "");
  for (int i = 0; i < count; ++i) {
    std::string value;
    printer.PrintFieldValueToString(message, field, field->is_repeated() ? i : -1, &value);
    os << (i > 0 ? ", " : "") << value;
  }
  os << (field->is_repeated() ? "]\n" : "\n");
}

// Text format, but for long lists, of which a summary stands in a comment.
void printFolded(const Message& message, const std::string& indent, std::ostream& os) {
  const auto* reflection = message.GetReflection();
  std::vector<const FieldDescriptor*> fields;
  reflection->ListFields(message, &fields);
  for (const auto* field : fields) {
    if (isLong(message, field)) {
      os << indent << field->name() << ": " << summaryOf(message, field) << "\n";
    } else if (field->cpp_type() != FieldDescriptor::CPPTYPE_MESSAGE) {
      os << indent;
      printValues(message, field, os);
    } else if (!field->is_repeated()) {
      printBlock(reflection->GetMessage(message, field), field->name(), indent, os);
    } else {
      for (int i = 0; i < reflection->FieldSize(message, field); ++i) {
        printBlock(reflection->GetRepeatedMessage(message, field, i), field->name(), indent, os);
      }
    }
  }
}

void printFull(const Message& message, std::ostream& os) {
  std::string text;
  textPrinter().PrintToString(message, &text);
  os << text;
}

void printJson(const Configuration& configuration, std::ostream& os) {
  google::protobuf::util::JsonPrintOptions options;
  options.preserve_proto_field_names = true;
  std::string json;
  const auto status = google::protobuf::util::BinaryToJsonString(
      schema::jsonTypes(), schema::jsonTypeUrl(), configuration.message->SerializePartialAsString(),
      &json, options);
  if (!status.ok()) {
    throw Trouble(kNotParsed, configuration.name + ": " + status.message().ToString());
  }
  os << JsonRecord().add("file", configuration.name).addRaw("configuration", json);
}

}  // namespace

int show(const ShowOptions& options) {
  const auto configuration = loadConfiguration(options.file);
  if (options.dump) {
    ZorPbPostmix::dumpRef(configuration.onyx.postmix(), std::cout);
  } else if (options.json) {
    printJson(configuration, std::cout);
  } else if (options.full) {
    printFull(*configuration.message, std::cout);
  } else {
    printFolded(*configuration.message, "", std::cout);
  }
  return kClean;
}
