// Tests the other checks of the system.
#include <algorithm>

#include <gtest/gtest.h>

#include "fakeSystem.h"
#include "host/linux/doctor/checks.h"
#include "host/linux/doctor/report.h"

namespace {

Findings problemsOf(const Findings& findings) {
  Findings problems;
  std::copy_if(findings.begin(), findings.end(), std::back_inserter(problems),
               [](const Finding& finding) { return finding.isProblem(); });
  return problems;
}

class ChecksTest : public testing::Test {
 protected:
  FakeSystem system;
};

TEST_F(ChecksTest, FindNothingWrongWhereAllIsWell) {
  EXPECT_EQ(problemsIn(lookAround(system)), 0);
}

TEST_F(ChecksTest, NoLineOfTheReportIsLongerThanEighty) {
  system.shown.monitors = {{0, 0, 1920, 1080}, {-1280, 0, 0, 1024}};
  const std::string report = reportOf(lookAround(system));
  for (std::size_t begin = 0; begin < report.size();) {
    const std::size_t end = report.find('\n', begin);
    EXPECT_LE(end - begin, 80U) << report.substr(begin, end - begin);
    begin = end + 1;
  }
}

TEST_F(ChecksTest, TheDesktopAndTheDisplayAreTold) {
  EXPECT_EQ(
      DesktopCheck::look(system),
      (Findings{{"The desktop is MATE.", ""},
                {"The display is :0 (X11, X.Org 21.1.7), 1920x1080 pixels large. It has one monitor.", ""}}));
  system.variables.clear();
  system.shown = {
      DisplayView::Kind::wayland, "wayland-1", "", 3200, 1080, {{1280, 0, 3200, 1080}, {0, 56, 1280, 1080}}};
  EXPECT_EQ(DesktopCheck::look(system),
            (Findings{{"No desktop gives its name here (XDG_CURRENT_DESKTOP is not set).", ""},
                      {"The display is wayland-1 (Wayland), 3200x1080 pixels large. It has 2 monitors: the "
                       "main one with 1920x1080 at 1280,0, one with 1280x1024 at 0,56. One sky covers them "
                       "all; the moon is on the main one.",
                       ""}}));
}

TEST_F(ChecksTest, NoDisplayIsAProblem) {
  system.shown = {};
  EXPECT_EQ(problemsOf(DesktopCheck::look(system)),
            (Findings{{"There is no display here: neither WAYLAND_DISPLAY nor DISPLAY is set.",
                       "run this in a terminal of your desktop"}}));
  system.shown.name = ":7";
  EXPECT_EQ(problemsOf(DesktopCheck::look(system)),
            (Findings{{"The display :7 cannot be opened.",
                       "run this in a terminal of your desktop, as the user who is logged in"}}));
}

TEST_F(ChecksTest, TheFontsAreToldWithTheirFiles) {
  EXPECT_EQ(FontCheck::look(system),
            (Findings{{"The font for the messages of stars is Liberation Mono.\n/f/m.ttf", ""},
                      {"The font for the labels is Liberation Sans.\n/f/s.ttf", ""},
                      {"The font for the quotations is Liberation Serif.\n/f/r.ttf", ""}}));
}

TEST_F(ChecksTest, AFontOfOtherWidthsIsAProblem) {
  system.fonts["Arial"] = {"DejaVu Sans", "/f/d.ttf"};
  EXPECT_EQ(problemsOf(FontCheck::look(system)),
            (Findings{{"The font for the labels should be Arial, or one with letters as wide, but is DejaVu "
                       "Sans: texts come out wider or narrower than they are meant.\n/f/d.ttf",
                       "sudo apt install fonts-liberation"}}));
}

TEST_F(ChecksTest, NoFontIsAProblem) {
  system.fonts["Times New Roman"] = {};
  EXPECT_EQ(problemsOf(FontCheck::look(system)),
            (Findings{{"There is no font for the quotations: they will not show.",
                       "sudo apt install fonts-liberation"}}));
}

TEST_F(ChecksTest, SoundThatDoesNotWorkIsAProblem) {
  system.sound = "no sound device";
  EXPECT_EQ(problemsOf(ServiceCheck::look(system)),
            (Findings{{"Sound does not work (no sound device). The sky is silent.",
                       "start a sound server (pipewire, pulseaudio), or log in anew"}}));
}

TEST_F(ChecksTest, SleepThatCannotBePreventedIsAProblem) {
  system.sleep = "no answer";
  EXPECT_EQ(
      problemsOf(ServiceCheck::look(system)),
      (Findings{{"The computer cannot be kept awake, for logind cannot be asked or refuses (no answer). "
                 "The setting that prevents sleep does nothing.",
                 "systemctl status systemd-logind   (it must be running)"}}));
}

TEST_F(ChecksTest, TheFilesAreToldWithTheirPlaces) {
  system.files["/q"] = {FileView::Kind::missing, false, true};
  EXPECT_EQ(FileCheck::look(system), (Findings{{"The settings:\n/s", ""},
                                               {"The settings can be edited: lunaria --configure", ""},
                                               {"Your own quotations (there is no such file yet):\n/q", ""},
                                               {"The record of use:\n/u", ""},
                                               {"The log of the last run:\n/l", ""}}));
}

TEST_F(ChecksTest, ThatThereIsNoLogYetIsSaid) {
  system.files["/l"] = {FileView::Kind::missing, false, true};
  EXPECT_EQ(FileCheck::look(system).back(),
            (Finding{"There is no log yet. The next run writes it, here:\n/l", ""}));
  system.files["/l"] = {FileView::Kind::missing, false, false};
  EXPECT_TRUE(FileCheck::look(system).back().isProblem());
}

TEST_F(ChecksTest, FilesThatAreOutOfReachAreProblems) {
  system.files = {{"/s", {FileView::Kind::file, false, false}},
                  {"/q", {FileView::Kind::file, true, false}},
                  {"/u", {FileView::Kind::missing, false, false}},
                  {"/l", {FileView::Kind::other, true, true}}};
  EXPECT_EQ(
      problemsOf(FileCheck::look(system)),
      (Findings{
          {"The settings: the file cannot be read:\n/s", "sudo chown \"$USER\" \"/s\" && chmod u+rw \"/s\""},
          {"Your own quotations: the file cannot be written:\n/q",
           "sudo chown \"$USER\" \"/q\" && chmod u+rw \"/q\""},
          {"The record of use: the file cannot be made, for its folder is not yours:\n/u",
           "make the folder of that file yours, or make it writable"},
          {"The log of the last run: what stands in its place is no file:\n/l", "mv \"/l\" \"/l.old\""}}));
}

TEST_F(ChecksTest, AFileWithoutAPlaceIsAProblem) {
  system.own.quotes = "";
  EXPECT_EQ(problemsOf(FileCheck::look(system)),
            (Findings{{"Your own quotations: no home folder is known to keep the file in.",
                       "set HOME to your folder and log in anew"}}));
}

TEST_F(ChecksTest, DamagedSettingsAreAProblem) {
  const std::string cure = "mv \"/s\" \"/s.old\"   (and choose your settings anew)";
  system.contents["/s"] = "moonSize=300\nnonsense\n";
  EXPECT_EQ(problemsOf(FileCheck::look(system)),
            (Findings{{"The settings: the file is damaged, 1 line of it sets nothing:\n/s", cure}}));
  system.contents["/s"] = std::string("=5\na\0b=1\n", 9) + "x\n";
  EXPECT_EQ(problemsOf(FileCheck::look(system)),
            (Findings{{"The settings: the file is damaged, 3 lines of it set nothing:\n/s", cure}}));
}

TEST_F(ChecksTest, BlankLinesAreNoDamage) {
  system.contents["/s"] = "\n  \r\nmoonSize=300\r\nempty=\n";
  EXPECT_EQ(problemsOf(FileCheck::look(system)), Findings{});
}

TEST_F(ChecksTest, AMissingSettingsProgramIsAProblem) {
  system.installed.clear();
  EXPECT_EQ(problemsOf(FileCheck::look(system)),
            (Findings{{"The program that edits the settings, lunaria-configure, is not installed.",
                       "sudo apt install lunaria-configure"}}));
}

}  // namespace
