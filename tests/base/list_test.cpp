#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/chain.h"
#include "base/dlink.h"
#include "base/pool.h"
#include "base/slink.h"
#include "tests/support/captured_messages.h"

namespace {

struct Item {
  Item* next;
  int value;
  const char* name;
};

struct DItem {
  DItem* next;
  DItem* prev;
  int value;
};

int compareCalls = 0;

template <typename T>
int iCompareValues(const void* a, const void* b) {
  compareCalls++;
  int left = (*static_cast<T* const*>(a))->value;
  int right = (*static_cast<T* const*>(b))->value;
  return (left > right) - (left < right);
}

std::vector<int> Values(const void* first) {
  std::vector<int> values;
  for (auto* item = static_cast<const Item*>(first); item; item = item->next)
    values.push_back(item->value);
  return values;
}

// The values of a DLink list, after checking that `prev` mirrors `next`.
std::vector<int> DValues(const ListHead& head) {
  std::vector<int> values;
  DItem* expectedPrev = nullptr;
  for (DItem* item = ListFirst<DItem>(&head); item; item = item->next) {
    EXPECT_EQ(item->prev, expectedPrev);
    expectedPrev = item;
    values.push_back(item->value);
  }
  EXPECT_EQ(head.last, expectedPrev);
  return values;
}

using V = std::vector<int>;

class ListTest : public ::testing::Test {
 protected:
  void SetUp() override {
    vPoolInit(&pool, 4096);
    SLinkInit(&list, sizeof(Item), &pool);
  }
  void TearDown() override { vPoolDelete(&pool); }
  Item* Add(int value, Item* before = nullptr) {
    Item* item = SLinkNewObjAs<Item>(&list, before);
    item->value = value;
    return item;
  }

  CapturedMessages shown;
  Pool pool;
  ListHead list;
};

TEST_F(ListTest, NewObjAppendsOrInsertsInFront) {
  Item* one = Add(1);
  Item* three = Add(3);
  Add(2, three);
  Item* zero = Add(0, one);
  EXPECT_EQ(Values(list.first), (V{0, 1, 2, 3}));
  EXPECT_EQ(list.first, zero);
  EXPECT_EQ(list.last, three);

  Item source{one, 7, "seven"};
  auto* copy = static_cast<Item*>(SLinkNewObj(&list, nullptr, &source));
  EXPECT_EQ(copy->next, nullptr);
  EXPECT_EQ(copy->name, source.name);
  EXPECT_EQ(list.last, copy);

  auto* after = static_cast<Item*>(SLinkNewObjAfter(&list, copy, nullptr));
  EXPECT_EQ(list.last, after);
  static_cast<Item*>(SLinkNewObjAfter(&list, nullptr, &source))->value = -1;
  EXPECT_EQ(Values(list.first), (V{-1, 0, 1, 2, 3, 7, 0}));
  EXPECT_TRUE(shown.boxes().empty());

  // A copied list shares the payload's pointers and has links of its own.
  ListHead twin;
  void* lastCopied = SLinkCopy(&list, &twin, nullptr);
  EXPECT_EQ(lastCopied, twin.last);
  EXPECT_EQ(twin.pool, nullptr);
  EXPECT_EQ(Values(twin.first), Values(list.first));
  EXPECT_NE(twin.last, list.last);
  EXPECT_EQ(static_cast<Item*>(SLinkNth(&twin, 5))->name, source.name);
  vSLinkClear(&twin);
}

TEST_F(ListTest, MisuseIsReportedAndTheListGoesOn) {
  Item stranger{};
  Item* added = Add(2, &stranger);
  EXPECT_EQ(list.first, added);
  EXPECT_EQ(list.last, added);
  EXPECT_EQ(shown.texts(), std::vector<std::string>{"SLinkNewSizeObj InsertBefore not found"});

  uint64_t left = pool.left;
  Item source{nullptr, 9, nullptr};
  auto* item = static_cast<Item*>(pSLinkNewObj(&list, nullptr, &source, 8));
  EXPECT_EQ(shown.texts(),
            (std::vector<std::string>{"SLinkNewSizeObj InsertBefore not found",
                                      "pSLinkNewObj: Wrong size of object in list"}));
  EXPECT_EQ(left - pool.left, sizeof(Item));  // the head's size wins
  EXPECT_EQ(item->value, 9);
  EXPECT_EQ(list.last, item);

  left = pool.left;
  SLinkNewSizeObj(&list, 64, nullptr, nullptr);  // an explicit size wins
  EXPECT_EQ(left - pool.left, 64u);
}

TEST_F(ListTest, DeleteAndClearCountGarbage) {
  Item* a = Add(1);
  Item* b = Add(2);
  vSLinkDeleteObj(&list, b);
  EXPECT_EQ(list.last, a);
  EXPECT_EQ(a->next, nullptr);
  Item stranger{};
  vSLinkDeleteObj(&list, &stranger);
  EXPECT_EQ(pool.garbage, sizeof(Item));
  vSLinkDeleteObj(&list, a);
  EXPECT_EQ(list.first, nullptr);
  EXPECT_EQ(list.last, nullptr);

  ListHead sized;
  SLinkInit(&sized, 32, &pool);
  for (int i = 0; i < 3; i++) SLinkNewObj(&sized, nullptr, nullptr);
  pool.garbage = 0;
  vSLinkClear(&sized);
  EXPECT_EQ(pool.garbage, 96u);
  EXPECT_EQ(sized.first, nullptr);
  EXPECT_EQ(sized.last, nullptr);
  SLinkInit(&sized, 0, &pool);
  SLinkNewObj(&sized, nullptr, nullptr);
  vSLinkClear(&sized);
  EXPECT_EQ(pool.garbage, 96u);
  vSLinkClear(nullptr);
}

TEST_F(ListTest, ReverseLinkUnlinkMovePrev) {
  Item* a = Add(1);
  Item* b = Add(2);
  Item* c = Add(3);
  vSLinkReverse(&list);
  EXPECT_EQ(Values(list.first), (V{3, 2, 1}));
  EXPECT_EQ(list.last, a);

  vSLinkUnlink(&list, a);
  EXPECT_EQ(list.last, b);
  vSLinkLink(&list, c, a);
  EXPECT_EQ(Values(list.first), (V{1, 3, 2}));
  Item stranger{};
  Item loose{nullptr, 9, nullptr};
  vSLinkLink(&list, &stranger, &loose);
  vSLinkMove(&list, b, &stranger);
  vSLinkMove(&list, b, b);
  EXPECT_EQ(Values(list.first), (V{1, 3, 2}));
  vSLinkMove(&list, a, nullptr);
  EXPECT_EQ(Values(list.first), (V{3, 2, 1}));
  EXPECT_EQ(list.last, a);

  EXPECT_EQ(SLinkPrev(&list, nullptr), a);
  EXPECT_EQ(SLinkPrev(&list, a), b);
  EXPECT_EQ(SLinkPrev(&list, c), nullptr);
  EXPECT_EQ(SLinkPrev(&list, &stranger), nullptr);
  EXPECT_EQ(lSLinkCount(&list), 3);
  EXPECT_EQ(SLinkNth(&list, 2), a);
  EXPECT_EQ(SLinkNth(&list, 3), nullptr);
  EXPECT_EQ(SLinkNth(&list, -1), nullptr);
}

TEST_F(ListTest, SortAndRotate) {
  for (int value : {5, 3, 9, 1, 7}) Add(value);
  vSLinkSort(&list, iCompareValues<Item>);
  EXPECT_EQ(Values(list.first), (V{1, 3, 5, 7, 9}));
  EXPECT_EQ(ListLast<Item>(&list)->value, 9);

  Item* seven = static_cast<Item*>(SLinkNth(&list, 3));
  EXPECT_TRUE(boSLinkRotate(&list, seven));
  EXPECT_EQ(Values(list.first), (V{7, 9, 1, 3, 5}));
  EXPECT_EQ(ListLast<Item>(&list)->value, 5);
  EXPECT_FALSE(boSLinkRotate(&list, seven));
  Item stranger{};
  EXPECT_FALSE(boSLinkRotate(&list, &stranger));
  EXPECT_FALSE(boSLinkRotate(&list, nullptr));

  ListHead single;
  SLinkInit(&single, sizeof(Item), &pool);
  SLinkNewObj(&single, nullptr, nullptr);
  compareCalls = 0;
  vSLinkSort(&single, iCompareValues<Item>);
  EXPECT_EQ(compareCalls, 0);
  EXPECT_EQ(single.first, single.last);
}

TEST_F(ListTest, DLinkKeepsBothDirections) {
  ListHead dlist;
  DLinkInit(&dlist, sizeof(DItem), &pool);
  auto add = [&](int value, DItem* before) {
    DItem* item = DLinkNewObjAs<DItem>(&dlist, before);
    item->value = value;
    return item;
  };
  DItem* two = add(2, nullptr);
  DItem* zero = add(0, two);
  DItem* one = add(1, two);
  EXPECT_EQ(DValues(dlist), (V{0, 1, 2}));
  EXPECT_EQ(dlist.first, zero);

  vDLinkDeleteObj(&dlist, two);
  EXPECT_EQ(DValues(dlist), (V{0, 1}));
  EXPECT_EQ(pool.garbage, sizeof(DItem));
  vDLinkMove(&dlist, zero, nullptr);
  EXPECT_EQ(DValues(dlist), (V{1, 0}));
  vDLinkMove(&dlist, zero, one);
  DItem stranger{};
  vDLinkUnlink(&dlist, &stranger);  // not in the list: left alone
  EXPECT_EQ(DValues(dlist), (V{0, 1}));

  for (int value : {7, 4, 9}) add(value, nullptr);
  vDLinkSort(&dlist, iCompareValues<DItem>);
  EXPECT_EQ(DValues(dlist), (V{0, 1, 4, 7, 9}));

  ListHead copy;
  void* lastCopied = DLinkCopy(&dlist, &copy, nullptr);
  EXPECT_EQ(lastCopied, copy.last);
  EXPECT_EQ(DValues(copy), (V{0, 1, 4, 7, 9}));
  vDLinkClear(&copy);

  DItem source{nullptr, nullptr, 11};
  auto* item = static_cast<DItem*>(pDLinkNewObj(&dlist, nullptr, &source, 8));
  EXPECT_EQ(shown.texts(), std::vector<std::string>{"pDLinkNewObj: Wrong size of object to copy"});
  EXPECT_EQ(DValues(dlist), (V{0, 1, 4, 7, 9, 11}));
  EXPECT_EQ(item->prev->value, 9);
}

TEST(ChainTest, ChainWithoutAHead) {
  void* head = nullptr;
  auto add = [&](int value, void* before) {
    auto* item = static_cast<Item*>(ChainNewObj(&head, before, sizeof(Item)));
    item->value = value;
    return item;
  };
  Item* three = add(3, nullptr);
  Item* one = add(1, three);
  add(5, nullptr);
  Item* zero = add(0, one);
  EXPECT_EQ(head, zero);
  EXPECT_EQ(Values(head), (V{0, 1, 3, 5}));

  vChainMove(&head, zero, nullptr);
  vChainRemove(&head, three);
  EXPECT_EQ(Values(head), (V{1, 5, 0}));
  vChainUnlink(&head, one);
  vChainLink(&head, zero, one);
  EXPECT_EQ(Values(head), (V{5, 1, 0}));
  head = ChainSort(head, iCompareValues<Item>);
  EXPECT_EQ(Values(head), (V{0, 1, 5}));

  void* copy = nullptr;
  EXPECT_EQ(iChainCopy(head, &copy, sizeof(Item)), 3);
  EXPECT_EQ(Values(copy), (V{0, 1, 5}));
  EXPECT_NE(copy, head);
  EXPECT_EQ(iChainCopy(nullptr, &copy, sizeof(Item)), 0);
  vChainFree(&copy);
  vChainFree(&head);
  EXPECT_EQ(head, nullptr);
}

}  // namespace
