// Reading containers: both formats, section lookup, long lines, refusals.
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "model_file/container/asf_file.h"
#include "model_file/container/asf_handle.h"
#include "model_file/container/asf_sections.h"
#include "tests/model_file/container/asf_test_util.h"
#include "tests/support/scratch_folder.h"

namespace {

using Lines = std::vector<std::string>;

std::string Join(const Lines& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\r\n";
  return text;
}

std::vector<double> Extent(const AsfExtent* extent) {
  return {extent->dMinX, extent->dMinY, extent->dMaxX, extent->dMaxY};
}

// The keys of the file's head or of a section as "NAME=value", in order.
std::vector<std::string> Keys(AsfFile* file, AsfSection* section) {
  std::vector<std::string> keys;
  const char* name;
  const char* value;
  for (int i = 0; boAsfKeyAt(file, section, i, &name, &value); ++i) {
    keys.push_back(std::string(name) + "=" + value);
  }
  EXPECT_STREQ(name, "") << "behind the last key";
  return keys;
}

std::vector<std::string> FieldNames(AsfFile* file, AsfSection* section) {
  std::vector<std::string> names;
  const char* name;
  for (int i = 0; boAsfFieldNameAt(file, section, i, &name); ++i) names.emplace_back(name);
  return names;
}

const Lines kHead = {"[KVRFILE_ASCII]", "_VERSION 2", "_FILETYPE sfi", "_INDEX !!!!!!!!!!!!!!!!!!!!"};

}  // namespace

TEST(AsfRead, CurrentFormatWithEmptySectionsInFrontAndBehind) {
  OwnedFile file(AsfFileOpen(FixturePath("current_format.sfi").c_str()));
  ASSERT_NE(file, nullptr);
  EXPECT_STREQ(sAsfFileGetType(file), "sfi");
  EXPECT_EQ(iAsfFileGetVersion(file), 2);
  EXPECT_STREQ(sAsfKeyGetValue(file, nullptr, "DATAVERSION"), "13");
  EXPECT_STREQ(sAsfKeyGetValue(file, nullptr, "MISSING"), "");
  const AsfExtent* extent = AsfExtentGet(file, nullptr);
  EXPECT_EQ(extent->dMinX, 100);
  EXPECT_EQ(extent->dMaxY, 400);

  AsfSection* chain = AsfSectionAt(file, 0);
  ASSERT_NE(chain, nullptr);
  EXPECT_EQ(iAsfSectionGetType(chain), kAsfTypeLine);
  EXPECT_EQ(FieldNames(file, chain), (std::vector<std::string>{"CHAIN", "NAME", "CL"}));
  // The tail check left nothing to match in the line buffer: the body is
  // found by stepping back and scanning.
  EXPECT_TRUE(boAsfSectionFindBody(file, chain));
  EXPECT_EQ(chain->iLine, 16);
  EXPECT_STREQ(file->acLine, "[+L_CHAIN]");

  AsfSection* notes = AsfSectionFind(file, "NOTES", kAsfTypeOther);
  AsfSection* surfaces = AsfSectionFind(file, "SURFGEN", kAsfTypeOther);
  ASSERT_NE(notes, nullptr);
  ASSERT_NE(surfaces, nullptr);
  EXPECT_STREQ(sAsfKeyGetValue(file, surfaces, "BUILD"), "1");
  EXPECT_EQ(SectionLines(file, notes), Lines{});
  EXPECT_EQ(SectionLines(file, surfaces), (Lines{":SURFACES 1", ":SURFACE 2", "0 10 -0.03"}));
  // Once its line is known, finding the section moves the reader back there.
  ASSERT_EQ(AsfSectionFind(file, "SURFGEN", kAsfTypeOther), surfaces);
  EXPECT_EQ(SectionLines(file, surfaces).size(), 3u);

  // The empty point section fails without a scan; the one behind the last
  // body is found in the directory but its body only after a wrap, in vain.
  AsfSection* empty = AsfSectionFind(file, "EMPTY", kAsfTypePoint);
  ASSERT_NE(empty, nullptr);
  int32_t lineBefore = file->pReader->iLine;
  EXPECT_FALSE(boAsfSectionFindBody(file, empty));
  EXPECT_EQ(file->pReader->iLine, lineBefore);
  AsfSection* behind = AsfSectionFind(file, "PAVEMENT", kAsfTypeOther);
  ASSERT_NE(behind, nullptr);
  EXPECT_EQ(SectionLines(file, behind), Lines{});
  EXPECT_EQ(behind->iLine, 0);
  EXPECT_EQ(AsfSectionFind(file, "SURFGEN", kAsfTypeLine), nullptr);
  EXPECT_EQ(AsfSectionAt(file, 5), nullptr);
}

TEST(AsfRead, OlderFormatMakesSectionsFromLayers) {
  OwnedFile file(AsfFileOpen(FixturePath("older_format.sfi").c_str()));
  ASSERT_NE(file, nullptr);
  EXPECT_EQ(iAsfFileGetVersion(file), 1);
  EXPECT_STREQ(sAsfFileGetType(file), "sfi");
  EXPECT_STREQ(sAsfKeyGetValue(file, nullptr, "DESCR"), "Older file");
  EXPECT_STREQ(sAsfKeyGetValue(file, nullptr, "OWNER"), "Road office");
  EXPECT_EQ(AsfExtentGet(file, nullptr)->dMaxY, 60);

  // ROADS holds lines; SIGNS only points and texts, so its line section goes;
  // COMMENTS holds no object and becomes plain text.
  std::vector<std::string> sections;
  for (int i = 0; AsfSectionAt(file, i); ++i) {
    AsfSection* section = AsfSectionAt(file, i);
    sections.push_back(std::to_string(iAsfSectionGetType(section)) + sAsfSectionGetName(section));
  }
  EXPECT_EQ(sections, (std::vector<std::string>{"0ROADS", "1SIGNS", "2SIGNS", "100COMMENTS"}));

  AsfSection* roads = AsfSectionFind(file, "ROADS", kAsfTypeLine);
  EXPECT_EQ(FieldNames(file, roads), (std::vector<std::string>{"NAME", "WIDTH"}));
  EXPECT_EQ(Extent(AsfExtentGet(file, roads)), (std::vector<double>{10, 20, 30, 40}));
  AsfSection* points = AsfSectionFind(file, "SIGNS", kAsfTypePoint);
  AsfSection* texts = AsfSectionFind(file, "SIGNS", kAsfTypeText);
  EXPECT_EQ(FieldNames(file, points), (std::vector<std::string>{"KIND"}));
  EXPECT_EQ(iAsfFieldCount(file, texts), 0);
  EXPECT_EQ(points->iLine, texts->iLine);

  AsfSection* comments = AsfSectionFind(file, "COMMENTS", kAsfTypeOther);
  EXPECT_EQ(SectionLines(file, comments), (Lines{"First comment", "Second comment"}));
}

TEST(AsfRead, RefusesFilesWithoutSectionsOrEnd) {
  ScratchFolder folder;
  // Whether the bytes, written to a file, open.
  auto opensAsFile = [&](const std::string& bytes) {
    vWriteWholeFile(folder / "model.sfi", bytes);
    OwnedFile file(AsfFileOpen((folder / "model.sfi").c_str()));
    return file.get() != nullptr;
  };
  std::string onlyHead = Join(kHead) + "DATAVERSION 13\r\n[END]\r\n";
  EXPECT_EQ(AsfFileOpenMem(onlyHead.data(), onlyHead.size()), nullptr);
  EXPECT_FALSE(opensAsFile(onlyHead));

  std::string cut = Join(kHead) + "[O_A]\r\n[+O_A]\r\nline\r\n";
  EXPECT_FALSE(opensAsFile(cut));
  // Memory is not checked for its tail.
  OwnedFile file(AsfFileOpenMem(cut.data(), cut.size()));
  ASSERT_NE(file, nullptr);
  EXPECT_EQ(SectionLines(file, AsfSectionFind(file, "A", kAsfTypeOther)), Lines{"line"});
  // The tail's last "[" counts, in any case.
  EXPECT_TRUE(opensAsFile(cut + "[end]"));
  EXPECT_FALSE(opensAsFile(cut + "[END]\r\n[\r\n"));

  const std::string refused[] = {"", "[KVRFILE_ASCII", "KVRFILE_ASCII]\r\n[O_A]\r\n",
                                 std::string("\0\x01\xff[O_A]\r\n", 9), "[HEAD]\r\nVERSION 1\r\n"};
  for (const std::string& bytes : refused) {
    EXPECT_EQ(AsfFileOpenMem(bytes.data(), bytes.size()), nullptr) << bytes;
  }
  EXPECT_EQ(AsfFileOpenMem(nullptr, 100), nullptr);
  EXPECT_EQ(AsfFileOpen("/no-such-folder/model.sfi"), nullptr);
  EXPECT_EQ(AsfFileOpen(nullptr), nullptr);
}

TEST(AsfRead, LongHeadLinesAreReadWholeAndBodyLinesAreCut) {
  std::string names;
  for (int i = 0; i < 2500; ++i) names += "FIELD" + std::to_string(1000 + i) + ";";
  std::string longKey(30000, 'k');
  std::string bodyLine(12000, 'b');
  std::string bytes = Join(kHead) + "_FIELDNAMES " + names + "\r\n" + Join({"[L_WIDE]"}) +
                      "_FIELDNAMES " + names + "\r\nLONG " + longKey + "\r\nAFTER 1\r\n" +
                      Join({"[O_TEXT]", "[+O_TEXT]", bodyLine, "next", "[END]"});
  OwnedFile file(AsfFileOpenMem(bytes.data(), bytes.size()));
  ASSERT_NE(file, nullptr);
  // A head line named "_FIELDNAMES" is a head key like any other.
  EXPECT_EQ(strlen(sAsfKeyGetValue(file, nullptr, "_FIELDNAMES")), names.size());
  AsfSection* wide = AsfSectionFind(file, "WIDE", kAsfTypeLine);
  ASSERT_EQ(iAsfFieldCount(file, wide), 2500);
  const char* last;
  boAsfFieldNameAt(file, wide, 2499, &last);
  EXPECT_STREQ(last, "FIELD3499");
  EXPECT_EQ(sAsfKeyGetValue(file, wide, "LONG"), longKey);
  EXPECT_STREQ(sAsfKeyGetValue(file, wide, "AFTER"), "1");
  // The line that ended the directory is back in the line buffer, and the
  // first search takes it at once.
  EXPECT_STREQ(file->acLine, "[+O_TEXT]");
  AsfSection* text = AsfSectionFind(file, "TEXT", kAsfTypeOther);
  Lines lines = SectionLines(file, text);
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_EQ(lines[0], bodyLine.substr(0, 9999));
  EXPECT_EQ(lines[1], "next");

  // The same from a file, whose tail check leaves the line buffer empty.
  OwnedFile fromDisk(AsfFileOpen(FixturePath("long_lines.sfi").c_str()));
  ASSERT_NE(fromDisk, nullptr);
  EXPECT_EQ(strlen(sAsfKeyGetValue(fromDisk, nullptr, "NOTE")), 10500u);
  EXPECT_EQ(iAsfFieldCount(fromDisk, AsfSectionFind(fromDisk, "WIDE", kAsfTypeLine)), 1100);
  EXPECT_EQ(SectionLines(fromDisk, AsfSectionFind(fromDisk, "TEXT", kAsfTypeOther)),
            (Lines{std::string(9999, 't'), "short"}));
}

TEST(AsfRead, DirectoryRulesAndKeyValues) {
  std::string bytes = Join(kHead) +
                      Join({"_EXTENT 1 2 3 4", "lower skipped", "NOTE two\\nlines", "BARE",
                            "[L_A]", "_EXTENT 5 6", "COLOR red", "9 skipped", "[Y_B]",
                            "_EXTENT 1 1 2 2", "[P]", "[+L_A]", "[END]"});
  OwnedFile file(AsfFileOpenMem(bytes.data(), bytes.size()));
  ASSERT_NE(file, nullptr);
  EXPECT_EQ(Keys(file, nullptr), (Lines{"NOTE=two\\nlines", "BARE="}));
  // A section extent with fewer than four numbers resets the file's extent;
  // the section keeps what was read.
  EXPECT_TRUE(AsfExtentGet(file, nullptr)->dMaxX < AsfExtentGet(file, nullptr)->dMinX);
  AsfSection* a = AsfSectionAt(file, 0);
  EXPECT_EQ(Extent(&a->extent),
            (std::vector<double>{5, 6, kAsfExtentEmptyMax, kAsfExtentEmptyMax}));
  EXPECT_EQ(Keys(file, a), Lines{"COLOR=red"});
  // "[P]" has no "_" and ends the directory.
  EXPECT_EQ(AsfSectionAt(file, 2), nullptr);
  EXPECT_EQ(iAsfSectionGetType(AsfSectionAt(file, 1)), kAsfTypePolygon);
}

TEST(AsfRead, SectionsOutOfOrderAreFoundAfterAWrap) {
  std::string bytes = Join(kHead) + Join({"[O_A]", "[O_B]", "[+O_A]", "a1", "a2", "[+O_B]",
                                          "b1", "[END]"});
  OwnedFile file(AsfFileOpenMem(bytes.data(), bytes.size()));
  ASSERT_NE(file, nullptr);
  AsfSection* a = AsfSectionFind(file, "A", kAsfTypeOther);
  AsfSection* b = AsfSectionFind(file, "B", kAsfTypeOther);
  EXPECT_EQ(SectionLines(file, b), Lines{"b1"});
  EXPECT_EQ(SectionLines(file, a), (Lines{"a1", "a2"}));
  EXPECT_EQ(a->iLine, 7);
  EXPECT_EQ(b->iLine, 10);
  // Known lines are gone back to, also after the reader has moved on.
  ASSERT_EQ(AsfSectionFind(file, "B", kAsfTypeOther), b);
  EXPECT_EQ(SectionLines(file, b), Lines{"b1"});
}
