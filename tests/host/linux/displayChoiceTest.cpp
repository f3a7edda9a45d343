// Tests the choice between X11 and Wayland, and the keys of Wayland's keyboards.
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <xkbcommon/xkbcommon.h>

#include "host/linux/displayChoice.h"
#include "host/linux/keys.h"
#include "host/linux/wayland/waylandKeys.h"

namespace {

using Mode = HostRequest::Mode;
using Display = HostRequest::Display;

HostRequest requestFor(Mode mode, Display display = Display::automatic) {
  HostRequest request;
  request.mode = mode;
  request.display = display;
  return request;
}

const DisplayEnvironment onlyX11{.waylandDisplay = {}, .waylandSocket = {}, .x11Display = ":0"};
const DisplayEnvironment onlyWayland{.waylandDisplay = "wayland-0", .waylandSocket = {}, .x11Display = {}};
const DisplayEnvironment bothDisplays{.waylandDisplay = "wayland-0", .waylandSocket = {}, .x11Display = ":0"};
const DisplayEnvironment noDisplay{};

TEST(DisplayChoice, WaylandComesFirstWhereThereIsOne) {
  for (const Mode mode : {Mode::fullRun, Mode::ordinaryWindow}) {
    EXPECT_EQ(chooseDisplay(requestFor(mode), bothDisplays), DisplayChoice::waylandElseX11);
    EXPECT_EQ(chooseDisplay(requestFor(mode), onlyWayland), DisplayChoice::wayland);
    EXPECT_EQ(chooseDisplay(requestFor(mode), onlyX11), DisplayChoice::x11);
  }
}

TEST(DisplayChoice, AConnectionThatWasMadeAlreadyCountsAsOne) {
  EXPECT_EQ(chooseDisplay(requestFor(Mode::fullRun),
                          {.waylandDisplay = {}, .waylandSocket = "5", .x11Display = {}}),
            DisplayChoice::wayland);
}

TEST(DisplayChoice, WithoutAnyX11TellsWhatIsMissing) {
  EXPECT_EQ(chooseDisplay(requestFor(Mode::fullRun), noDisplay), DisplayChoice::x11);
}

TEST(DisplayChoice, WindowsOfOtherProgramsAreX11s) {
  for (const Mode mode : {Mode::foreignRun, Mode::preview}) {
    EXPECT_EQ(chooseDisplay(requestFor(mode), bothDisplays), DisplayChoice::x11);
    EXPECT_EQ(chooseDisplay(requestFor(mode), onlyWayland), DisplayChoice::x11);
  }
}

TEST(DisplayChoice, TheUserHasTheLastWord) {
  for (const auto& environment : {onlyX11, onlyWayland, bothDisplays, noDisplay}) {
    EXPECT_EQ(chooseDisplay(requestFor(Mode::fullRun, Display::x11), environment), DisplayChoice::x11);
    EXPECT_EQ(chooseDisplay(requestFor(Mode::fullRun, Display::wayland), environment),
              DisplayChoice::wayland);
  }
}

// The text of a layout as a compositor hands it out.
struct LayoutFile {
  explicit LayoutFile(const std::string& text)
      : file(::memfd_create("layout", MFD_CLOEXEC)), size(static_cast<std::uint32_t>(text.size() + 1)) {
    isWritten = ::write(file.get(), text.c_str(), size) == static_cast<ssize_t>(size);
  }
  FileDescriptor file;
  std::uint32_t size;
  bool isWritten = false;
};

std::string layoutOfCountry(const char* country) {
  xkb_context* const context = xkb_context_new(XKB_CONTEXT_NO_FLAGS);
  xkb_rule_names names{};
  names.layout = country;
  xkb_keymap* const keymap = xkb_keymap_new_from_names(context, &names, XKB_KEYMAP_COMPILE_NO_FLAGS);
  char* const text =
      keymap != nullptr ? xkb_keymap_get_as_string(keymap, XKB_KEYMAP_FORMAT_TEXT_V1) : nullptr;
  const std::string layout = text != nullptr ? text : "";
  std::free(text);
  xkb_keymap_unref(keymap);
  xkb_context_unref(context);
  return layout;
}

constexpr std::uint32_t placeOfEscape = 1;  // as the kernel counts keys
constexpr std::uint32_t rightOfTab = 16;    // q in many countries, a in France
constexpr std::uint32_t rightOfCapsLock = 30;

TEST(WaylandKeys, AreNamedByTheUsersLayout) {
  for (const auto& [country, keyOfQ, otherKey] :
       {std::tuple{"us", rightOfTab, rightOfCapsLock}, std::tuple{"fr", rightOfCapsLock, rightOfTab}}) {
    LayoutFile layout(layoutOfCountry(country));
    ASSERT_TRUE(layout.isWritten);
    WaylandKeys keys;
    keys.setLayout(std::move(layout.file), layout.size);
    EXPECT_EQ(keys.nameOf(keyOfQ), keyQ) << country;
    EXPECT_EQ(keys.nameOf(otherKey), 0U) << country;
    EXPECT_EQ(keys.nameOf(placeOfEscape), keyEscape) << country;
  }
}

TEST(WaylandKeys, ALayoutThatChangesIsRead) {
  WaylandKeys keys;
  for (const auto& [country, name] : {std::pair{"us", keyQ}, std::pair{"fr", WPARAM{0}}}) {
    LayoutFile layout(layoutOfCountry(country));
    keys.setLayout(std::move(layout.file), layout.size);
    EXPECT_EQ(keys.nameOf(rightOfTab), name) << country;
  }
}

TEST(WaylandKeys, WithoutALayoutArePlaces) {
  WaylandKeys keys;
  EXPECT_EQ(keys.nameOf(placeOfEscape), keyEscape);
  EXPECT_EQ(keys.nameOf(rightOfTab), keyQ);
  EXPECT_EQ(keys.nameOf(rightOfCapsLock), 0U);
}

TEST(WaylandKeys, ALayoutThatCannotBeReadIsNone) {
  LayoutFile layout("no layout at all");
  WaylandKeys keys;
  keys.setLayout(std::move(layout.file), layout.size);
  EXPECT_EQ(keys.nameOf(rightOfTab), keyQ);
  keys.setLayout(FileDescriptor(), 100);
  EXPECT_EQ(keys.nameOf(placeOfEscape), keyEscape);
  keys.setLayout(FileDescriptor(::memfd_create("empty", MFD_CLOEXEC)), 0);
  EXPECT_EQ(keys.nameOf(placeOfEscape), keyEscape);
}

}  // namespace
