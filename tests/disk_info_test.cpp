#include "compose/disk_info.h"

#include <gtest/gtest.h>

#include "error_matchers.h"
#include "fake_services.h"

using namespace vorlex;
using namespace vorlex::testing;

class DiskInfoTest : public ::testing::Test {
 protected:
  FakeDisks disks;
  FakeClock locale;
};

TEST_F(DiskInfoTest, AsksForTheDriveRoot) {
  modDiskInfo::DiskFree(disks, locale, "C");
  EXPECT_EQ(disks.lastRoot, "C:\\");
}

TEST_F(DiskInfoTest, ByteFiguresAreGroupedWithAtLeastFourDigits) {
  disks.disks["C:\\"] = {1, 1, 5, 1234567};
  EXPECT_EQ(modDiskInfo::DiskFree(disks, locale, "C"), "0,005");
  EXPECT_EQ(modDiskInfo::DiskTotal(disks, locale, "C"), "1,234,567");
  EXPECT_EQ(modDiskInfo::DiskUsed(disks, locale, "C"), "1,234,562");
}

TEST_F(DiskInfoTest, TheSeparatorIsTheLocales) {
  locale.separator = ".";
  disks.disks["C:\\"] = {8, 512, 1000, 2000};
  EXPECT_EQ(modDiskInfo::DiskFree(disks, locale, "C"), "4.096.000");
}

TEST_F(DiskInfoTest, HalfFreeIsFiftyAndFifty) {
  disks.disks["C:\\"] = {8, 512, 50, 100};
  EXPECT_EQ(modDiskInfo::DiskRatioFree(disks, "C"), 50.0f);
  EXPECT_EQ(modDiskInfo::DiskRatioUsed(disks, "C"), 50.0f);
}

TEST_F(DiskInfoTest, OneFreeClusterOfThreeTruncates) {
  disks.disks["C:\\"] = {1, 512, 1, 3};
  EXPECT_EQ(modDiskInfo::DiskRatioFree(disks, "C"), 33.0f);
  EXPECT_EQ(modDiskInfo::DiskRatioUsed(disks, "C"), 66.0f);
}

TEST_F(DiskInfoTest, AFailedQueryGivesQuestionMarkOrZero) {
  EXPECT_EQ(modDiskInfo::DiskFree(disks, locale, "!"), "?");
  EXPECT_EQ(modDiskInfo::DiskUsed(disks, locale, "!"), "?");
  EXPECT_EQ(modDiskInfo::DiskTotal(disks, locale, "Q"), "?");
  EXPECT_EQ(modDiskInfo::DiskRatioFree(disks, "!"), 0.0f);
  EXPECT_EQ(modDiskInfo::DiskRatioUsed(disks, "!"), 0.0f);
}

TEST_F(DiskInfoTest, ProductsBeyondThirtyTwoBitsOverflow) {
  disks.disks["C:\\"] = {8, 512, 1000, 600000};  // 2.4 GB in all, 4 MB free
  EXPECT_EQ(modDiskInfo::DiskFree(disks, locale, "C"), "4,096,000");
  EXPECT_AUTOMATION_ERROR(modDiskInfo::DiskTotal(disks, locale, "C"), kErrOverflow);
  EXPECT_AUTOMATION_ERROR(modDiskInfo::DiskUsed(disks, locale, "C"), kErrOverflow);
  EXPECT_AUTOMATION_ERROR(modDiskInfo::DiskRatioFree(disks, "C"), kErrOverflow);
  disks.disks["C:\\"] = {65536, 65536, 0, 0};  // the cluster size itself
  EXPECT_AUTOMATION_ERROR(modDiskInfo::DiskFree(disks, locale, "C"), kErrOverflow);
}

TEST_F(DiskInfoTest, NoClustersOnASuccessfulQueryDividesByZero) {
  disks.disks["C:\\"] = {8, 512, 0, 0};
  EXPECT_AUTOMATION_ERROR(modDiskInfo::DiskRatioFree(disks, "C"), kErrDivisionByZero);
  EXPECT_EQ(modDiskInfo::DiskTotal(disks, locale, "C"), "0,000");
}

TEST(FormatGroupedCount, PadsAndGroups) {
  EXPECT_EQ(modDiskInfo::FormatGroupedCount(0, ","), "0,000");
  EXPECT_EQ(modDiskInfo::FormatGroupedCount(999, ","), "0,999");
  EXPECT_EQ(modDiskInfo::FormatGroupedCount(1000, ","), "1,000");
  EXPECT_EQ(modDiskInfo::FormatGroupedCount(12345, ","), "12,345");
  EXPECT_EQ(modDiskInfo::FormatGroupedCount(2147483647.0, ","), "2,147,483,647");
  EXPECT_EQ(modDiskInfo::FormatGroupedCount(-5, ","), "-0,005");
  EXPECT_EQ(modDiskInfo::FormatGroupedCount(1234567, "\xC2\xA0"),
            "1\xC2\xA0"
            "234\xC2\xA0"
            "567");
}
