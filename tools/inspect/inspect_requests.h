// What `kvrvips show` and `kvrvips plot` are asked to do.
#pragma once

#include <string>

// A chainage that was not given.
inline constexpr double kNoChain = -1e300;

struct ShowRequest {
  std::string sModel;
  double dSection = kNoChain;  // one cross section instead of the summary
  bool boJson = false;
};

struct PlotRequest {
  std::string sModel;
  double dSection = kNoChain;  // the first cross section
  double dTo = kNoChain;       // the last one; not given: only the first
  bool boPlan = false;         // the plan lines instead of sections
  bool boEach = false;         // one file per section
  std::string sOutput;         // empty: standard output
  double dExaggeration = 1.0;
};
