// Implements the cache of faces.
#include "graphics/linux/fontCache.h"

#include <algorithm>

int FontCache::numberOf(const std::optional<FontFile>& file) {
  if (!file) {
    return noFace;
  }
  const auto known = std::find(m_files.begin(), m_files.end(), *file);
  const auto number = static_cast<int>(known - m_files.begin());
  if (known == m_files.end()) {
    m_files.push_back(*file);
  }
  return number;
}

int FontCache::faceFor(const FontRequest& request) {
  const RequestKey key{request.faceName, request.thin};
  const auto known = m_requests.find(key);
  if (known != m_requests.end()) {
    return known->second;
  }
  if (m_requests.size() >= maxRequests) {
    m_requests.clear();
  }
  return m_requests[key] = numberOf(m_catalogue.find(request));
}

int FontCache::faceWithCharacter(const FontRequest& request, char32_t character) {
  const std::pair key{RequestKey{request.faceName, request.thin}, character};
  const auto known = m_characters.find(key);
  if (known != m_characters.end()) {
    return known->second;
  }
  if (m_characters.size() >= maxCharacters) {
    m_characters.clear();
  }
  return m_characters[key] = numberOf(m_catalogue.findWithCharacter(request, character));
}

FontFace* FontCache::open(int face) {
  if (face == noFace) {
    return nullptr;
  }
  const auto place = std::find_if(m_open.begin(), m_open.end(),
                                  [face](const OpenFace& open) { return open.number == face; });
  if (place != m_open.end()) {
    m_open.splice(m_open.begin(), m_open, place);
    return &m_open.front().face;
  }
  std::optional<FontFace> opened = FontFace::open(m_library, m_files[static_cast<std::size_t>(face)]);
  if (!opened) {
    return nullptr;
  }
  if (m_open.size() >= maxOpenFaces) {
    m_open.pop_back();
  }
  m_open.push_front({face, std::move(*opened)});
  return &m_open.front().face;
}
