#include <gtest/gtest.h>

#include <string>

#include "base/text.h"
#include "road_model/model/adm_data.h"
#include "road_model/model/model.h"
#include "road_model/model/model_parts.h"
#include "road_model/model/model_scalars.h"
#include "road_model/params/road_dim_params.h"
#include "road_model/params/sect_params.h"
#include "tests/support/model_ptr.h"

TEST(Model, AResetKeepsTheFileNameAndTheGuidAndNothingElse) {
  ModelPtr owner = NewModel();
  RmModel* model = owner.get();
  vRmModelSetFileName(model, "/data/veg.sfi");
  vRmModelSetGuid(model, "{1234}");
  vRmModelSetMarket(model, "Nor");
  vRmModelSetCalcMode(model, 3);
  vRmModelSetCalcModePending(model, 2);
  vRmModelSetWorkArea(model, 1);
  vRmModelSetAdmData(model, RmAdmDataCreate());
  RmModelPrepareRoadDimParams(model);
  RmModelGetSectParams(model)->Interval = 5.0;
  vRmModelSetDirty(model, true);

  vRmModelReset(model);

  EXPECT_STREQ(sRmModelGetFileName(model), "/data/veg.sfi");
  EXPECT_STREQ(sRmModelGetGuid(model), "{1234}");
  EXPECT_STREQ(sRmModelGetMarket(model), "");
  EXPECT_EQ(iRmModelGetCalcMode(model), 1);
  EXPECT_EQ(iRmModelGetCalcModePending(model), kRmPendingNone);
  EXPECT_EQ(iRmModelGetWorkArea(model), 0);
  EXPECT_EQ(model->AdmData, nullptr);
  EXPECT_EQ(model->RoadDimParamsPending, nullptr);
  ASSERT_NE(model->SectParams, nullptr);
  EXPECT_EQ(model->SectParams->Interval, 10.0);
  EXPECT_DOUBLE_EQ(model->SectParams->TightenAngle * 180.0 / 3.14159265358979323846, 5.0);
  EXPECT_EQ(model->Dirty, 0);
  EXPECT_EQ(model->ContainerVersion, -1);
}

TEST(Model, PendingSettingsFollowTheTwoSlotRules) {
  ModelPtr owner = NewModel();
  RmModel* model = owner.get();
  vRmModelSetCalcMode(model, 2);
  // Committing the sentinel leaves the committed value alone.
  vRmModelCommitCalcMode(model);
  EXPECT_EQ(iRmModelGetCalcMode(model), 2);

  EXPECT_EQ(iRmModelPrepareCalcMode(model), 2);
  vRmModelSetCalcModePending(model, 3);
  // A second prepare does not overwrite what is pending.
  EXPECT_EQ(iRmModelPrepareCalcMode(model), 3);
  EXPECT_EQ(iRmModelGetCalcMode(model), 2);
  EXPECT_EQ(iRmModelGetCalcModeEffective(model), 3);
  vRmModelCommitCalcMode(model);
  EXPECT_EQ(iRmModelGetCalcMode(model), 3);
  EXPECT_EQ(iRmModelGetCalcModePending(model), kRmPendingNone);

  vRmModelSetRedundantPointTolPending(model, 0.02);
  vRmModelDiscardRedundantPointTol(model);
  EXPECT_EQ(dRmModelPrepareRedundantPointTol(model), 0.001);
  vRmModelSetRedundantPointTolPending(model, 0.02);
  vRmModelCommitRedundantPointTol(model);
  EXPECT_EQ(dRmModelGetRedundantPointTol(model), 0.02);
  EXPECT_EQ(model->Dirty, 0);  // settings do not mark the model

  vRmModelSetBuildMode(model, 0);
  EXPECT_FALSE(boRmModelIsCalcOrBuildOne(model));
  vRmModelSetBuildModePending(model, 1);
  vRmModelSetTunnelModePending(model, 4);
  vRmModelSetCalcStandardPending(model, 7);
  vRmModelCommitAll(model);
  EXPECT_EQ(iRmModelGetBuildMode(model), 1);
  EXPECT_EQ(iRmModelGetTunnelMode(model), 4);
  EXPECT_EQ(iRmModelGetCalcStandard(model), 7);
  EXPECT_TRUE(boRmModelIsCalcOrBuildOne(model));
}

TEST(Model, APendingObjectIsAPrivateCopyUntilItIsCommitted) {
  ModelPtr owner = NewModel();
  RmModel* model = owner.get();
  vRmSectParamsSetAppLayer(RmModelGetSectParams(model), "Veg");

  // Nothing pending: a commit changes nothing and does not mark the model.
  vRmModelCommitSectParams(model);
  EXPECT_EQ(model->Dirty, 0);
  EXPECT_EQ(RmModelGetSectParamsEffective(model), RmModelGetSectParams(model));

  RmSectParams* pending = RmModelPrepareSectParams(model);
  ASSERT_NE(pending, nullptr);
  EXPECT_EQ(RmModelPrepareSectParams(model), pending);
  EXPECT_EQ(RmModelGetSectParamsEffective(model), pending);
  EXPECT_STREQ(sRmSectParamsGetAppLayer(pending), "Veg");
  pending->Interval = 25.0;
  vRmSectParamsSetAppLayer(pending, "Bru");
  EXPECT_EQ(RmModelGetSectParams(model)->Interval, 10.0);
  EXPECT_STREQ(sRmSectParamsGetAppLayer(RmModelGetSectParams(model)), "Veg");

  uint64_t before = model->ChangeTime;
  vRmModelCommitSectParams(model);
  EXPECT_EQ(RmModelGetSectParams(model), pending);
  EXPECT_EQ(RmModelGetSectParamsPending(model), nullptr);
  EXPECT_EQ(model->DirtySinceLoad, 1);
  EXPECT_GT(model->ChangeTime, before);
  EXPECT_TRUE(boRmModelIsDirty(model));

  // A slot with no committed object prepares an empty one.
  ASSERT_NE(RmModelPrepareRoadDimParams(model), nullptr);
  EXPECT_EQ(RmModelGetRoadDimParams(model), nullptr);
  vRmModelDiscardRoadDimParams(model);
  EXPECT_EQ(RmModelGetRoadDimParamsPending(model), nullptr);

  vRmModelSetDirty(model, false);
  RmModelPrepareRoadDimParams(model)->Speed = 80;
  vRmModelSetCalcModePending(model, 2);
  vRmModelDiscardPending(model);
  EXPECT_EQ(model->RoadDimParamsPending, nullptr);
  EXPECT_EQ(iRmModelGetCalcModePending(model), kRmPendingNone);
  EXPECT_EQ(model->Dirty, 0);
}

TEST(Model, ACopyIsDeepAndTakesPendingSlotsOnlyWhenAsked) {
  ModelPtr source = NewModel();
  vRmModelSetFileName(source.get(), "/data/a.sfi");
  vRmModelSetGuid(source.get(), "{abc}");
  vRmModelSetMarket(source.get(), "Swe");
  source->DataVersion = 12;
  vRmModelSetWorkAreaRange(source.get(), RmChainRange{100.0, 200.0});
  vRmSectParamsSetAppLayer(RmModelGetSectParams(source.get()), "Veg");
  RmAdmData* data = RmAdmDataCreate();
  sHeapSet(&data->Employer, "Kommunen");
  vRmModelSetAdmData(source.get(), data);
  RmModelPrepareRoadDimParams(source.get())->Speed = 60;
  vRmModelSetCalcModePending(source.get(), 2);
  vRmModelSetDirty(source.get(), true);

  ModelPtr plain = NewModel();
  vRmModelSetMarket(plain.get(), "Eng");
  vRmModelCopy(plain.get(), source.get(), false);
  EXPECT_STREQ(sRmModelGetFileName(plain.get()), "/data/a.sfi");
  EXPECT_STREQ(sRmModelGetGuid(plain.get()), "{abc}");
  EXPECT_STREQ(sRmModelGetMarket(plain.get()), "Swe");
  EXPECT_EQ(plain->DataVersion, 12);
  EXPECT_EQ(plain->WorkAreaRange.High, 200.0);
  EXPECT_EQ(plain->Dirty, 1);
  ASSERT_NE(plain->AdmData, nullptr);
  EXPECT_NE(plain->AdmData->Employer, source->AdmData->Employer);
  EXPECT_STREQ(plain->AdmData->Employer, "Kommunen");
  EXPECT_NE(plain->SectParams, source->SectParams);
  EXPECT_STREQ(sRmSectParamsGetAppLayer(plain->SectParams), "Veg");
  EXPECT_EQ(plain->RoadDimParamsPending, nullptr);
  EXPECT_EQ(iRmModelGetCalcModePending(plain.get()), kRmPendingNone);

  ModelPtr full = NewModel();
  vRmModelCopy(full.get(), source.get(), true);
  ASSERT_NE(full->RoadDimParamsPending, nullptr);
  EXPECT_NE(full->RoadDimParamsPending, source->RoadDimParamsPending);
  EXPECT_EQ(full->RoadDimParamsPending->Speed, 60);
  EXPECT_EQ(iRmModelGetCalcModePending(full.get()), 2);

  // A source without section parameters gives a copy without them.
  vRmModelSetSectParams(source.get(), nullptr);
  vRmModelCopy(full.get(), source.get(), true);
  EXPECT_EQ(full->SectParams, nullptr);
}

TEST(Model, IdentityTextsAreCutAndNeverNull) {
  ModelPtr model = NewModel();
  vRmModelSetGuid(model.get(), "{x}");
  vRmModelSetGuid(model.get(), nullptr);
  EXPECT_STREQ(sRmModelGetGuid(model.get()), "");
  EXPECT_EQ(model->Guid, nullptr);

  vRmModelSetMarket(model.get(), "Norwegian market");
  EXPECT_STREQ(sRmModelGetMarket(model.get()), "Norwegian");
  std::string longPath = "/" + std::string(300, 'p');
  vRmModelSetFileName(model.get(), longPath.c_str());
  EXPECT_EQ(std::string(sRmModelGetFileName(model.get())), longPath.substr(0, 256));
  vRmModelSetFileName(model.get(), nullptr);
  EXPECT_STREQ(sRmModelGetFileName(model.get()), "");

  // Operations on a missing model do nothing.
  vRmModelDelete(nullptr);
  vRmModelReset(nullptr);
  EXPECT_EQ(RmModelPrepareSectParams(nullptr), nullptr);
  EXPECT_STREQ(sRmModelGetGuid(nullptr), "");
}
