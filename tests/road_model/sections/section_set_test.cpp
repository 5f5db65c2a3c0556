// Section sets: their pools and order, lookups by chainage with their
// tolerances, the work area, copies and comparison, flags, clipping and
// masses, and the two sets as slots of the model.
#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "geometry/line.h"
#include "road_model/model/model.h"
#include "road_model/model/model_parts.h"
#include "road_model/sections/section_cursor.h"
#include "road_model/sections/section_masses.h"
#include "road_model/sections/section_set.h"
#include "road_model/sections/section_work_area.h"
#include "tests/road_model/layer_test_util.h"

namespace {

struct SetDeleter {
  void operator()(RmSectionSet* set) const {
    RmSectionSet* owned = set;
    vRmSectionSetDelete(&owned);
  }
};
using SetPtr = std::unique_ptr<RmSectionSet, SetDeleter>;

// Sections at these chainages, each with a physical layer of two points.
SetPtr MakeSet(std::initializer_list<double> chains) {
  SetPtr set(RmSectionSetCreate());
  for (double chain : chains) {
    RmSection* section = RmSectionAdd(set.get(), nullptr, chain);
    vAddRows(RmLayerAdd(section, RmLayerIdMake(2, 1)), {{-1, chain / 10}, {1, chain / 10}});
  }
  return set;
}

}  // namespace

TEST(SectionSet, SectionsStandInTheOrderTheyWereAddedAndGoBackToThePool) {
  SetPtr set = MakeSet({0.0, 10.0, 10.0});
  RmSection* last = RmSectionsGetLast(set.get());
  RmSectionAdd(set.get(), last, 5.0);
  std::vector<double> chains;
  for (RmSection* section = RmSectionsGetFirst(set.get()); section; section = section->Next) {
    chains.push_back(section->Chain);
  }
  EXPECT_EQ(chains, (std::vector<double>{0, 10, 5, 10}));
  EXPECT_EQ(iRmSectionsGetIndex(set.get(), last), 3);
  EXPECT_EQ(iRmSectionsGetIndex(set.get(), nullptr), -1);

  // Removing nodes only counts them as garbage of the pools.
  EXPECT_EQ(lRmSectionSetGetGarbage(set.get()), 0u);
  RmMassAdd(last, 4);
  vRmSectionRemove(set.get(), last);
  EXPECT_GT(lRmSectionSetGetGarbage(set.get()), sizeof(RmSection));
  EXPECT_EQ(iRmSectionsGetCount(set.get()), 3);

  vRmSectionSetClear(set.get());
  EXPECT_EQ(iRmSectionsGetCount(set.get()), 0);
  EXPECT_EQ(lRmSectionSetGetGarbage(set.get()), 0u);
  // The cleared set takes new sections.
  RmSection* again = RmSectionAdd(set.get(), nullptr, 7.0);
  EXPECT_EQ(RmSectionsGetFirst(set.get()), again);
  EXPECT_EQ(RmSectionsGetLast(set.get()), again);
  vRmSectionRemove(set.get(), again);
  EXPECT_EQ(RmSectionsGetFirst(set.get()), nullptr);

  RmSectionSet* none = nullptr;
  vRmSectionSetDelete(&none);
  EXPECT_FALSE(boRmSectionSetHasLocked(nullptr));
}

TEST(SectionSet, ChainageLookupsUseTheirOwnTolerances) {
  SetPtr set = MakeSet({0.0, 10.0, 20.0});
  RmSection* first = RmSectionsGetFirst(set.get());
  EXPECT_EQ(RmSectionsFindAtChain(first, 0.0004), first);
  EXPECT_EQ(RmSectionsFindAtChain(first, 0.0005), nullptr);
  EXPECT_EQ(RmSectionsFindAtChainInSet(set.get(), 19.9996)->Chain, 20.0);
  EXPECT_EQ(RmSectionsFindAtChain(first->Next->Next, 10.0), nullptr);

  // The nearest, if strictly closer than the limit.
  EXPECT_EQ(RmSectionsFindNearest(first, 14.0, 4.5)->Chain, 10.0);
  EXPECT_EQ(RmSectionsFindNearest(first, 14.0, 4.0), nullptr);
  EXPECT_EQ(RmSectionsFindNearest(first, 15.0, 6.0)->Chain, 10.0);
  EXPECT_EQ(RmSectionsFindNearest(nullptr, 15.0, 6.0), nullptr);

  EXPECT_EQ(RmSectionsFindFirstFrom(set.get(), 10.0)->Chain, 10.0);
  EXPECT_EQ(RmSectionsFindFirstFrom(set.get(), 10.5)->Chain, 20.0);
  EXPECT_EQ(RmSectionsFindFirstFrom(set.get(), 20.5), nullptr);
  EXPECT_EQ(RmSectionsFindLastUpTo(set.get(), 19.5)->Chain, 10.0);
  EXPECT_EQ(RmSectionsFindLastUpTo(set.get(), -0.5), nullptr);
}

// A cursor finds what a walk from the first section finds, in a set out of
// order too, for chainages that rise, repeat and fall back, also when a
// section is added in front of the one found or at the end after a miss.
TEST(SectionSet, CursorLookupsFindWhatAWalkFromTheFirstSectionFinds) {
  SetPtr set = MakeSet({0.0, 10.0, 5.0, 10.0004, 20.0, 15.0});
  RmSectionCursor atCursor;
  RmSectionCursor fromCursor;
  for (double chain : {-1.0, 0.0, 5.0, 10.0, 10.0003, 12.0, 15.0, 15.0, 4.9996, 20.0, 21.0,
                       30.0, 10.0, 40.0}) {
    SCOPED_TRACE(chain);
    EXPECT_EQ(RmSectionCursorFindAtChain(set.get(), &atCursor, chain),
              RmSectionsFindAtChainInSet(set.get(), chain));
    RmSection* from = RmSectionCursorFindFirstFrom(set.get(), &fromCursor, chain);
    ASSERT_EQ(from, RmSectionsFindFirstFrom(set.get(), chain));
    if (!from || from->Chain != chain) RmSectionAdd(set.get(), from, chain);
  }
}

TEST(SectionSet, TheWorkAreaHidesCrossSectionsOutsideItsRange) {
  ModelPtr model(RmModelCreate());
  SetPtr set = MakeSet({100.0, 110.0, 120.0});
  vRmModelSetWorkArea(model.get(), 1);
  vRmModelSetWorkAreaRange(model.get(), {105.0, 115.0});
  RmSection* first = RmSectionsWaGetFirst(model.get(), set.get());
  EXPECT_EQ(first->Chain, 110.0);
  EXPECT_EQ(RmSectionsWaGetNext(model.get(), set.get(), first), nullptr);
  EXPECT_EQ(RmSectionsWaGetPrev(model.get(), set.get(), first), nullptr);
  EXPECT_EQ(iRmSectionsWaGetCount(model.get(), set.get()), 1);
  EXPECT_TRUE(boRmModelHasSectionsBeforeWorkArea(model.get(), set.get()));
  EXPECT_TRUE(boRmModelHasSectionsAfterWorkArea(model.get(), set.get()));

  // Both limits belong to the area.
  vRmModelSetWorkAreaRange(model.get(), {100.0, 120.0});
  EXPECT_EQ(iRmSectionsWaGetCount(model.get(), set.get()), 3);
  EXPECT_FALSE(boRmModelHasSectionsBeforeWorkArea(model.get(), set.get()));
  EXPECT_FALSE(boRmModelHasSectionsAfterWorkArea(model.get(), set.get()));

  // An area without a section: the first lookup may lie beyond the end, and
  // a walk stops at its first step.
  vRmModelSetWorkAreaRange(model.get(), {111.0, 119.0});
  first = RmSectionsWaGetFirst(model.get(), set.get());
  EXPECT_EQ(first->Chain, 120.0);
  EXPECT_EQ(RmSectionsWaGetNext(model.get(), set.get(), first), nullptr);
  EXPECT_EQ(RmSectionsWaGetLast(model.get(), set.get())->Chain, 110.0);

  // Long sections, and a model without a work area, see every section.
  set->Kind = kRmLongSections;
  EXPECT_EQ(RmSectionsWaGetFirst(model.get(), set.get())->Chain, 100.0);
  EXPECT_EQ(iRmSectionsWaGetCount(model.get(), set.get()), 3);
  EXPECT_FALSE(boRmModelHasSectionsBeforeWorkArea(model.get(), set.get()));
  set->Kind = kRmCrossSections;
  vRmModelSetWorkArea(model.get(), 0);
  EXPECT_EQ(RmSectionsWaGetNext(model.get(), set.get(), RmSectionsGetFirst(set.get()))->Chain,
            110.0);
}

TEST(SectionSet, CopiesCompareEqualWithinTheToleranceAndUnderTheFilter) {
  SetPtr from = MakeSet({0.0, 10.0});
  RmSection* section = RmSectionsGetFirst(from.get());
  RmLayerAdd(section, RmLayerIdMake(1, 0));
  RmMass* mass = RmMassAdd(section, 3);
  mass->Area = 2.0;
  mass->ExactLine = LiLineCreate(false);
  LiLineAddP2d(mass->ExactLine, 0, 0);
  section->ClX = 1.0;
  section->TunnelRotation = 4.0;
  vRmSectionSetFlag(section, kRmSectionLocked, true);
  from->Kind = kRmLongSections;

  SetPtr to = MakeSet({50.0});
  vRmSectionSetCopy(to.get(), from.get(), kRmAllLayers);
  EXPECT_EQ(to->Kind, kRmLongSections);
  EXPECT_TRUE(boRmSectionSetsEqual(from.get(), to.get(), kRmAllLayers, 0.0));
  RmSection* copy = RmSectionsGetFirst(to.get());
  EXPECT_EQ(copy->TunnelRotation, 4.0);
  EXPECT_NE(RmMassFind(copy, 3)->ExactLine, mass->ExactLine);
  EXPECT_TRUE(boRmSectionSetHasLocked(to.get()));

  // A difference equal to the tolerance is no difference.
  copy->ClX = 1.5;
  RmMassFind(copy, 3)->Area = 2.25;
  EXPECT_TRUE(boRmSectionSetsEqual(from.get(), to.get(), kRmAllLayers, 0.5));
  EXPECT_FALSE(boRmSectionSetsEqual(from.get(), to.get(), kRmAllLayers, 0.25));
  copy->ClX = 1.0;
  RmMassFind(copy, 3)->Area = 2.0;
  copy->Flags = 0;
  EXPECT_FALSE(boRmSectionSetsEqual(from.get(), to.get(), kRmAllLayers, 1.0));

  // A filtered copy has fewer layers: the sets differ, the sections under
  // the filter do not.
  vRmSectionSetCopy(to.get(), from.get(), RmLayerIdMake(2, -1));
  EXPECT_EQ(iRmSectionLayersGetCount(RmSectionsGetFirst(to.get())), 1);
  EXPECT_FALSE(boRmSectionSetsEqual(from.get(), to.get(), RmLayerIdMake(2, -1), 0.0));
  EXPECT_TRUE(boRmSectionsEqual(RmSectionsGetFirst(from.get()), RmSectionsGetFirst(to.get()),
                                RmLayerIdMake(2, -1), 0.0));
  // Sets of another kind are never equal.
  vRmSectionSetCopy(to.get(), from.get(), kRmAllLayers);
  to->Kind = kRmCrossSections;
  EXPECT_FALSE(boRmSectionSetsEqual(from.get(), to.get(), kRmAllLayers, 0.0));
}

TEST(SectionSet, ClipDistancesAreSignedOnTheLeftAndSwitchedByTheirFlags) {
  SetPtr set = MakeSet({0.0});
  RmSection* section = RmSectionsGetFirst(set.get());
  double dist = 0.0;
  EXPECT_FALSE(boRmSectionGetClipDist(section, 1, &dist));
  vRmSectionSetClipDist(section, 1, true, 12.5);
  EXPECT_TRUE(boRmSectionGetClipDist(section, 1, &dist));
  EXPECT_EQ(dist, 12.5);
  EXPECT_EQ(section->LClipDist, -12.5f);
  vRmSectionSetClipDist(section, 2, true, 3.25);
  EXPECT_TRUE(boRmSectionGetClipDist(section, 2, &dist));
  EXPECT_EQ(dist, 3.25);
  EXPECT_EQ(section->Flags, kRmSectionLeftClip | kRmSectionRightClip);
  vRmSectionSetClipDist(section, 1, false, 12.5);
  EXPECT_FALSE(boRmSectionGetClipDist(section, 1, &dist));
  EXPECT_FALSE(boRmSectionGetClipDist(section, 3, &dist));
  EXPECT_TRUE(boRmSectionGetFlag(section, kRmSectionRightClip | kRmSectionLocked));
  vRmSectionSetFlag(section, kRmSectionRightClip | kRmSectionLocked, false);
  EXPECT_EQ(section->Flags, 0u);
}

TEST(SectionSet, MassesAreFoundByIdSortedAndRemovedFromUnlockedSections) {
  SetPtr set = MakeSet({0.0, 10.0});
  RmSection* locked = RmSectionsGetFirst(set.get());
  RmSection* open = locked->Next;
  vRmSectionSetFlag(locked, kRmSectionLocked, true);
  for (RmSection* section : {locked, open}) {
    for (int id : {5, 2, 9}) RmMassAdd(section, id)->Area = id;
  }
  vRmSectionSortMasses(open);
  std::vector<int> ids;
  for (RmMass* mass = RmSectionMassesGetFirst(open); mass; mass = RmMassGetNext(mass)) {
    ids.push_back(mass->MassId);
  }
  EXPECT_EQ(ids, (std::vector<int>{2, 5, 9}));
  EXPECT_EQ(RmMassFind(open, 9)->Area, 9.0);
  EXPECT_EQ(RmMassFind(open, 4), nullptr);

  vRmSectionSetRemoveMass(set.get(), 5);
  vRmSectionSetRemoveLayer(set.get(), RmLayerIdMake(2, 1));
  EXPECT_NE(RmMassFind(locked, 5), nullptr);
  EXPECT_EQ(RmMassFind(open, 5), nullptr);
  EXPECT_EQ(iRmSectionLayersGetCount(locked), 1);
  EXPECT_EQ(iRmSectionLayersGetCount(open), 0);
  vRmSectionClearMasses(locked);
  EXPECT_EQ(iRmSectionMassesGetCount(locked), 0);
}

TEST(ModelSections, TheSetsAreSlotsOfTheModelThatStampTheirKind) {
  ModelPtr model(RmModelCreate());
  SetPtr set = MakeSet({0.0, 10.0});
  vRmModelSetLongSections(model.get(), set.release());
  EXPECT_EQ(RmModelGetLongSections(model.get())->Kind, kRmLongSections);
  RmSectionSet* cross = RmModelGetOrCreateCrossSections(model.get());
  EXPECT_EQ(cross->Kind, kRmCrossSections);
  EXPECT_EQ(RmModelGetOrCreateCrossSections(model.get()), cross);

  // A copy of the model copies the sets.
  ModelPtr copy(RmModelCreate());
  vRmModelCopy(copy.get(), model.get(), false);
  EXPECT_NE(RmModelGetLongSections(copy.get()), RmModelGetLongSections(model.get()));
  EXPECT_TRUE(boRmSectionSetsEqual(RmModelGetLongSections(copy.get()),
                                   RmModelGetLongSections(model.get()), kRmAllLayers, 0.0));

  // A pending set is a copy of its own, stamped too.
  RmSectionSet* pending = RmModelPrepareLongSections(model.get());
  EXPECT_NE(pending, RmModelGetLongSections(model.get()));
  EXPECT_EQ(pending->Kind, kRmLongSections);
}
