// The subcommands. Each returns the exit status of its run, and throws Trouble where it cannot go
// on.
#pragma once

#include <string>
#include <vector>

struct CheckOptions {
  std::vector<std::string> files;
  bool strict = false;
  bool json = false;
};
struct ShowOptions {
  std::string file;
  bool full = false;
  bool json = false;
  bool dump = false;
};
struct BuildOptions {
  std::string file;
  std::string output;
};
struct DiffOptions {
  std::string before;
  std::string after;
  bool json = false;
};
// The files of the struct images; empty where one is not wanted.
struct ImageNames {
  std::string premix;
  std::string postmix;
};
struct PackOptions {
  std::string file;
  ImageNames images;
};
struct UnpackOptions {
  ImageNames images;
  std::string output;
};
struct RoundtripOptions {
  std::string file;
  bool json = false;
};
struct LayoutOptions {
  bool json = false;
};
struct PlotOptions {
  std::string file;
  std::string output;
};

int build(const BuildOptions& options);
int check(const CheckOptions& options);
int diff(const DiffOptions& options);
int layout(const LayoutOptions& options);
int pack(const PackOptions& options);
int plot(const PlotOptions& options);
int roundtrip(const RoundtripOptions& options);
int show(const ShowOptions& options);
int unpack(const UnpackOptions& options);
