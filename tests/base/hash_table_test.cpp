#include "base/hash_table.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

#include "tests/support/captured_messages.h"

namespace {

struct Named {
  void* next;
  const char* name;
};

struct Record {
  char code[8];
  uint16_t shortKey;
  uint32_t longKey;
  char bytes[3];
};

int32_t iSlotsFor(int32_t request) {
  HashTable* table = HashCreate(request, 0, kHashKeyText);
  int32_t count = table->slotCount;
  HashDelete(&table);
  return count;
}

TEST(HashTableTest, SlotCountAndTextHash) {
  EXPECT_EQ(iSlotsFor(0), 8191);
  EXPECT_EQ(iSlotsFor(-3), 8191);
  EXPECT_EQ(iSlotsFor(100), 99);
  EXPECT_EQ(iSlotsFor(101), 101);

  EXPECT_EQ(uHashText(""), 0u);
  EXPECT_EQ(uHashText("printf"), 0x077905A6u);
  EXPECT_EQ(uHashText("\xF8"), 0x0FFFFF08u);  // high bytes count as negative
  EXPECT_EQ(uHashBytes("printfXYZ", 6), 0x077905A6u);
}

TEST(HashTableTest, EqualKeysFindTheFirstAddedAndRemoveTheFirstMatch) {
  HashTable* table = HashCreate(0, offsetof(Named, name), kHashKeyTextPointer);
  Named first{nullptr, "Sfile.section.key"};
  Named second{nullptr, "Sfile.section.key"};
  Named other{nullptr, "other"};
  for (Named* named : {&first, &other, &second}) HashAdd(table, named);
  EXPECT_EQ(HashSlotLength(table, int32_t(uHashText("Sfile.section.key") % 8191)), 2);

  std::string lookup = "Sfile.section.key";  // the text, not the record's pointer
  EXPECT_EQ(HashFind(table, lookup.c_str()), &first);
  EXPECT_EQ(HashFind(table, "missing"), nullptr);
  HashRemove(table, &second);
  EXPECT_EQ(HashFind(table, "Sfile.section.key"), &second);
  HashRemove(table, &first);
  EXPECT_EQ(HashFind(table, "Sfile.section.key"), nullptr);
  EXPECT_EQ(HashFind(table, "other"), &other);

  HashClear(table);
  EXPECT_EQ(HashFind(table, "other"), nullptr);
  HashAdd(table, &other);
  EXPECT_EQ(HashFind(table, "other"), &other);
  HashDelete(&table);
  EXPECT_EQ(HashFind(nullptr, "other"), nullptr);
}

TEST(HashTableTest, KeysInPlaceAndNumberKeys) {
  Record a{"A1", 7, 70000, {'x', 'y', 'z'}};
  Record b{"B2", 8, 70001, {'x', 'y', 'w'}};
  HashTable* tables[] = {HashCreate(101, offsetof(Record, code), kHashKeyText),
                         HashCreate(101, offsetof(Record, shortKey), kHashKeyUint16),
                         HashCreate(101, offsetof(Record, longKey), kHashKeyUint32),
                         HashCreate(101, offsetof(Record, bytes), 3)};
  for (HashTable* table : tables) {
    HashAdd(table, &a);
    HashAdd(table, &b);
  }
  uint16_t seven = 7;
  uint32_t key = 70001;
  EXPECT_EQ(HashFind(tables[0], "B2"), &b);
  EXPECT_EQ(HashFind(tables[0], "B"), nullptr);
  EXPECT_EQ(HashFind(tables[1], &seven), &a);
  EXPECT_EQ(HashSlotLength(tables[1], 7), 1);  // a number is its own hash
  EXPECT_EQ(HashFind(tables[2], &key), &b);
  EXPECT_EQ(HashSlotLength(tables[2], int32_t(70001 % 101)), 1);
  EXPECT_EQ(HashFind(tables[3], "xyw"), &b);
  EXPECT_EQ(HashFind(tables[3], "xyv"), nullptr);
  for (HashTable* table : tables) HashDelete(&table);
}

TEST(HashTableTest, StatisticsText) {
  CapturedMessages shown;
  HashTable* table = HashCreate(5, offsetof(Record, longKey), kHashKeyUint32);
  Record records[3] = {};
  records[1].longKey = 5;  // slots 0, 0 and 1
  records[2].longKey = 1;
  HashShowStatistics(table);
  for (Record& record : records) HashAdd(table, &record);
  HashShowStatistics(table);
  HashShowStatistics(nullptr);
  HashDelete(&table);

  const char* bins = "    3- 0\n    4- 0\n    5- 0\n    6- 0\n    7- 0\n    8- 0\n   10- 0\n"
                     "   20- 0\n   40- 0\n  100- 0\n 1000- 0\n10000- 0\n100000- 0\n";
  ASSERT_EQ(shown.boxes().size(), 2u);
  EXPECT_EQ(shown.boxes()[0].text, std::string("Hash statistics:\nTable size:5\nTotal:0\n"
                                               "    0- 5\n    1- 0\n    2- 0\n") +
                                       bins + "Slots used 0.00%");
  EXPECT_EQ(shown.boxes()[1].text, std::string("Hash statistics:\nTable size:5\nTotal:3\n"
                                               "    0- 3\n    1- 1\n    2- 1\n") +
                                       bins + "Average chain 1.50\nSlots used 40.00%");
  EXPECT_EQ(shown.boxes()[1].type & kMbIconInformation, unsigned(kMbIconInformation));
}

}  // namespace
