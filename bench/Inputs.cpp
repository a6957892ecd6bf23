#include "Inputs.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <functional>
#include <iostream>
#include <iterator>
#include <random>

#include "ZorPbPostmix.h"
#include "peers/Peers.h"

namespace zorbench {

using com::zor::onyx::fxp_std::Onyx;
using google::protobuf::RepeatedField;

namespace {

Input makeInput(const std::string& name, const Postmix& message) {
  Input input;
  input.name = name;
  input.bytes = message.SerializePartialAsString();
  input.message = parse(input.bytes);
  input.engine = std::make_unique<Engine>();
  ZorPbPostmix(&input.message).populateStruct(*input.engine);
  return input;
}

Postmix readHeadphones(const std::string& name) {
  std::ifstream file(name, std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  Onyx configuration;
  if (bytes.empty() || !configuration.ParseFromString(bytes)) {
    fail(name + ": not a configuration");
  }
  return configuration.postmix();
}

// A struct of random words makes a message in which all that can travel is set.
Postmix makeRandom() {
  std::mt19937 random(20210401);
  const auto engine = std::make_unique<Engine>();
  auto* const words = reinterpret_cast<uint32_t*>(engine.get());
  std::generate_n(words, sizeof(Engine) / sizeof(uint32_t), std::ref(random));
  ZorPbPostmix wrapper(*engine);
  Postmix message;
  message.CheckTypeAndMergeFrom(*wrapper.msg_);
  // What a struct never gives.
  auto* const hpf = message.mutable_hpf_coef();
  hpf->set_uuid(kNoUuid);
  hpf->set_cutoff(80);
  hpf->set_order(4);
  hpf->set_sample_rate(kSampleRateHz);
  for (std::size_t i = 0; i < std::size(engine->hpf_coef.coeffs); ++i) {
    hpf->add_coeffs(static_cast<int32_t>(random()));
  }
  return message;
}

Postmix makeSmall() {
  Postmix message;
  message.set_output_device(2);
  message.set_postmix_gain(16384);
  message.set_limiter(1);
  message.set_dc_cut_enable(1);
  message.mutable_xeq()->set_enable(1);
  message.mutable_xeq()->set_input_gain(16384);
  return message;
}

void repeat(const RepeatedField<int32_t>& from, int percent, RepeatedField<int32_t>* to) {
  const int count = static_cast<int>(int64_t{from.size()} * percent / 100);
  for (int i = 0; i < count; ++i) to->Add(from.Get(i % from.size()));
}

// Every byte set, so that one that a road leaves as it was tells itself from one set to 0.
std::unique_ptr<Engine> unset() {
  auto engine = std::make_unique<Engine>();
  std::memset(engine.get(), 0xA5, sizeof(Engine));
  return engine;
}

// Down to the padding, which no road may touch.
bool same(const Engine& a, const Engine& b) {
  const auto* const bytes = reinterpret_cast<const char*>(&a);
  return std::equal(bytes, bytes + sizeof(Engine), reinterpret_cast<const char*>(&b));
}

void proveEqual(const Input& input, const Peer& peer) {
  const auto ours = unset();
  ZorPbPostmix(&input.message).populateStruct(*ours);
  const auto theirs = unset();
  if (!peer.toStruct(input.bytes, *theirs) || !same(*ours, *theirs)) {
    fail(std::string(peer.name) + ": gives another struct than the library for " + input.name);
  }

  std::string bytes(kBytesCapacity, '\0');
  bytes.resize(peer.toBytes(*input.engine, reinterpret_cast<uint8_t*>(bytes.data()), bytes.size()));
  if (bytes.empty()) fail(std::string(peer.name) + ": writes no message for " + input.name);
  Postmix theirMessage;
  if (!theirMessage.ParsePartialFromString(bytes)) {
    fail(std::string(peer.name) + ": writes what does not parse for " + input.name);
  }
  const ZorPbPostmix wrapper(*input.engine);
  if (theirMessage.SerializePartialAsString() != wrapper.msg_->SerializePartialAsString()) {
    fail(std::string(peer.name) + ": writes another message than the library for " + input.name);
  }
}

}  // namespace

void fail(const std::string& message) {
  std::cerr << "zorcs_bench: " << message << "\n";
  std::exit(1);
}

Postmix parse(const std::string& bytes) {
  Postmix message;
  if (!message.ParsePartialFromString(bytes)) fail("the bytes of an input are no message");
  return message;
}

std::vector<Input> makeInputs(const std::string& headphonesFile) {
  std::vector<Input> inputs;
  inputs.push_back(makeInput("headphones", readHeadphones(headphonesFile)));
  inputs.push_back(makeInput("random", makeRandom()));
  inputs.push_back(makeInput("small", makeSmall()));
  return inputs;
}

Input makeTables(const Postmix& from, int percent) {
  Postmix message;
  repeat(from.room_multi_ch(), percent, message.mutable_room_multi_ch());
  repeat(from.room_stereo_front(), percent, message.mutable_room_stereo_front());
  repeat(from.room_stereo_wide(), percent, message.mutable_room_stereo_wide());
  repeat(from.hpeq_coeffs(), percent, message.mutable_hpeq_coeffs());
  return makeInput("tables at " + std::to_string(percent) + " %", message);
}

void proveEqual(const Input& input) {
  for (const Peer* peer : {&kProtozero, &kNanopb, &kProtobufC}) proveEqual(input, *peer);
}

}  // namespace zorbench
