#include "core/Record.h"

#include <gtest/gtest.h>

TEST(RecordTest, NothingIsOnShowAtFirst) {
  const Record record;
  EXPECT_EQ(record.Status(), Record::State::None);
  EXPECT_FALSE(record.MayBeWritten());
  EXPECT_FALSE(record.Modified());
}

TEST(RecordTest, OnlyARecordThatWasReadWholeMayBeWritten) {
  Record record;
  {
    Record::Reading reading(record);
    reading.Replaces();
    EXPECT_FALSE(record.MayBeWritten());
    reading.Ended();
  }
  EXPECT_TRUE(record.MayBeWritten());
  record.Gone();
  EXPECT_FALSE(record.MayBeWritten());
}

TEST(RecordTest, AReadingThatBreaksOffBeforeItReplacedAnythingLeavesTheRecord) {
  Record record;
  record.Shown();
  record.Touched();
  { Record::Reading reading(record); }
  EXPECT_TRUE(record.MayBeWritten());
  EXPECT_TRUE(record.Modified());
}

TEST(RecordTest, AReadingThatBreaksOffLaterTearsTheRecord) {
  Record record;
  record.Shown();
  record.Touched();
  {
    Record::Reading reading(record);
    reading.Replaces();
    record.Touched();
  }
  EXPECT_EQ(record.Status(), Record::State::Torn);
  EXPECT_FALSE(record.MayBeWritten());
  EXPECT_FALSE(record.Modified());
  record.Touched();
  EXPECT_TRUE(record.Modified());
  EXPECT_FALSE(record.MayBeWritten());
}

TEST(RecordTest, FillingNestsAndLeavesTheMarkAlone) {
  Record record;
  {
    const Record::Filling outer(record);
    {
      const Record::Filling inner(record);
      record.Touched();
    }
    record.Touched();
    EXPECT_FALSE(record.Modified());
  }
  record.Touched();
  EXPECT_TRUE(record.Modified());
  {
    const Record::Filling filling(record);
    record.Compared(false);
  }
  EXPECT_TRUE(record.Modified());
  record.Compared(false);
  EXPECT_FALSE(record.Modified());
}

TEST(RecordTest, ObserversHearOfChangesAlone) {
  Record record;
  int told = 0;
  record.Observe([&told] { ++told; });
  record.Settled();
  record.Compared(false);
  EXPECT_EQ(told, 0);
  record.Shown();
  record.Touched();
  record.Touched();
  record.Settled();
  EXPECT_EQ(told, 3);
}
