#include "tools/inspect/plot_grid.h"

#include <fmt/format.h>

#include <cmath>

double dGridStep(double span, int cells) {
  if (!(span > 0.0) || cells < 1) return 1.0;
  double raw = span / cells;
  double power = std::pow(10.0, std::floor(std::log10(raw)));
  double fraction = raw / power;
  double round = fraction < 1.5 ? 1.0 : fraction < 3.5 ? 2.0 : fraction < 7.5 ? 5.0 : 10.0;
  return round * power;
}

std::string sGridLabel(double value, double step) {
  int decimals = step >= 1.0 ? 0 : static_cast<int>(std::ceil(-std::log10(step) - 1e-9));
  if (std::fabs(value) < step * 1e-6) value = 0.0;
  return fmt::format("{:.{}f}", value, decimals);
}
