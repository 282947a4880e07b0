#include "compose/live_text.h"

#include <gtest/gtest.h>

#include "control/block_definition.h"
#include "error_matchers.h"
#include "fake_services.h"

using namespace vorlex;
using namespace vorlex::testing;

class LiveTextTest : public ::testing::Test {
 protected:
  LiveTextTest() {
    ApplyNewBlockDefaults(block, nullptr);
    disks.disks["C:\\"] = {1, 1, 1234, 2000};  // 1,234 bytes free of 2,000: 61 % free, 38 % used
  }
  std::string Expand(const std::string& text) {
    LiveTextContext context{disks, clock, block, hRange, vRange};
    return ExpandLiveText(text, context);
  }
  FakeDisks disks;
  FakeClock clock;
  BlockDefinition block;
  int16_t hRange = 100;
  int16_t vRange = 100;
};

struct Case {
  const char* in;
  const char* out;
};

// Inputs and what is displayed, with time "<short time>" and so on.
const Case kCases[] = {
    {"", ""},
    {"plain text", "plain text"},
    {"Free: !DISK FREE:C!", "Free: 1,234"},
    {"!!x!y!", "!!x!y!"},
    {"a!foo!b", "ab"},
    {"!short time!!long date!", "<short time>!long date!"},
    {"!short time! !long date!", "<short time> <long date>"},
    {"!Medium Time!", "<medium time>"},
    {"!long time!|!general date!", "<long time>|<general date>"},
    {"!short date!, !medium date!", "<short date>, <medium date>"},
    {"x!!", "x!!"},
    {"!", "!"},
    {"a!b", "a!b"},
    {"a!b!c!d!e", "ace"},
    {"a!x!!!b", "a!!b"},
    {"!disk total:c!", "2,000"},
    {"!disk used:C!", "0,766"},
    {"!ratio free:c!", "61 %"},
    {"!ratio used:c!", "38 %"},
    {"!disk free:!", "?"},   // the argument is the closing delimiter
    {"!disk free:x!", "?"},  // no such drive
    {"C!disk free!", "C"},   // without its colon the name is unknown
    {"!disk free!:C", ":C"},
    {"!unknown!!", "!"},
    {"!a:b!", ""},
    {"é!short time!é", "é<short time>é"},
    {"!h%! and !v%!", "0 % and 0 %"},
};

TEST_F(LiveTextTest, ScannerTable) {
  block.HPercentage = "0";
  block.VPercentage = "0";
  for (const Case& c : kCases) EXPECT_EQ(Expand(c.in), c.out) << "input: " << c.in;
}

TEST_F(LiveTextTest, PercentagesAreThisRedrawsOnes) {
  block.HPercentage = "25";
  block.VPercentage = "100";
  EXPECT_EQ(Expand("!h%!"), "25 %");
  EXPECT_EQ(Expand("!V%!"), "100 %");
}

TEST_F(LiveTextTest, ShowHorizontalRatioUsedResizesTheBlock) {
  disks.disks["C:\\"] = {1, 1, 63, 100};  // 37 % used
  EXPECT_EQ(Expand("!show horizontal ratio used:c!"), "37 %");
  EXPECT_EQ(block.BarLeft, 0);
  EXPECT_EQ(block.BarRight, 37);
}

TEST_F(LiveTextTest, ShowVerticalRatioFreeResizesAgainstTheVerticalRange) {
  disks.disks["C:\\"] = {1, 1, 63, 100};  // 63 % free
  vRange = -50;
  EXPECT_EQ(Expand("!show vertical ratio free:c!"), "63 %");
  EXPECT_EQ(block.BarTop, 32);  // |-50| * 63 / 100 = 31.5, ties to even
  EXPECT_EQ(block.BarBottom, 0);
}

TEST_F(LiveTextTest, ResizingTokensQueryTheDiskTwice) {
  Expand("!show horizontal ratio free:c!");
  EXPECT_EQ(disks.queries, 2);
  disks.queries = 0;
  Expand("!ratio free:c!");
  EXPECT_EQ(disks.queries, 1);
}

TEST_F(LiveTextTest, EveryDateTokenReadsTheClock) {
  Expand("!short time!|!long date!");
  EXPECT_EQ(clock.calls, 2);
}

TEST_F(LiveTextTest, ReplacementsAreNeverRescanned) {
  block.HPercentage = "!v%!";
  EXPECT_EQ(Expand("!h%!"), "!v%! %");
}

TEST_F(LiveTextTest, DiskOverflowPropagates) {
  disks.disks["C:\\"] = {8, 512, 1000, 600000};
  EXPECT_AUTOMATION_ERROR(Expand("!disk total:c!"), kErrOverflow);
}
