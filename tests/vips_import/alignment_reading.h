// What the tests of the alignment import share: designs built in memory,
// a log that can be read back, and models that delete themselves.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "design_model/design_model_builder.h"
#include "model_file/records/frame/model_load.h"
#include "road_model/model/model.h"
#include "tests/support/model_file_text.h"
#include "tests/support/scratch_folder.h"


// The model loaded from this file; a failed load fails the test.
inline ModelPtr Loaded(const std::string& modelFile) {
  ModelPtr model(RmModelCreate());
  EXPECT_TRUE(boRmModelLoad(model.get(), modelFile.c_str())) << modelFile;
  return model;
}

// A horizontal element from (x0, y0) at `startChain` to (x1, y1) at
// `endChain`, with the radii at both ends and the clothoid parameter.
inline void vAddElement(NpDesignModel::AlignmentRecord& alignment, double startChain,
                        double endChain, double x0, double y0, double x1, double y1,
                        double startRadius = 0.0, double endRadius = 0.0, double a = 0.0) {
  NpDesignModel::HorizontalLineElementRecord& element =
      alignment.horizontalLineElements.emplace_back();
  element.elementNo = static_cast<int32_t>(alignment.horizontalLineElements.size());
  element.startChainage = startChain;
  element.endChainage = endChain;
  element.startEast = x0;
  element.startNorth = y0;
  element.endEast = x1;
  element.endNorth = y1;
  element.startRadius = startRadius;
  element.endRadius = endRadius;
  element.clothoidParameter = a;
}

inline void vAddAnglePoint(NpDesignModel::AlignmentRecord& alignment, double chain,
                           double elevation, double radius = 0.0) {
  NpDesignModel::VerticalLineAnglePointRecord& point =
      alignment.verticalLineAnglePoints.emplace_back();
  point.chainage = chain;
  point.elevation = elevation;
  point.radius = radius;
}

inline void vAddElevationDifference(NpDesignModel::InDataRecord& input, double from, double to,
                                    double difference) {
  NpDesignModel::ElevationDifferenceRecord& row = input.elevationDifferences.emplace_back();
  row.fromChainage = from;
  row.toChainage = to;
  row.difference = difference;
}

#ifdef _WIN32
// A log kept in a file of a scratch folder (Windows has no memory stream),
// whose text can be read at any time.
class LogStream {
 public:
  LogStream() : file_(std::fopen((folder_ / "log").c_str(), "w+b")) {}
  ~LogStream() {
    if (file_) std::fclose(file_);
  }
  LogStream(const LogStream&) = delete;
  LogStream& operator=(const LogStream&) = delete;

  std::FILE* get() const { return file_; }

  // Everything written so far.
  std::string Text() const {
    if (file_) std::fflush(file_);
    return sReadWholeFile(folder_ / "log");
  }

 private:
  ScratchFolder folder_;
  std::FILE* file_;
};
#else
// A log kept in memory, whose text can be read at any time.
class LogStream {
 public:
  LogStream() : file_(open_memstream(&buffer_, &size_)) {}
  ~LogStream() {
    if (file_) std::fclose(file_);
    std::free(buffer_);
  }
  LogStream(const LogStream&) = delete;
  LogStream& operator=(const LogStream&) = delete;

  std::FILE* get() const { return file_; }

  // Everything written so far.
  std::string Text() const {
    if (file_) std::fflush(file_);
    return buffer_ ? std::string(buffer_, size_) : std::string();
  }

 private:
  char* buffer_ = nullptr;
  size_t size_ = 0;
  std::FILE* file_;
};
#endif
