// The conversion of a large design into a new road model file, measured in
// one run against what it cannot do without: parsing the design document
// and saving the model that comes out of it.
//
//   kvrvips_conversion_bench [--sections N] [--settings FILE] [--runs R] [DIR]
//
// The program writes a generated design document of N sections (default
// 20,000, one per metre) to DIR (default the current folder) and measures:
//   conversion  iKvrVipsConvertDatabase of the document into a new model
//               file, in a child process of its own, whose resource use
//               (CPU time and peak resident memory) the system reports at
//               its end, apart from this program's own;
//   parse       reading the document and parsing it with simdjson's DOM
//               parser, as the design model's reader does, walking every
//               value so that nothing is skipped;
//   save        boRmModelWrite of the converted model, loaded once before.
// Each is run R times (default 3) and the fastest run counts. The program
// prints wall and CPU times, the conversion over (parse + save), the sizes
// of the two files and the peak memory of the conversion against the aims.
#include <simdjson.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <filesystem>
#include <string>
#include <vector>

#include "bench/bench_design_document.h"
#include "kvrvips/kvrvips.h"
#include "model_file/records/frame/model_load.h"
#include "model_file/records/frame/model_write.h"
#include "road_model/model/model.h"

extern char** environ;

namespace {

constexpr double kConversionAim = 2.0;  // times (parse + save)
constexpr double kMemoryAim = 3.0;      // times the model file's size

// Wall and CPU seconds of one measured run.
struct Timing {
  double Wall = 0.0;
  double Cpu = 0.0;
};

// The faster of two runs, wall and CPU each on its own.
Timing Fastest(const Timing& a, const Timing& b) {
  return {std::min(a.Wall, b.Wall), std::min(a.Cpu, b.Cpu)};
}

double dWallNow() {
  return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch())
      .count();
}

double dCpuNow() {
  timespec now{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
  return double(now.tv_sec) + double(now.tv_nsec) * 1e-9;
}

double dSeconds(const timeval& time) { return double(time.tv_sec) + double(time.tv_usec) * 1e-6; }

// ---- The conversion, in a child process ----

int iConvertInThisProcess(const char* design, const char* model, const char* settings) {
  char* log = nullptr;
  return iKvrVipsConvertDatabase(design, model, KVRVIPS_IMPORT_FULL, &log, settings, 1, 0) == 0
             ? 0
             : 1;
}

// Runs this program again to convert the design into a new model file; its
// CPU time and peak memory come from the system at the child's end.
bool boConvertInChild(const std::string& design, const std::string& model,
                      const std::string& settings, Timing* timing, long* peakKb) {
  std::remove(model.c_str());
  std::vector<std::string> words = {"/proc/self/exe", "--convert", design, model, settings};
  std::vector<char*> argv;
  for (std::string& word : words) argv.push_back(word.data());
  argv.push_back(nullptr);
  const double start = dWallNow();
  pid_t child = 0;
  if (posix_spawn(&child, "/proc/self/exe", nullptr, nullptr, argv.data(), environ) != 0) {
    return false;
  }
  int status = 0;
  rusage usage{};
  if (wait4(child, &status, 0, &usage) != child) return false;
  timing->Wall = dWallNow() - start;
  timing->Cpu = dSeconds(usage.ru_utime) + dSeconds(usage.ru_stime);
  *peakKb = usage.ru_maxrss;
  return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

// ---- The parse alone ----

struct Tally {
  double Sum = 0.0;
  size_t Values = 0;
};

void vWalk(simdjson::dom::element element, Tally* tally) {
  ++tally->Values;
  switch (element.type()) {
    case simdjson::dom::element_type::ARRAY:
      for (simdjson::dom::element item : simdjson::dom::array(element)) vWalk(item, tally);
      break;
    case simdjson::dom::element_type::OBJECT:
      for (simdjson::dom::key_value_pair field : simdjson::dom::object(element)) {
        tally->Sum += double(field.key.size());
        vWalk(field.value, tally);
      }
      break;
    case simdjson::dom::element_type::DOUBLE:
      tally->Sum += double(element);
      break;
    case simdjson::dom::element_type::INT64:
      tally->Sum += double(int64_t(element));
      break;
    case simdjson::dom::element_type::UINT64:
      tally->Sum += double(uint64_t(element));
      break;
    case simdjson::dom::element_type::STRING:
      tally->Sum += double(std::string_view(element).size());
      break;
    case simdjson::dom::element_type::BOOL:
      tally->Sum += bool(element) ? 1.0 : 0.0;
      break;
    case simdjson::dom::element_type::NULL_VALUE:
      break;
  }
}

bool boParse(const std::string& design, Timing* timing, size_t* values) {
  const double wall = dWallNow();
  const double cpu = dCpuNow();
  simdjson::padded_string text;
  if (simdjson::padded_string::load(design).get(text) != simdjson::SUCCESS) return false;
  simdjson::dom::parser parser;
  simdjson::dom::element root;
  if (parser.parse(text).get(root) != simdjson::SUCCESS) return false;
  Tally tally;
  vWalk(root, &tally);
  timing->Wall = dWallNow() - wall;
  timing->Cpu = dCpuNow() - cpu;
  *values = tally.Values;
  // The sum keeps the walk from being left out.
  if (tally.Sum == 0.123456789) std::printf(" ");
  return true;
}

// ---- The save alone ----

bool boSave(RmModel* model, const std::string& path, Timing* timing) {
  const double wall = dWallNow();
  const double cpu = dCpuNow();
  const bool saved = boRmModelWrite(model, path.c_str());
  timing->Wall = dWallNow() - wall;
  timing->Cpu = dCpuNow() - cpu;
  return saved;
}

// ---- The report ----

void vPrintTiming(const char* name, const Timing& timing) {
  std::printf("%-24s %9.0f ms wall %9.0f ms CPU\n", name, timing.Wall * 1e3, timing.Cpu * 1e3);
}

double dMegabytes(double bytes) { return bytes / 1e6; }

struct Options {
  int Sections = BenchDesignShape{}.Sections;
  int Runs = 3;
  std::string Settings = KVRVIPS_BENCH_SETTINGS;
  std::string Folder = ".";
};

bool boReadOptions(int argc, char** argv, Options* options) {
  for (int i = 1; i < argc; ++i) {
    const std::string word = argv[i];
    const bool hasValue = i + 1 < argc;
    if (word == "--sections" && hasValue) {
      options->Sections = std::atoi(argv[++i]);
    } else if (word == "--runs" && hasValue) {
      options->Runs = std::atoi(argv[++i]);
    } else if (word == "--settings" && hasValue) {
      options->Settings = argv[++i];
    } else if (word.rfind("--", 0) == 0) {
      return false;
    } else {
      options->Folder = word;
    }
  }
  return options->Sections >= 2 && options->Runs >= 1;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc == 5 && std::strcmp(argv[1], "--convert") == 0) {
    return iConvertInThisProcess(argv[2], argv[3], argv[4]);
  }
  Options options;
  if (!boReadOptions(argc, argv, &options)) {
    std::fprintf(stderr,
                 "usage: %s [--sections N] [--settings FILE] [--runs R] [DIR]\n", argv[0]);
    return 2;
  }
  const std::string design = options.Folder + "/bench_design.json";
  const std::string model = options.Folder + "/bench_design.sfi";
  const std::string saved = options.Folder + "/bench_design_saved.sfi";

  std::printf("Generating %s (%d sections) ...\n", design.c_str(), options.Sections);
  BenchDesignShape shape;
  shape.Sections = options.Sections;
  if (!boBenchDesignWrite(design.c_str(), shape)) {
    std::fprintf(stderr, "could not write %s\n", design.c_str());
    return 1;
  }

  Timing conversion{1e30, 1e30};
  long peakKb = 0;
  for (int run = 0; run < options.Runs; ++run) {
    Timing timing;
    long runPeakKb = 0;
    if (!boConvertInChild(design, model, options.Settings, &timing, &runPeakKb)) {
      std::fprintf(stderr, "the conversion failed (see the log beside %s)\n", design.c_str());
      return 1;
    }
    conversion = Fastest(conversion, timing);
    peakKb = std::max(peakKb, runPeakKb);
  }

  Timing parse{1e30, 1e30};
  size_t values = 0;
  for (int run = 0; run < options.Runs; ++run) {
    Timing timing;
    if (!boParse(design, &timing, &values)) {
      std::fprintf(stderr, "simdjson could not parse %s\n", design.c_str());
      return 1;
    }
    parse = Fastest(parse, timing);
  }

  RmModel* loaded = RmModelCreate();
  if (!boRmModelLoad(loaded, model.c_str())) {
    std::fprintf(stderr, "could not load %s\n", model.c_str());
    return 1;
  }
  Timing save{1e30, 1e30};
  for (int run = 0; run < options.Runs; ++run) {
    Timing timing;
    if (!boSave(loaded, saved, &timing)) {
      std::fprintf(stderr, "could not save %s\n", saved.c_str());
      return 1;
    }
    save = Fastest(save, timing);
  }
  vRmModelDelete(loaded);

  std::error_code error;
  const double designBytes = double(std::filesystem::file_size(design, error));
  const double modelBytes = double(std::filesystem::file_size(model, error));
  const double peakBytes = double(peakKb) * 1024.0;
  std::printf("\nfastest of %d runs each\n", options.Runs);
  vPrintTiming("conversion", conversion);
  vPrintTiming("parse (simdjson)", parse);
  vPrintTiming("save (boRmModelWrite)", save);
  std::printf("\ndesign document          %.1f MB, %zu JSON values\n", dMegabytes(designBytes),
              values);
  std::printf("model file               %.1f MB\n", dMegabytes(modelBytes));
  std::printf("conversion / (parse + save)  %.2f wall, %.2f CPU (aim at most %.1f)\n",
              conversion.Wall / (parse.Wall + save.Wall), conversion.Cpu / (parse.Cpu + save.Cpu),
              kConversionAim);
  std::printf("peak memory of the conversion  %.1f MB, %.2f times the model file (aim at most"
              " %.1f)\n",
              dMegabytes(peakBytes), modelBytes > 0.0 ? peakBytes / modelBytes : 0.0,
              kMemoryAim);
  std::remove(saved.c_str());
  return 0;
}
