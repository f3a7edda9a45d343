// Remembers which face answers which request, and keeps a few faces open.
#pragma once

#include <cstddef>
#include <list>
#include <map>
#include <utility>
#include <vector>

#include "graphics/linux/fontCatalogue.h"
#include "graphics/linux/fontFace.h"

// Faces are counted from 0; a number stays with its file for the cache's life.
class FontCache {
 public:
  static constexpr int noFace = -1;

  // The face for the request; noFace where the system has no font.
  int faceFor(const FontRequest& request);
  // A face that has the character; noFace where none has it.
  int faceWithCharacter(const FontRequest& request, char32_t character);
  // The open face; null where its file cannot be read (any more). Valid until the next call.
  FontFace* open(int face);

 private:
  static constexpr std::size_t maxOpenFaces = 8;
  static constexpr std::size_t maxRequests = 64;
  static constexpr std::size_t maxCharacters = 8192;
  using RequestKey = std::pair<std::string, bool>;
  struct OpenFace {
    int number;
    FontFace face;
  };

  int numberOf(const std::optional<FontFile>& file);

  FontCatalogue m_catalogue;
  FontLibrary m_library;
  std::vector<FontFile> m_files;  // by number
  std::map<RequestKey, int> m_requests;
  std::map<std::pair<RequestKey, char32_t>, int> m_characters;
  std::list<OpenFace> m_open;  // the last used one first
};
