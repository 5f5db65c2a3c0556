#include "road_model/lines/chain_stations.h"

#include <cmath>

#include "road_model/lines/chain_equations.h"
#include "road_model/model/model.h"
#include "road_model/model/model_lines.h"

namespace {

// Stations this close are one station.
constexpr double kSameStation = 1e-5;
// The road type whose centre line numbers its stations by chain equations.
constexpr int kRoadTypeWithEquations = 2;

class StationList {
 public:
  explicit StationList(std::vector<double>* stations) : stations_(stations) {}

  void vAdd(double station) {
    if (!stations_->empty() && std::fabs(station - stations_->back()) < kSameStation) return;
    stations_->push_back(station);
  }

  // origin, origin + interval, ... below `below`, from the step `firstStep` on.
  void vAddRun(double origin, long firstStep, double interval, double below) {
    for (long step = firstStep;; ++step) {
      double station = origin + static_cast<double>(step) * interval;
      if (station >= below) break;
      vAdd(station);
    }
  }

 private:
  std::vector<double>* stations_;
};

const RmChainEquations* CenterLineEquations(const RmModel* model) {
  if (!model || iRmModelGetRoadType(model) != kRoadTypeWithEquations) return nullptr;
  return RmLineGetEquations(RmModelGetCenterLine(model));
}

}  // namespace

void vRmChainPointsForInterval(const RmModel* model, double start, double end, double interval,
                               bool withStart, bool withEnd, std::vector<double>* stations) {
  if (!stations) return;
  stations->clear();
  StationList list(stations);
  if (withStart) list.vAdd(start);
  if (interval > 0.0) {
    long firstStep = static_cast<long>(start / interval);
    if (start >= 0.0) ++firstStep;
    double runOrigin = 0.0;
    const RmChainEquations* equations = CenterLineEquations(model);
    for (int i = 0; i < iRmChainEquationsGetCount(equations); ++i) {
      const RmChainEquation* equation = RmChainEquationAt(equations, i);
      list.vAddRun(runOrigin, firstStep, interval, equation->ChainBack);
      runOrigin = equation->ChainAhead;
      firstStep = 0;
    }
    list.vAddRun(runOrigin, firstStep, interval, end);
  }
  if (withEnd) list.vAdd(end);
}
