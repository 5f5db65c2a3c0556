#include <gtest/gtest.h>

#ifndef _WIN32
#include <signal.h>
#include <sys/resource.h>
#endif

#include <filesystem>
#include <string>
#include <vector>

#include "base/file_times.h"
#include "base/paths.h"
#include "model_file/records/frame/model_load.h"
#include "model_file/records/frame/model_save.h"
#include "model_file/records/frame/model_write.h"
#include "road_model/model/model_scalars.h"
#include "road_model/params/road_dim_params.h"
#include "road_model/params/sect_params.h"
#include "road_model/params/sect_triangulation_params.h"
#include "tests/support/scratch_folder.h"
#include "tests/support/captured_messages.h"
#include "tests/support/model_file_text.h"

namespace {

// A model with something in it that a test can recognise afterwards.
ModelPtr MarkedModel(const char* market) {
  ModelPtr model = NewModel();
  vRmModelSetMarket(model.get(), market);
  vRmModelSetCalcMode(model.get(), 3);
  return model;
}

// The names in a folder that begin with "$$$_".
int iTemporaryFiles(const std::string& folder) {
  int count = 0;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    if (entry.path().filename().string().rfind("$$$_", 0) == 0) ++count;
  }
  return count;
}

#ifndef _WIN32
// Limits the size of files that the process may write while it lives, so
// that a write fails as on a full disk, whoever runs the test.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t bytes) {
    previousSignal_ = signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &previous_);
    rlimit limit = previous_;
    limit.rlim_cur = bytes;
    active_ = setrlimit(RLIMIT_FSIZE, &limit) == 0;
  }
  ~FileSizeLimit() {
    setrlimit(RLIMIT_FSIZE, &previous_);
    signal(SIGXFSZ, previousSignal_);
  }
  bool active() const { return active_; }

 private:
  rlimit previous_{};
  void (*previousSignal_)(int);
  bool active_ = false;
};
#endif

// What each flush of a save found on the disk: the flushed file's bytes and
// the target's at that moment.
struct Flush {
  bool directory;
  std::string path, bytes, target;
};
std::vector<Flush> flushes;
std::string flushTarget;
bool flushFails = false;
PlatformFlushHandler formerFlush = nullptr;

bool boWatchFlush(const char* path, bool directory) {
  flushes.push_back({directory, path, directory ? "" : sReadWholeFile(path),
                     sReadWholeFile(flushTarget)});
  return !flushFails && formerFlush(path, directory);
}

// Notes the flushes while it lives, and fails them or hands them on.
struct FlushWatch {
  FlushWatch(const std::string& target, bool fail) {
    flushes.clear();
    flushTarget = target;
    flushFails = fail;
    formerFlush = pfnPlatformSetFlushHandler(&boWatchFlush);
  }
  ~FlushWatch() { pfnPlatformSetFlushHandler(formerFlush); }
};

}  // namespace

TEST(ModelLoad, ReadsTheFileAndRecordsWhereItCameFrom) {
  ScratchFolder folder;
  ModelPtr model = MarkedModel("Nor");
  vRmModelSetGuid(model.get(), "{guid}");
  std::string path = folder / "veg.sfi";
  ASSERT_TRUE(boRmModelWrite(model.get(), path.c_str()));
  int64_t writeTime = 0;
  ASSERT_TRUE(boFileGetTime(path.c_str(), &writeTime));

  ModelPtr loaded = NewModel();
  vRmModelSetGuid(loaded.get(), "{old}");
  vRmModelSetCalcStandard(loaded.get(), 9);
  vRmModelSetDirty(loaded.get(), true);
  ASSERT_TRUE(boRmModelLoad(loaded.get(), path.c_str()));
  EXPECT_STREQ(sRmModelGetFileName(loaded.get()), sPathFull(path.c_str()));
  EXPECT_STREQ(sRmModelGetMarket(loaded.get()), "Nor");
  EXPECT_STREQ(sRmModelGetGuid(loaded.get()), "{guid}");
  EXPECT_EQ(loaded->CalcMode, 3);
  EXPECT_EQ(loaded->CalcStandard, 0);
  EXPECT_EQ(loaded->DataVersion, 13);
  EXPECT_EQ(loaded->ContainerVersion, 2);
  EXPECT_EQ(loaded->FileTime, static_cast<uint64_t>(writeTime));
  EXPECT_GT(loaded->ChangeTime, 0u);
  EXPECT_EQ(loaded->Dirty, 0);

  // A file without GUID keeps the model's.
  vRmModelSetGuid(model.get(), nullptr);
  ASSERT_TRUE(boRmModelWrite(model.get(), path.c_str()));
  ASSERT_TRUE(boRmModelLoad(loaded.get(), path.c_str()));
  EXPECT_STREQ(sRmModelGetGuid(loaded.get()), "{guid}");

  // The older container format is read as well.
  vWriteWholeFile(folder / "old.sfi", "[HEAD]\r\nFILETYPE sfi\r\nDATAVERSION 5\r\n"
                                      "[MASSCALC]\r\nCALCMODE 0\r\nROADTYPE 4\r\n");
  ASSERT_TRUE(boRmModelLoad(loaded.get(), (folder / "old.sfi").c_str()));
  EXPECT_EQ(loaded->ContainerVersion, 1);
  EXPECT_EQ(loaded->DataVersion, 5);
  EXPECT_EQ(loaded->CalcMode, 0);
  EXPECT_EQ(loaded->RoadType, 4);
}

TEST(ModelLoad, FilesThatCannotBeReadLeaveTheModelAsItWas) {
  ScratchFolder folder;
  CapturedMessages messages;
  ModelPtr model = MarkedModel("Eng");
  vRmModelSetFileName(model.get(), "/keep/this.sfi");
  auto expectUnchanged = [&](const std::string& what) {
    EXPECT_STREQ(sRmModelGetMarket(model.get()), "Eng") << what;
    EXPECT_EQ(model->CalcMode, 3) << what;
    EXPECT_STREQ(sRmModelGetFileName(model.get()), "/keep/this.sfi") << what;
  };

  EXPECT_FALSE(boRmModelLoad(model.get(), (folder / "missing.sfi").c_str()));
  expectUnchanged("missing");
  EXPECT_FALSE(boRmModelLoad(model.get(), nullptr));
  EXPECT_FALSE(boRmModelLoad(model.get(), ""));
  EXPECT_FALSE(boRmModelLoad(model.get(), folder.path().c_str()));
  expectUnchanged("folder");

  std::string complete = sWrittenModel(MarkedModel("Swe").get());
  vWriteWholeFile(folder / "cut.sfi", complete.substr(0, complete.size() - 7));
  EXPECT_FALSE(boRmModelLoad(model.get(), (folder / "cut.sfi").c_str()));
  expectUnchanged("cut short");

  std::string otherType = complete;
  otherType.replace(otherType.find("_FILETYPE sfi"), 13, "_FILETYPE rfi");
  vWriteWholeFile(folder / "other.sfi", otherType);
  EXPECT_FALSE(boRmModelLoad(model.get(), (folder / "other.sfi").c_str()));
  expectUnchanged("other type");
  EXPECT_TRUE(messages.texts().empty());

  // The type compares without regard to case.
  otherType.replace(otherType.find("_FILETYPE rfi"), 13, "_FILETYPE SFI");
  vWriteWholeFile(folder / "upper.sfi", otherType);
  EXPECT_TRUE(boRmModelLoad(model.get(), (folder / "upper.sfi").c_str()));
  EXPECT_STREQ(sRmModelGetMarket(model.get()), "Swe");
}

TEST(ModelLoad, AFileOfALaterVersionIsRefusedWithAMessage) {
  ScratchFolder folder;
  std::string bytes = sWrittenModel(MarkedModel("Swe").get());
  std::string path = folder / "new.sfi";
  bytes.replace(bytes.find("DATAVERSION 13"), 14, "DATAVERSION 14");
  vWriteWholeFile(path, bytes);

  CapturedMessages messages;
  ModelPtr model = MarkedModel("Eng");
  EXPECT_FALSE(boRmModelLoad(model.get(), path.c_str()));
  ASSERT_EQ(messages.texts().size(), 1u);
  EXPECT_EQ(messages.texts()[0],
            "Can't read file \"" + std::string(sPathFull(path.c_str())) +
                "\". Too new version (14)");
  EXPECT_STREQ(sRmModelGetMarket(model.get()), "Eng");
  EXPECT_EQ(RmModelOpenFile(model.get(), path.c_str()), nullptr);
  EXPECT_EQ(messages.texts().size(), 2u);

  // Version 13 and a file without a version are read.
  bytes.replace(bytes.find("DATAVERSION 14"), 14, "DATAVERSION 13");
  vWriteWholeFile(path, bytes);
  EXPECT_TRUE(boRmModelLoad(model.get(), path.c_str()));
  bytes.replace(bytes.find("DATAVERSION 13\r\n"), 16, "");
  vWriteWholeFile(path, bytes);
  EXPECT_TRUE(boRmModelLoad(model.get(), path.c_str()));
  EXPECT_EQ(model->DataVersion, 0);
  EXPECT_EQ(messages.texts().size(), 2u);
}

TEST(ModelSave, ASaveReplacesTheTargetWithACompleteFile) {
  ScratchFolder folder;
  std::string path = folder / "veg.sfi";
  vWriteWholeFile(path, "old content");
  ModelPtr model = MarkedModel("Nor");
  vRmModelSetDirty(model.get(), true);

  ASSERT_TRUE(boRmModelSave(model.get(), path.c_str()));
  EXPECT_EQ(sReadWholeFile(path), sWrittenModel(model.get()));
  EXPECT_STREQ(sRmModelGetFileName(model.get()), path.c_str());
  EXPECT_EQ(model->Dirty, 0);
  EXPECT_EQ(model->DirtySinceLoad, 0);
  int64_t writeTime = 0;
  ASSERT_TRUE(boFileGetTime(path.c_str(), &writeTime));
  EXPECT_EQ(model->FileTime, static_cast<uint64_t>(writeTime));
  EXPECT_EQ(iTemporaryFiles(folder.path()), 0);

  // Without a path the model's own file name is the target.
  vRmModelSetCalcMode(model.get(), 0);
  ASSERT_TRUE(boRmModelSave(model.get(), nullptr));
  EXPECT_NE(sReadWholeFile(path).find("CALCMODE 0\r\n"), std::string::npos);

  ModelPtr unnamed = NewModel();
  EXPECT_FALSE(boRmModelSave(unnamed.get(), nullptr));
}

// A save that fails, in the writing (as on a full disk) or in the flush,
// leaves the old file as it was and the model dirty; a failed flush also
// takes its temporary file away.
TEST(ModelSave, ASaveThatFailsLeavesTheOldFileAsItWas) {
  for (bool failedFlush : {false, true}) {
#ifdef _WIN32
    if (!failedFlush) continue;  // Windows has no limit of a process's file sizes
#endif
    ScratchFolder folder;
    std::string path = folder / "veg.sfi";
    ModelPtr model = MarkedModel("Nor");
    ASSERT_TRUE(boRmModelSave(model.get(), path.c_str()));
    std::string before = sReadWholeFile(path);
    vRmModelSetMarket(model.get(), "Swe");
    vRmModelSetDirty(model.get(), true);
    if (failedFlush) {
      FlushWatch watch(path, true);
      EXPECT_FALSE(boRmModelSave(model.get(), nullptr));
      EXPECT_EQ(flushes.size(), 1u);
      EXPECT_EQ(iTemporaryFiles(folder.path()), 0);
    } else {
#ifndef _WIN32
      FileSizeLimit limit(200);
      ASSERT_TRUE(limit.active());
      EXPECT_FALSE(boRmModelSave(model.get(), nullptr));
#endif
    }
    EXPECT_EQ(sReadWholeFile(path), before) << failedFlush;
    EXPECT_EQ(model->Dirty, 1) << failedFlush;
  }
  // A write that fails only when the last buffered bytes go out counts.
  ModelPtr model = MarkedModel("Nor");
  if (boFileExists("/dev/full")) {
    EXPECT_FALSE(boRmModelWrite(model.get(), "/dev/full"));
  }
}

TEST(ModelSave, TheTemporaryFileIsFlushedWholeBeforeItTakesTheTargetsPlace) {
  ScratchFolder folder;
  std::string path = folder / "veg.sfi";
  vWriteWholeFile(path, "old content");
  ModelPtr model = MarkedModel("Nor");
  FlushWatch watch(path, false);
  ASSERT_TRUE(boRmModelSave(model.get(), path.c_str()));

  const std::string written = sWrittenModel(model.get());
  ASSERT_EQ(flushes.size(), 2u);
  const auto& file = flushes[0];
  EXPECT_FALSE(file.directory);
  const std::string prefix = std::filesystem::path(folder / "$$$_").make_preferred().string();
  EXPECT_EQ(file.path.rfind(prefix, 0), 0u) << file.path;
  EXPECT_EQ(file.bytes, written);
  EXPECT_EQ(file.target, "old content");
  // The folder follows the move.
  const auto& directory = flushes[1];
  EXPECT_TRUE(directory.directory);
  EXPECT_EQ(directory.path, folder.path());
  EXPECT_EQ(directory.target, written);
}

TEST(ModelSave, ASaveToANewPathTakesTheNameEvenWhenItFails) {
  ScratchFolder folder;
  // A regular file stands where the target's folder should be, so no
  // temporary file can be made there.
  vWriteWholeFile(folder / "blocker", "not a folder");
  std::string path = folder / "blocker/veg.sfi";
  ModelPtr model = MarkedModel("Nor");
  vRmModelSetFileName(model.get(), (folder / "elsewhere.sfi").c_str());
  EXPECT_FALSE(boRmModelSave(model.get(), path.c_str()));
  EXPECT_STREQ(sRmModelGetFileName(model.get()), path.c_str());
  EXPECT_FALSE(boFileExists((folder / "elsewhere.sfi").c_str()));
}
