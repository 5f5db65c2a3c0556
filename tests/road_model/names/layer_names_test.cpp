#include <gtest/gtest.h>

#include <cstring>
#include <memory>

#include "base/session.h"
#include "parameters/factory_settings.h"
#include "road_model/names/layer_names.h"
#include "tests/road_model/layer_test_util.h"
#include "tests/support/scratch_folder.h"

namespace {

struct NamesDeleter {
  void operator()(RmLayerNames* names) const { vRmLayerNamesDelete(&names); }
};
using NamesPtr = std::unique_ptr<RmLayerNames, NamesDeleter>;

RmLayerId Id(uint32_t type, int number) { return RmLayerIdMake(type, number); }

// The ids of the list, as "type/number" in its order.
std::string sOrder(const RmLayerNames* names) {
  std::string order;
  for (const RmLayerName* name = RmLayerNamesGetFirst(names); name; name = name->Next) {
    order += std::to_string(name->Id.Type) + "/" + std::to_string(name->Id.Number) + " ";
  }
  return order;
}

class LayerNames : public ::testing::Test {
 protected:
  void SetUp() override {
    pSessionCreate();
    vWriteWholeFile(folder / "settings.ini",
                    "[SectLayerTheoName]\n6=Planum\n[SectLayerPhysName]\n1=Asfalt\n");
    ASSERT_TRUE(boFactorySettingsRead((folder / "settings.ini").c_str()));
  }
  void TearDown() override { vSessionDelete(nullptr); }

  ScratchFolder folder;
  NamesPtr names{RmLayerNamesCreate()};
};

}  // namespace

TEST_F(LayerNames, TheNamedAddKeepsTheOrderAndChangesOnlyTheNameOfARecordThatExists) {
  RmLayerNames* list = names.get();
  RmLayerNameSet(list, Id(2, 1), "Asfalt");
  RmLayerNameSet(list, Id(1, 40), "Gr\xF8" "ft");
  RmLayerName* planum = RmLayerNameSet(list, Id(1, 6), "Planum");
  RmLayerNameSet(list, Id(1, 100), "Bruker");
  EXPECT_EQ(sOrder(list), "1/6 1/40 1/100 2/1 ");
  EXPECT_EQ(std::strlen(planum->Guid), 36u);
  EXPECT_EQ(planum->AddCenterPointIfMissing, 1);
  EXPECT_EQ(planum->LayersJoin, 1);
  EXPECT_FALSE(boRmPresentationIsSet(&planum->Pres));

  char guid[kRmLayerGuidSize];
  std::memcpy(guid, planum->Guid, sizeof guid);
  planum->Pres.Color = 4;
  planum->Category = 3;
  EXPECT_EQ(RmLayerNameSet(list, Id(1, 6), "Nytt planum"), planum);
  EXPECT_STREQ(planum->Name, "Nytt planum");
  EXPECT_STREQ(planum->Guid, guid);
  EXPECT_EQ(planum->Pres.Color, 4);
  EXPECT_EQ(planum->Category, 3);
  EXPECT_EQ(sOrder(list), "1/6 1/40 1/100 2/1 ");

  // Lookups by position count within a type, or over all types.
  EXPECT_EQ(RmLayerNamesAtIndex(list, 1, 2)->Id.Number, 100);
  EXPECT_EQ(RmLayerNamesAtIndex(list, kRmAllLayerTypes, 3)->Id.Type, 2u);
  EXPECT_EQ(RmLayerNamesAtIndex(list, 2, 1), nullptr);
  EXPECT_EQ(iRmLayerNamesGetIndex(list, Id(1, 100)), 2);
  EXPECT_EQ(iRmLayerNamesMaxNumber(list, 1), 100);
  EXPECT_EQ(iRmLayerNamesMaxNumber(list, 4), -1);
  vRmLayerNamesRemoveType(list, 1);
  EXPECT_EQ(sOrder(list), "2/1 ");
}

TEST_F(LayerNames, ALayerAddedWithoutANameTakesTheDefaultNameAndARegisteredNameWins) {
  SectionPtr section(RmSectionCreateFree());
  RmLayerNames* list = names.get();
  RmLayerNameSet(list, Id(2, 1), "Slitelag");
  ASSERT_NE(RmLayerAddNamed(section.get(), Id(1, 6), list), nullptr);
  ASSERT_NE(RmLayerAddNamed(section.get(), Id(2, 1), list), nullptr);
  ASSERT_NE(RmLayerAddNamed(section.get(), Id(1, 7), list), nullptr);
  EXPECT_STREQ(sRmLayerNameGetName(list, Id(1, 6)), "Planum");
  EXPECT_STREQ(sRmLayerNameGetName(list, Id(2, 1)), "Slitelag");
  // A layer the settings do not name gets a record without a name.
  EXPECT_STREQ(sRmLayerNameGetName(list, Id(1, 7)), "");
  EXPECT_EQ(iRmSectionLayersGetCount(section.get()), 3);

  // An invalid id gets no record, and a section without names is still added to.
  RmLayerId empty;
  vRmLayerIdClear(&empty);
  vRmLayerNameEnsure(list, empty);
  EXPECT_EQ(iRmLayerNamesCountOfType(list, kRmAllLayerTypes), 3);
  EXPECT_NE(RmLayerAddNamed(section.get(), Id(4, 2), nullptr), nullptr);
}

TEST_F(LayerNames, CopiesAreDeepAndTakeTheGuidOnlyWhenAsked) {
  RmLayerNames* list = names.get();
  RmLayerName* source = RmLayerNameSet(list, Id(1, 30), "Kant");
  source->ComposedType = 1;
  RmLayerListAdd(&source->Layers, Id(1, 6))->Value = 0.5f;

  NamesPtr copy(RmLayerNamesCreate());
  vRmLayerNamesCopy(copy.get(), list);
  RmLayerName* copied = RmLayerNameFind(copy.get(), Id(1, 30));
  ASSERT_NE(copied, nullptr);
  EXPECT_STREQ(copied->Guid, source->Guid);
  EXPECT_TRUE(boRmLayerListsEqual(&copied->Layers, &source->Layers, 0.0));
  EXPECT_NE(RmLayerListGetFirst(&copied->Layers), RmLayerListGetFirst(&source->Layers));

  RmLayerName* other = RmLayerNameSet(copy.get(), Id(1, 31), "Annen");
  vRmLayerNameCopy(other, source, false);
  EXPECT_STREQ(other->Name, "Kant");
  EXPECT_STRNE(other->Guid, source->Guid);

  // A record copied from another list keeps its own presentation.
  NamesPtr third(RmLayerNamesCreate());
  EXPECT_EQ(RmLayerNameCopyFrom(third.get(), list, Id(1, 30)), source);
  EXPECT_STREQ(sRmLayerNameGetName(third.get(), Id(1, 30)), "Kant");
  EXPECT_EQ(RmLayerNameCopyFrom(third.get(), list, Id(1, 99)), nullptr);
  EXPECT_EQ(RmLayerNamesFindByName(third.get(), "Kant"), RmLayerNamesGetFirst(third.get()));
}

TEST(LayerLists, SortingPutsFlaggedEntriesLastAndKeepsEqualIdsInOrder) {
  RmLayerList list;
  vRmLayerListInit(&list, 2, 1);
  RmLayerListAdd(&list, Id(2, 5))->Flags = kRmLayerListEntryLast;
  RmLayerListAdd(&list, Id(1, 9))->Number = 1;
  RmLayerListAdd(&list, Id(1, 9))->Number = 2;
  RmLayerListAdd(&list, Id(1, 3));
  vRmLayerListSort(&list);
  std::string order;
  for (const RmLayerListEntry* entry = RmLayerListGetFirst(&list); entry; entry = entry->Next) {
    order += std::to_string(entry->Id.Number) + ":" + std::to_string(entry->Number) + " ";
  }
  EXPECT_EQ(order, "3:0 9:1 9:2 5:0 ");
  // The sort leaves the list's tail right: a new entry goes behind the last.
  RmLayerListEntry* added = RmLayerListAdd(&list, Id(1, 1));
  EXPECT_EQ(ListLast<RmLayerListEntry>(&list.Entries), added);
  EXPECT_EQ(iRmLayerListCount(&list), 5);
  vRmLayerListClear(&list);
}
