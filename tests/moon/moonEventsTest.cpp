// The neighbours of a moment among the full moons and new moons.
#include <array>
#include <limits>
#include <vector>

#include "moon/moonEvents.h"
#include "moon/moonFixture.h"

namespace {

using MoonEventsTest = MoonTest;

// The tables in seconds since 1970, computed by another program from the calendar dates.
constexpr std::array<std::int64_t, 37> fullMoonSeconds = {
    1420433580, 1423004940, 1425579300, 1428149100, 1430710920, 1433261940, 1435803600, 1438339380,
    1440873300, 1443408600, 1445947500, 1448491440, 1451041860, 1453599960, 1456165200, 1458734460,
    1461302640, 1463865300, 1466420520, 1468969020, 1471512420, 1474052700, 1476591780, 1479131520,
    1481673960, 1484220840, 1486773180, 1489330440, 1491890880, 1494452580, 1497013800, 1499573220,
    1502129460, 1504681380, 1507228800, 1509772980, 1512316020};
constexpr std::array<std::int64_t, 25> newMoonSeconds = {
    1452389460, 1454942340, 1457488440, 1460028240, 1462563000, 1465095600, 1467630060,
    1470170700, 1472720580, 1475280720, 1477849080, 1480421880, 1482994380, 1485562020,
    1488121080, 1490669820, 1493208960, 1495741440, 1498271460, 1500803160, 1503340200,
    1505885400, 1508440320, 1511005320, 1513578660};

template <std::size_t size>
void expectNeighbours(std::span<const MoonTableEntry> table, const std::array<std::int64_t, size>& moments) {
  for (std::size_t i = 0; i < size; ++i) {
    MoonEvents events(table);
    EXPECT_EQ(moments[i], events.previous(moments[i])) << "at the moment itself";
    EXPECT_EQ(moments[i], events.previous(moments[i] + 1));
    if (i > 0) {
      EXPECT_EQ(moments[i - 1], events.previous(moments[i] - 1));
      EXPECT_EQ(moments[i], events.next(moments[i - 1])) << "strictly after";
      EXPECT_EQ(moments[i], events.next(moments[i] - 1));
    }
  }
}

TEST_F(MoonEventsTest, AreTheTablesInstants) {
  EXPECT_EQ(fullMoonSeconds.size(), fullMoonTable.size());
  EXPECT_EQ(newMoonSeconds.size(), newMoonTable.size());
  expectNeighbours(fullMoonTable, fullMoonSeconds);
  expectNeighbours(newMoonTable, newMoonSeconds);
}

TEST_F(MoonEventsTest, OfNoTableAreNone) {
  MoonEvents events({});
  EXPECT_EQ(0, events.previous(1463865300));
  EXPECT_EQ(0, events.next(1463865300));
  EXPECT_EQ(0, events.previous(std::numeric_limits<std::int64_t>::min()));
}

// A second after the last entry: one second counts as (1 % month) + 1 = 2 months.
TEST_F(MoonEventsTest, KeptRemainderAsTheNumberOfMonthsAfterTheTable) {
  constexpr std::int64_t last = fullMoonSeconds.back();
  const auto nextAfter = [](std::int64_t distance) {
    MoonEvents events(fullMoonTable);
    return events.next(last + distance);
  };
  EXPECT_EQ(last + 2 * std::int64_t{synodicMonth}, nextAfter(1));
  EXPECT_EQ(last + 3 * std::int64_t{synodicMonth}, nextAfter(2));
  EXPECT_EQ(last + 841 * std::int64_t{synodicMonth}, nextAfter(840)) << "the last that fits 32 bits";
  EXPECT_EQ(0, nextAfter(841)) << "the product wraps and lies before the moment";
  EXPECT_EQ(0, nextAfter(2551443)) << "whole months count for nothing: one month, which is not after it";
  EXPECT_EQ(last + 2 * std::int64_t{synodicMonth}, nextAfter(2551444));
}

TEST_F(MoonEventsTest, KeptRemainderAsTheNumberOfMonthsBeforeTheTable) {
  constexpr std::int64_t first = fullMoonSeconds.front();
  const auto previousBefore = [](std::int64_t distance) {
    MoonEvents events(fullMoonTable);
    return events.previous(first - distance);
  };
  EXPECT_EQ(first - 2 * std::int64_t{synodicMonth}, previousBefore(1));
  EXPECT_EQ(first - 841 * std::int64_t{synodicMonth}, previousBefore(840));
  EXPECT_EQ(0, previousBefore(841)) << "the product wraps and lies after the moment";
  EXPECT_EQ(first - std::int64_t{synodicMonth}, previousBefore(2551443)) << "one month: the moment itself";
}

// 3 January 2015: the wrapped product lies in the future, and the next event is that, not the table's first.
TEST_F(MoonEventsTest, KeptEntryBeforeTheTableIsSeenByTheNextSearch) {
  MoonEvents events(fullMoonTable);
  constexpr std::int64_t moment = 1420260780;
  EXPECT_EQ(0, events.previous(moment));
  EXPECT_EQ(2910163225, events.next(moment));
  MoonEvents untouched(fullMoonTable);
  EXPECT_EQ(fullMoonSeconds.front(), untouched.next(moment));
}

TEST_F(MoonEventsTest, TakeMomentsAtTheEndsOfTheirRange) {
  for (const std::int64_t moment :
       {std::numeric_limits<std::int64_t>::min(), std::numeric_limits<std::int64_t>::max()}) {
    MoonEvents events(newMoonTable);
    const std::int64_t previous = events.previous(moment);
    const std::int64_t next = events.next(moment);
    EXPECT_LE(previous, moment > 0 ? moment : 0);
    EXPECT_TRUE(next == 0 || next > moment);
  }
}

TEST(WrappedDifference, KeepsTheLow32BitsWithTheirSign) {
  EXPECT_EQ(5, wrappedDifference32(12, 7));
  EXPECT_EQ(-5, wrappedDifference32(7, 12));
  EXPECT_EQ(std::numeric_limits<std::int32_t>::min(), wrappedDifference32(2147483648, 0));
  EXPECT_EQ(0, wrappedDifference32(4294967296, 0));
  EXPECT_EQ(-1, wrappedDifference32(std::numeric_limits<std::int64_t>::max(), 0));
  EXPECT_EQ(1, wrappedDifference32(0, std::numeric_limits<std::int64_t>::max()));
  EXPECT_EQ(0, wrappedDifference32(std::numeric_limits<std::int64_t>::min(), 0));
}

}  // namespace
