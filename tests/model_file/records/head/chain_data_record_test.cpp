// CHAINDATA beyond the round trip of its fixture: what the writer leaves out
// and cuts, and how the reader treats records out of their place.
#include <gtest/gtest.h>

#include <string>

#include "road_model/chain_data/chain_data.h"
#include "road_model/model/model_parts.h"
#include "tests/support/model_file_text.h"

namespace {

ModelPtr ReadChainData(std::initializer_list<std::string> lines) {
  return ReadModel(sModelHead({"DATAVERSION 13"}, {"CHAINDATA"}) + "[+O_CHAINDATA]\r\n" +
                   sCrLf(lines) + "[END]\r\n");
}

std::string sWrittenChainData(const RmModel* model) {
  return sSectionBody(sWrittenModel(model), "CHAINDATA");
}

}  // namespace

TEST(ChainDataRecord, SettingsAtTheirDefaultsAndLinesWithoutRowsAreLeftOut) {
  ModelPtr model = NewModel();
  RmChainData* data = RmChainDataCreate();
  vRmModelSetChainData(model.get(), data);
  RmChainDataLine* empty = RmChainDataLineAdd(data, nullptr, 101, 0);
  EXPECT_EQ(sWrittenChainData(model.get()), sCrLf({"MAXCLDEVIATION 0.0500"}));

  data->CorridorWidth = 0.000001;
  data->ExpandEnd = 0.5;
  vRmChainDataLineRemove(data, empty);
  EXPECT_EQ(sWrittenChainData(model.get()), "<none>");  // no line at all
  RmChainDataLineAdd(data, nullptr, 7, 0);
  EXPECT_EQ(sWrittenChainData(model.get()),
            sCrLf({"MAXCLDEVIATION 0.0500", "EXPANDSTARTEND 0.0000 0.5000"}));
}

TEST(ChainDataRecord, LongCodesAndFieldsAreCut) {
  ModelPtr model = NewModel();
  RmChainData* data = RmChainDataCreate();
  vRmModelSetChainData(model.get(), data);
  RmChainDataLine* line = RmChainDataLineAdd(data, nullptr, 3, 20);
  RmChainDataRow* row = RmChainDataRowAdd(line);
  std::memcpy(row->Code, "ABCDEFGHIJKL", 12);  // fills the array, no end
  for (int i = 0; i < 20; ++i)
    vRmChainDataRowSetField(line, row, i, std::string(39, 'a' + i).c_str());

  std::string body = sWrittenChainData(model.get());
  EXPECT_NE(body.find("CHAIN 0.0000 0.000 0.000 0.000 \"ABCDEFGHIJK\" 0.0000\r\n"),
            std::string::npos);
  size_t fields = body.find("FIELDS ");
  ASSERT_NE(fields, std::string::npos);
  EXPECT_EQ(body.find("\r\n", fields) - fields, 615u);
}

TEST(ChainDataRecord, ReadingKeepsTwelveCharacterCodesToElevenAndDefaults) {
  ModelPtr model = ReadChainData(
      {":CHAINDATALINE 5 3 0", "CHAIN 1 2 3 4 ABCDEFGHIJKL 5", "FIELDS \"\" b", "EXACT3DMODE"});
  const RmChainData* data = RmModelGetChainData(model.get());
  ASSERT_NE(data, nullptr);
  EXPECT_DOUBLE_EQ(data->MaxClDeviation, 0.05);
  EXPECT_EQ(data->Exact3dMode, 0u);
  const auto* line = ListFirst<RmChainDataLine>(&data->Lines);
  const auto* row = ListFirst<RmChainDataRow>(&line->Rows);
  EXPECT_STREQ(row->Code, "ABCDEFGHIJK");
  EXPECT_DOUBLE_EQ(row->Value, 5.0);
  // The empty field still takes its place.
  EXPECT_STREQ(sRmChainDataRowGetField(line, row, 0), "");
  EXPECT_STREQ(sRmChainDataRowGetField(line, row, 1), "b");
}

TEST(ChainDataRecord, RecordsOutOfTheirPlaceAreDropped) {
  ModelPtr model = ReadChainData(
      {"CHAIN 1 0 0 0 a 0",                         // before any line
       ":CHAINDATALINE 5 1 0", "OFFS 1 2 3 4 5 6",  // before any row: ends the line
       "CHAIN 2 0 0 0 b 0",                         // so this row has no line
       ":CHAINDATALINE 6 1 0", "CHAIN 3 0 0 0 c 0", "NONSENSE 1", "OFFS 1 2", "FIELDS x y"});
  const RmChainData* data = RmModelGetChainData(model.get());
  const auto* first = ListFirst<RmChainDataLine>(&data->Lines);
  EXPECT_EQ(first->Rows.first, nullptr);
  const auto* second = first->Next;
  ASSERT_NE(second, nullptr);
  const auto* row = ListFirst<RmChainDataRow>(&second->Rows);
  ASSERT_NE(row, nullptr);
  EXPECT_EQ(row->Next, nullptr);
  EXPECT_STREQ(row->Code, "c");
  EXPECT_FLOAT_EQ(row->OffsRight, 2.0f);
  EXPECT_FLOAT_EQ(row->Offs[0], 0.0f);  // a short record reads as zeros
  EXPECT_STREQ(sRmChainDataRowGetField(second, row, 0), "x");
}
