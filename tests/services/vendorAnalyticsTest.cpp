// How the vendor's library is found and called, and what becomes of its failures.
#include <cstdint>
#include <filesystem>
#include <map>

#include <gmock/gmock.h>

#include "harness/privateFolders.h"
#include "services/builtInAnalytics.h"
#include "services/services.h"
#include "services/vendorAnalytics.h"
#include "support/fileSystem.h"

using testing::ElementsAre;

namespace {

std::vector<std::wstring>& heard() {
  static std::vector<std::wstring> calls;
  return calls;
}
int& answer() {
  static int result = 0;
  return result;
}

int hearPath(const wchar_t* folder) {
  heard().push_back(folder);
  return answer();
}
int hearConfig(const wchar_t* address, const wchar_t* productId, const wchar_t* version, const wchar_t* build,
               std::intptr_t collectsMore) {
  heard().push_back(std::wstring(address) + L"|" + productId + L"|" + version + L"|" + build + L"|" +
                    std::to_wstring(collectsMore));
  return answer();
}
int hearStart(std::intptr_t session) {
  heard().push_back(L"start " + std::to_wstring(session));
  return answer();
}
int hearStop(std::intptr_t session) {
  heard().push_back(L"stop " + std::to_wstring(session));
  return answer();
}

class FakeLibrary : public xpliSharedLibrary {
 public:
  explicit FakeLibrary(const std::string& without) { m_functions.erase(without); }
  void* find(const char* function) const override {
    const auto found = m_functions.find(function);
    return found == m_functions.end() ? nullptr : found->second;
  }

 private:
  std::map<std::string, void*> m_functions = {{"tbSetFilePath", reinterpret_cast<void*>(hearPath)},
                                              {"tbCreateConfig", reinterpret_cast<void*>(hearConfig)},
                                              {"tbStart", reinterpret_cast<void*>(hearStart)},
                                              {"tbStop", reinterpret_cast<void*>(hearStop)}};
};

class Vendor : public PrivateFolders {
 protected:
  Vendor() {
    heard().clear();
    answer() = 0;
  }
  static VendorAnalytics make(const std::string& without = "") {
    return VendorAnalytics(std::make_unique<FakeLibrary>(without));
  }
  static void callAll(xpliAnalytics& library) {
    library.setFilePath("folder");
    library.createConfig("address", "id", "version", "build", false);
    library.start();
    library.stop();
  }
  // A folder of the program's own, with this file under the name of the vendor's library. Each has another
  // name: a path that was loaded once stays loaded, whatever lies there later.
  std::string folderWith(const std::string& source) const {
    static int number = 0;
    const std::string folder = xplFileSystemMini::joinPath(root(), "program" + std::to_string(++number));
    xplFileSystemMini::createFolder(folder);
    std::filesystem::permissions(folder, std::filesystem::perms::owner_all);
    const std::string target = xplFileSystemMini::joinPath(folder, xplAnalyticsLibraryName());
    std::filesystem::copy_file(source, target);
    std::filesystem::permissions(target, std::filesystem::perms::owner_all);
    return folder;
  }
};

TEST_F(Vendor, PassesWideTexts) {
  auto library = make();
  callAll(library);
  EXPECT_THAT(heard(), ElementsAre(L"folder", L"address|id|version|build|0", L"start 0", L"stop 0"));
  EXPECT_EQ(library.takeErrors(), "");
}

// The character is an e with an acute accent: of two bytes on Linux, of one in the code page of western
// Windows.
TEST_F(Vendor, TextsBeyondAsciiAreWidened) {
  const std::wstring wide = xplWiden("caf\xC3\xA9");
  const bool isUtf8 = wide == L"caf\u00E9";
  const bool isCodePage1252 = wide == L"caf\u00C3\u00A9";
  EXPECT_TRUE(isUtf8 || isCodePage1252) << testing::PrintToString(wide);
}

TEST_F(Vendor, AMalformedTextIsWidenedToItsEnd) {
  const std::wstring wide = xplWiden(std::string("a\xFF\0b", 4));
  ASSERT_EQ(wide.size(), 4U);
  EXPECT_EQ(wide[0], L'a');
  EXPECT_EQ(wide[2], L'\0');
  EXPECT_EQ(wide[3], L'b');
}

TEST_F(Vendor, TellsTheResultForThePath) {
  auto library = make();
  answer() = -11;
  EXPECT_EQ(library.setFilePath("folder"), -11);
  EXPECT_EQ(library.takeErrors(), "");
}

TEST_F(Vendor, AFailedCallIsAPendingError) {
  auto library = make();
  answer() = -3;
  EXPECT_EQ(library.start(), -3);
  EXPECT_EQ(library.stop(), -3);
  EXPECT_EQ(library.takeErrors(), "tbStart failed with -3; tbStop failed with -3");
  EXPECT_EQ(library.takeErrors(), "");
}

TEST_F(Vendor, AMissingFunctionIsAPendingErrorAndTheOthersAreCalled) {
  for (const std::string name : {"tbSetFilePath", "tbCreateConfig", "tbStart", "tbStop"}) {
    heard().clear();
    auto library = make(name);
    callAll(library);
    EXPECT_EQ(heard().size(), 3U) << name;
    EXPECT_EQ(library.takeErrors(), "the library has no " + name);
  }
}

TEST_F(Vendor, IsLoadedFromTheProgramsFolder) {
  const std::string folder = folderWith(LUNARIA_TRACKERBIRD_RECORDER);
  const auto library = VendorAnalytics::load(folder);
  ASSERT_TRUE(library) << logText();
  library->setFilePath(root());
  library->createConfig("address", "id", "version", "build", false);
  library->start();
  library->stop();
  EXPECT_EQ(library->takeErrors(), "");
  EXPECT_EQ(readFile(xplFileSystemMini::joinPath(root(), "calls.txt")),
            "tbSetFilePath\ntbCreateConfig address id version build false\ntbStart 0\ntbStop 0\n");
}

TEST_F(Vendor, TheServicesOfThePlatformPreferIt) {
  const auto services = xplServices::ofPlatform();
  const auto library = services.makeAnalytics(folderWith(LUNARIA_TRACKERBIRD_RECORDER));
  EXPECT_NE(dynamic_cast<VendorAnalytics*>(library.get()), nullptr) << logText();
}

TEST_F(Vendor, WhereThereIsNoneTheStandInTakesItsPlaceWithoutAWord) {
  const auto library = xplServices::ofPlatform().makeAnalytics(root());
  EXPECT_NE(dynamic_cast<BuiltInAnalytics*>(library.get()), nullptr);
  EXPECT_TRUE(logWarning().isEmpty());
}

TEST_F(Vendor, IsNeverLookedForWithoutAFolder) {
  EXPECT_EQ(VendorAnalytics::load(""), nullptr);
}

TEST_F(Vendor, IsNotLoadedByAPathThatIsNotFull) {
  const std::string name = xplAnalyticsLibraryName();
  const auto before = std::filesystem::current_path();
  std::filesystem::current_path(folderWith(LUNARIA_TRACKERBIRD_RECORDER));
  EXPECT_EQ(VendorAnalytics::load("."), nullptr);
  std::filesystem::current_path(before);
  EXPECT_THAT(logText(), testing::HasSubstr("is not loaded: its path is not a full one"));
}

TEST_F(Vendor, ADamagedLibraryIsLoggedAndTheStandInTakesItsPlace) {
  const std::string damaged = xplFileSystemMini::joinPath(root(), "damaged");
  writeFile(damaged, "no library at all");
  const std::string folder = folderWith(damaged);
  const auto library = xplServices::ofPlatform().makeAnalytics(folder);
  EXPECT_NE(dynamic_cast<BuiltInAnalytics*>(library.get()), nullptr);
  EXPECT_THAT(logText(), testing::HasSubstr(" cannot be loaded: "));
}

}  // namespace
