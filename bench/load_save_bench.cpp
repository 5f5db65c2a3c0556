// Loading and saving a large model file, measured in one run against a
// baseline that only splits the same file into lines and reads every number
// in it with strtod: what a reader of this file cannot do faster.
//
//   kvrvips_load_save_bench [benchmark flags] [MODEL_FILE]
//
// The model file (default "bench_model.sfi" in the current directory) is
// generated first: 20,000 cross sections with 10 layers of 30 points. Two
// more files beside it hold the same sections locked, one with the five
// mass types whose masses a load then computes. After the benchmarks the
// program prints the ratios of load and save to the baseline, the size of
// the file, the peak memory of the process and the cost of the masses.
#include <benchmark/benchmark.h>
#include <sys/resource.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <vector>
#include <string>

#include "bench/bench_model_file.h"
#include "model_file/records/frame/model_load.h"
#include "model_file/records/frame/model_write.h"
#include "road_model/model/model.h"

namespace {

std::string modelPath = "bench_model.sfi";
std::string savePath = "bench_model_saved.sfi";

// Every line of the file, and every number in it by strtod.
void BM_Baseline(benchmark::State& state) {
  char line[10000];
  for (auto _ : state) {
    std::FILE* file = std::fopen(modelPath.c_str(), "rb");
    if (!file) {
      state.SkipWithError("the model file cannot be opened");
      return;
    }
    double sum = 0.0;
    long lines = 0;
    while (std::fgets(line, sizeof line, file)) {
      ++lines;
      for (char* place = line; *place;) {
        if (*place == ' ' || *place == '\r' || *place == '\n') {
          ++place;
        } else if ((*place >= '0' && *place <= '9') || *place == '-' || *place == '.') {
          char* end = nullptr;
          sum += std::strtod(place, &end);
          place = end > place ? end : place + 1;
        } else {
          while (*place && *place != ' ') ++place;
        }
      }
    }
    std::fclose(file);
    benchmark::DoNotOptimize(sum);
    benchmark::DoNotOptimize(lines);
  }
}

void BM_Load(benchmark::State& state) {
  for (auto _ : state) {
    RmModel* model = RmModelCreate();
    if (!boRmModelLoad(model, modelPath.c_str())) state.SkipWithError("the load failed");
    state.PauseTiming();
    vRmModelDelete(model);
    state.ResumeTiming();
  }
}

// Locked sections with and without their mass types: with them, a load
// computes the five masses of every section.
std::string lockedPath = "bench_model_locked.sfi";
std::string massesPath = "bench_model_masses.sfi";

void vLoadEach(benchmark::State& state, const std::string& path) {
  for (auto _ : state) {
    RmModel* model = RmModelCreate();
    if (!boRmModelLoad(model, path.c_str())) state.SkipWithError("the load failed");
    state.PauseTiming();
    vRmModelDelete(model);
    state.ResumeTiming();
  }
}

void BM_LoadLocked(benchmark::State& state) { vLoadEach(state, lockedPath); }
void BM_LoadLockedMasses(benchmark::State& state) { vLoadEach(state, massesPath); }

void BM_Save(benchmark::State& state) {
  RmModel* model = RmModelCreate();
  if (!boRmModelLoad(model, modelPath.c_str())) {
    state.SkipWithError("the load failed");
    vRmModelDelete(model);
    return;
  }
  for (auto _ : state) {
    if (!boRmModelWrite(model, savePath.c_str())) state.SkipWithError("the save failed");
  }
  vRmModelDelete(model);
}

BENCHMARK(BM_Baseline)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(BM_Load)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(BM_Save)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(BM_LoadLocked)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(BM_LoadLockedMasses)->Unit(benchmark::kMillisecond)->Iterations(3);

// Keeps the time per iteration of each benchmark beside the usual output.
class RecordingReporter : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.iterations > 0 && !run.error_occurred) {
        double unit = run.time_unit == benchmark::kMillisecond ? 1e-3 : 1e-9;
        seconds_[run.benchmark_name()] = run.GetAdjustedRealTime() * unit;
        cpuSeconds_[run.benchmark_name()] = run.GetAdjustedCPUTime() * unit;
      }
    }
    ConsoleReporter::ReportRuns(runs);
  }
  // The wall time of the first benchmark whose name starts with `prefix`.
  double dSeconds(const std::string& prefix) const { return dFirst(seconds_, prefix); }
  // Its time on the processor: the figure to compare when other work shares
  // the machine.
  double dCpuSeconds(const std::string& prefix) const { return dFirst(cpuSeconds_, prefix); }

 private:
  static double dFirst(const std::map<std::string, double>& times, const std::string& prefix) {
    for (const auto& [name, seconds] : times) {
      if (name.rfind(prefix, 0) == 0) return seconds;
    }
    return 0.0;
  }

  std::map<std::string, double> seconds_;
  std::map<std::string, double> cpuSeconds_;
};

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (argc > 1) {
    modelPath = argv[1];
    savePath = modelPath + ".saved";
  }
  std::printf("Generating %s ...\n", modelPath.c_str());
  if (!boRmBenchModelWrite(modelPath.c_str(), BenchModelShape{})) {
    std::fprintf(stderr, "could not write %s\n", modelPath.c_str());
    return 1;
  }
  lockedPath = modelPath + ".locked";
  massesPath = modelPath + ".masses";
  BenchModelShape locked;
  locked.Locked = true;
  BenchModelShape masses = locked;
  masses.MassTypes = true;
  if (!boRmBenchModelWrite(lockedPath.c_str(), locked) ||
      !boRmBenchModelWrite(massesPath.c_str(), masses)) {
    std::fprintf(stderr, "could not write the files of locked sections\n");
    return 1;
  }
  RecordingReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  benchmark::Shutdown();

  double baseline = reporter.dSeconds("BM_Baseline");
  double load = reporter.dSeconds("BM_Load/");
  double save = reporter.dSeconds("BM_Save");
  std::error_code error;
  auto size = std::filesystem::file_size(modelPath, error);
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  std::printf("\nfile size           %.1f MB (%ju bytes)\n", double(size) / 1e6,
              static_cast<uintmax_t>(size));
  double baselineCpu = reporter.dCpuSeconds("BM_Baseline");
  if (baseline > 0.0 && baselineCpu > 0.0) {
    std::printf("load / baseline     %.2f (CPU %.2f)\n", load / baseline,
                reporter.dCpuSeconds("BM_Load/") / baselineCpu);
    std::printf("save / baseline     %.2f (CPU %.2f)\n", save / baseline,
                reporter.dCpuSeconds("BM_Save") / baselineCpu);
  }
  std::printf("peak memory         %.1f MB\n", double(usage.ru_maxrss) / 1024.0);
  double lockedLoad = reporter.dSeconds("BM_LoadLocked/");
  double massesLoad = reporter.dSeconds("BM_LoadLockedMasses");
  if (lockedLoad > 0.0 && massesLoad > 0.0) {
    double perSection = (massesLoad - lockedLoad) / BenchModelShape{}.Sections;
    std::printf("masses / locked load %.2f\n", (massesLoad - lockedLoad) / lockedLoad);
    std::printf("masses per section   %.1f us, per mass type %.1f us\n", perSection * 1e6,
                perSection * 1e6 / kBenchMassTypes);
  }
  std::remove(savePath.c_str());
  std::remove(lockedPath.c_str());
  std::remove(massesPath.c_str());
  return 0;
}
