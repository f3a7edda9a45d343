// Tests how WM_CREATE tells a preview by the program's arguments.
#include <gmock/gmock.h>

#include "host/windowProcedureFixture.h"
#include "support/platform.h"

using testing::ElementsAre;

namespace {

TEST_F(WindowProcedureTest, APreviewIsInitialisedAsOne) {
  xplAppLinux::setArguments({"lunaria", "/p", "1234"});
  send(WM_CREATE);
  EXPECT_THAT(record.monitorIds, ElementsAre(-1));
  EXPECT_EQ(countEntries("arg[1]:/p", "Info"), 1);
}

TEST_F(WindowProcedureTest, KeptAnUpperCasePreviewIsInitialisedAsAFullRun) {
  xplAppLinux::setArguments({"lunaria", "/P", "1234"});
  send(WM_CREATE);
  EXPECT_THAT(record.monitorIds, ElementsAre(0));
}

}  // namespace
