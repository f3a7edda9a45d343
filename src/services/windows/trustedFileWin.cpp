// Who could change a file on Windows, read from the access lists of the file and its folders.
#include <array>
#include <cstddef>
#include <string>

#include "services/platform.h"
#include "support/fileSystem.h"
#include "support/windows/shellHeaders.h"

// These build on the above.
#include <aclapi.h>
#include <sddl.h>

namespace {

constexpr ACCESS_MASK changeRights = FILE_WRITE_DATA | FILE_APPEND_DATA | FILE_DELETE_CHILD | DELETE |
                                     WRITE_DAC | WRITE_OWNER | GENERIC_WRITE | GENERIC_ALL;
// With these one puts another folder in the place of one below.
constexpr ACCESS_MASK replaceRights = FILE_DELETE_CHILD | WRITE_DAC | WRITE_OWNER | GENERIC_ALL;
// The account under which Windows installs itself; it has no well-known number.
constexpr char trustedInstaller[] = "S-1-5-80-956008885-3418522649-1831038044-1853292631-2271478464";

// Memory that the system gave out, freed with the object.
template <class T>
class LocalMemory {
 public:
  LocalMemory() = default;
  ~LocalMemory() { LocalFree(m_pointer); }
  LocalMemory(const LocalMemory&) = delete;
  LocalMemory& operator=(const LocalMemory&) = delete;
  T* place() { return &m_pointer; }
  T get() const { return m_pointer; }

 private:
  T m_pointer = nullptr;
};

bool isCurrentUser(PSID account) {
  HANDLE token = nullptr;
  if (OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token) == FALSE) {
    return false;
  }
  alignas(TOKEN_USER) std::array<std::byte, sizeof(TOKEN_USER) + SECURITY_MAX_SID_SIZE> user{};
  DWORD size = 0;
  const bool known =
      GetTokenInformation(token, TokenUser, user.data(), static_cast<DWORD>(user.size()), &size) != FALSE;
  CloseHandle(token);
  return known && EqualSid(account, reinterpret_cast<const TOKEN_USER*>(user.data())->User.Sid) != FALSE;
}

bool isTrustedInstaller(PSID account) {
  LocalMemory<PSID> installer;
  return ConvertStringSidToSidA(trustedInstaller, installer.place()) != FALSE &&
         EqualSid(account, installer.get()) != FALSE;
}

// The user and the accounts that may do everything anyway.
bool isTrusted(PSID account) {
  for (const auto kind : {WinBuiltinAdministratorsSid, WinLocalSystemSid, WinCreatorOwnerSid}) {
    if (IsWellKnownSid(account, kind) != FALSE) {
      return true;
    }
  }
  return isCurrentUser(account) || isTrustedInstaller(account);
}

// True where an entry gives somebody else one of the rights. Entries of unknown kinds count as if they did.
bool givesAway(const ACE_HEADER& header, ACCESS_MASK rights) {
  if ((header.AceFlags & INHERIT_ONLY_ACE) != 0 || header.AceType == ACCESS_DENIED_ACE_TYPE) {
    return false;
  }
  if (header.AceType != ACCESS_ALLOWED_ACE_TYPE) {
    return true;
  }
  const auto& entry = reinterpret_cast<const ACCESS_ALLOWED_ACE&>(header);
  const auto account = const_cast<DWORD*>(&entry.SidStart);
  return (entry.Mask & rights) != 0 && !isTrusted(account);
}

// True where nobody else has one of the rights on a file or folder, nor could give them to themselves.
bool isOursAlone(const std::string& path, ACCESS_MASK rights) {
  const DWORD attributes = GetFileAttributesA(path.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0) {
    return false;
  }
  PSID owner = nullptr;
  PACL list = nullptr;
  LocalMemory<PSECURITY_DESCRIPTOR> descriptor;
  if (GetNamedSecurityInfoA(path.c_str(), SE_FILE_OBJECT,
                            OWNER_SECURITY_INFORMATION | DACL_SECURITY_INFORMATION, &owner, nullptr, &list,
                            nullptr, descriptor.place()) != ERROR_SUCCESS ||
      owner == nullptr || list == nullptr || !isTrusted(owner)) {
    return false;
  }
  for (DWORD i = 0; i < list->AceCount; ++i) {
    void* entry = nullptr;
    if (GetAce(list, i, &entry) == FALSE || givesAway(*static_cast<const ACE_HEADER*>(entry), rights)) {
      return false;
    }
  }
  return true;
}

}  // namespace

bool xplOnlyUserCanChange(const std::string& path, std::string& reason) {
  constexpr std::size_t rootLength = 3;  // "C:\"
  if (path.size() <= rootLength || path[1] != ':' || !xplFileSystemMini::isSeparator(path[2])) {
    reason = "its path is not a full one on a drive";
    return false;
  }
  std::string folder = xplFileSystemMini::folderOf(path);
  bool isOwn = isOursAlone(path, changeRights);
  for (bool isNearest = true; isOwn; isNearest = false) {
    const bool isRoot = folder.size() < rootLength;
    isOwn = isOursAlone(isRoot ? folder + "\\" : folder, isNearest ? changeRights
                                                         : isRoot  ? replaceRights
                                                                   : replaceRights | DELETE);
    if (isRoot) {
      break;
    }
    folder = xplFileSystemMini::folderOf(folder);
  }
  if (!isOwn) {
    reason = "others can change it or its folder";
  }
  return isOwn;
}
