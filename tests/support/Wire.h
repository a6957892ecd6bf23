// Wire bytes, field by field, as the runtime's own primitives write them.
#pragma once

#include <google/protobuf/io/coded_stream.h>
#include <google/protobuf/io/zero_copy_stream_impl_lite.h>
#include <google/protobuf/wire_format_lite.h>

#include <cstdint>
#include <string>

namespace zortest {

class Wire {
 public:
  using Format = google::protobuf::internal::WireFormatLite;

  Wire& sint(int number, int32_t value) {
    return put([&](auto* out) { Format::WriteSInt32(number, value, out); });
  }
  Wire& varint(int number, uint64_t value) {
    return put([&](auto* out) { Format::WriteUInt64(number, value, out); });
  }
  Wire& fixed32(int number, uint32_t value) {
    return put([&](auto* out) { Format::WriteFixed32(number, value, out); });
  }
  Wire& fixed64(int number, uint64_t value) {
    return put([&](auto* out) { Format::WriteFixed64(number, value, out); });
  }
  Wire& text(int number, const std::string& value) {
    return put([&](auto* out) { Format::WriteBytes(number, value, out); });
  }
  Wire& group(int number, const std::string& content) {
    return put([&](auto* out) {
      Format::WriteTag(number, Format::WIRETYPE_START_GROUP, out);
      out->WriteString(content);
      Format::WriteTag(number, Format::WIRETYPE_END_GROUP, out);
    });
  }
  const std::string& bytes() const { return bytes_; }

 private:
  template <class Write>
  Wire& put(Write write) {
    google::protobuf::io::StringOutputStream stream(&bytes_);
    google::protobuf::io::CodedOutputStream out(&stream);
    write(&out);
    return *this;
  }

  std::string bytes_;
};

}  // namespace zortest
