// The tunnel and ditch sections beyond the round trip of their fixture: which
// object a line reaches, what older files hold, what the writer leaves out,
// and the clipboard pairs.
#include <gtest/gtest.h>

#include <string>

#include "model_file/records/tunnel/tunnel_clipboard.h"
#include "road_model/model/model_parts.h"
#include "road_model/tunnel/ditch_param_data.h"
#include "road_model/tunnel/tunnel_blocks.h"
#include "road_model/tunnel/tunnel_data.h"
#include "road_model/tunnel/tunnel_param_data.h"
#include "tests/support/model_file_text.h"
#include "tests/support/scratch_folder.h"

namespace {

ModelPtr ReadSection(const std::string& name, std::initializer_list<std::string> lines) {
  return ReadModel(sModelHead({"DATAVERSION 13"}, {name}) + "[+O_" + name + "]\r\n" + sCrLf(lines) +
                   "[END]\r\n");
}

ModelPtr ReadFixture() {
  return ReadModel(
      sReadWholeFile(std::string(KVRVIPS_TEST_DATA_DIR) + "/records/tunnel_chain.sfi"));
}

template <typename T>
T* First(const ListHead& head) {
  return ListFirst<T>(&head);
}

}  // namespace

TEST(TunnelRecords, ABlocksLinesReachTheBlockNotTheModelsTunnel) {
  ModelPtr model = ReadFixture();
  ASSERT_NE(model, nullptr);
  const RmTunnelData* tunnel = RmModelGetTunnelData(model.get());
  const RmTunnelBlock* block = First<RmTunnelBlock>(RmModelGetTunnelBlocks(model.get())->Blocks);
  ASSERT_NE(block, nullptr);
  EXPECT_STREQ(block->Name, "Blokk A");
  EXPECT_DOUBLE_EQ(block->TemplateChain, 1250.0);
  const auto* topGroup =
      First<RmTunnelSurfaceGroup>(First<RmTunnelPackage>(tunnel->Packages)->SurfaceGroups);
  const auto* blockGroup =
      First<RmTunnelSurfaceGroup>(First<RmTunnelPackage>(block->Data->Packages)->SurfaceGroups);
  EXPECT_EQ(topGroup->ClipLayer, 22u);
  EXPECT_EQ(blockGroup->ClipLayer, 41u);
  EXPECT_EQ(First<RmTunnelPackage>(tunnel->Packages)->Name[0], '\0');  // written as ""
}

TEST(TunnelRecords, LinesWithoutTheirOpenObjectArePassedOver) {
  ModelPtr model = ReadSection(
      "TUNNELDATA", {" 1 2 3 4 5 6",                      // a row before any group
                     "TOTALWIDTH 9", "CLIPLAYER 5",       // no standard, no group
                     ":TUNNELPACKAGE P", "HANGRADIUS 3",  // a package without a standard
                     ":TUNNELSURFACES 12", "STARTTYPE 1", "STARTPCODE2", "UNKNOWN 4", " 7 1.5"});
  const RmTunnelData* tunnel = RmModelGetTunnelData(model.get());
  ASSERT_NE(tunnel, nullptr);
  const auto* package = First<RmTunnelPackage>(tunnel->Packages);
  EXPECT_EQ(package->Standard, nullptr);
  const auto* group = First<RmTunnelSurfaceGroup>(package->SurfaceGroups);
  EXPECT_EQ(group->ClipLayer, 0u);
  EXPECT_DOUBLE_EQ(group->StartPcode2, -99999.0);
  EXPECT_DOUBLE_EQ(group->StartLayerNoOrExtraLine, -99999.0);
  const auto* row = First<RmTunnelSurfaceRow>(group->Rows);
  ASSERT_NE(row, nullptr);
  EXPECT_EQ(row->Next, nullptr);
  EXPECT_EQ(row->Number, 7);
  EXPECT_DOUBLE_EQ(row->Values[0], 1.5);
  EXPECT_EQ(row->Marks[1], 0);
  // Without a tunnel section or rotation the data is not written again.
  EXPECT_EQ(sSectionBody(sWrittenModel(model.get()), "TUNNELDATA"), "<none>");

  ModelPtr params = ReadSection(
      "TUNNELPARAMDATA", {":TUNNELPARAMRANGE 1 2",  // no layer
                          ":TUNNELPARAMLAYERS 12", "TYPE 4", ":TUNNELPARAMRANGE 1 2", "FLATROOF 1",
                          ":TUNNELPARAMINFO", "FLATROOF 1", "RIGHTWALLROTATIONPCODES 5"});
  const auto* layer = First<RmTunnelParamLayer>(RmModelGetTunnelParamData(params.get())->Layers);
  const auto* range = First<RmTunnelParamRange>(layer->Ranges);
  EXPECT_EQ(range->Next, nullptr);
  EXPECT_EQ(range->Type, 0);
  ASSERT_NE(range->Info, nullptr);
  EXPECT_EQ(range->Info->FlatRoof, 1);
  EXPECT_EQ(range->Info->RightWallRotationPcodes[0], 5);
}

TEST(TunnelRecords, BlocksWithoutDataAreNotWritten) {
  ModelPtr model = NewModel();
  RmTunnelBlocks* blocks = RmModelGetTunnelBlocks(model.get());
  ASSERT_NE(blocks, nullptr);  // every model has them
  RmTunnelBlockAdd(blocks, "Tom");
  RmTunnelBlock* block = RmTunnelBlockAdd(blocks, "Full");
  block->Data = RmTunnelDataCreate();
  RmTunnelBlockInsertAdd(blocks, 10.0, "Full");
  std::string file = sWrittenModel(model.get());
  EXPECT_EQ(sSectionBody(file, "TUNNELBLOCKS"), sCrLf({":TUNNELBLOCK Full", "TEMPLATECHAIN 0.0000",
                                                       "INTERPOLMETHOD 0", "ROADBEDLAYERNO 0"}));
  EXPECT_EQ(sSectionBody(file, "TUNNELBLOCKINSERTS"), sCrLf({":BLOCKINSERT 10.0000 Full"}));
}

TEST(DitchRecords, TheRockBackfillFollowsTheBackfillUnlessItDiffers) {
  ModelPtr model = ReadSection("DITCHPARAMDATA", {":DITCHPARAMS", "DESIGNBACKFILL 3"});
  const RmDitchParamData* ditch = RmModelGetDitchParamData(model.get());
  ASSERT_NE(ditch, nullptr);
  EXPECT_EQ(ditch->DesignBackfillRock, 3);
  std::string body = sSectionBody(sWrittenModel(model.get()), "DITCHPARAMDATA");
  EXPECT_NE(body.find("DESIGNBACKFILL 3\r\nHEIGHTBACKFILL"), std::string::npos);
  // Neither the offset record nor the clip and trim layers were set.
  EXPECT_EQ(body.find("OFFSETCL"), std::string::npos);
  EXPECT_EQ(body.find("CLIPLAYER"), std::string::npos);

  ModelPtr rock = ReadSection("DITCHPARAMDATA", {"DESIGNBACKFILL_ROCK 1", "DESIGNBACKFILL 3"});
  EXPECT_EQ(RmModelGetDitchParamData(rock.get())->DesignBackfillRock, 3);
}

TEST(DitchRecords, OlderFilesFillTheTablesFromSingleValues) {
  ModelPtr model =
      ReadSection("DITCHPARAMDATA", {":DITCHPARAMS", "DISTLEFTWALL 0.3", "DISTRIGHTWALL 0.4",
                                     "THICKNESSFOUNDATION 0.15", "OFFSETCL_PIPETYPE 2"});
  const RmDitchParamData* ditch = RmModelGetDitchParamData(model.get());
  const auto* space = First<RmDitchPipeSpace>(ditch->PipeSpaces);
  ASSERT_NE(space, nullptr);
  EXPECT_EQ(space->Next, nullptr);
  EXPECT_DOUBLE_EQ(space->LeftWall, 0.3);
  EXPECT_DOUBLE_EQ(space->RightWall, 0.4);
  EXPECT_DOUBLE_EQ(First<RmDitchPipeFoundation>(ditch->PipeFoundations)->Values[0], 0.15);
  EXPECT_TRUE(ditch->HasOffsetCl);
  EXPECT_NE(sSectionBody(sWrittenModel(model.get()), "DITCHPARAMDATA")
                .find("SPACEFORPIPEDIMENSION 0.3000 0.4000\r\nSPACEREFLINE 0\r\n"
                      "FOUNDATIONFORPIPEDIMENSION 0.1500 0.0000 0.0000\r\n"),
            std::string::npos);
}

TEST(TunnelClipboard, TunnelDataAndBlocksComeBackFromTheClipboard) {
  ModelPtr model = ReadFixture();
  ASSERT_TRUE(boRmTunnelDataCopy(RmModelGetTunnelData(model.get())));
  RmTunnelData* pasted = RmTunnelDataPaste();
  ASSERT_NE(pasted, nullptr);
  ModelPtr target = NewModel();
  vRmModelSetTunnelData(target.get(), pasted);

  ASSERT_TRUE(boRmTunnelBlocksCopy(RmModelGetTunnelBlocks(model.get())));
  EXPECT_EQ(RmTunnelDataPaste(), nullptr);  // the clipboard holds blocks now
  ASSERT_TRUE(boRmTunnelBlocksPaste(RmModelGetTunnelBlocks(target.get())));

  std::string from = sWrittenModel(model.get());
  std::string to = sWrittenModel(target.get());
  EXPECT_EQ(sSectionBody(to, "TUNNELDATA"), sSectionBody(from, "TUNNELDATA"));
  EXPECT_EQ(sSectionBody(to, "TUNNELBLOCKS"), sSectionBody(from, "TUNNELBLOCKS"));
}
