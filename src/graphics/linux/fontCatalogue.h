// Finds the font file for a face name, and for a character that a face lacks, through fontconfig.
#pragma once

#include <memory>
#include <optional>
#include <string>

struct FontFile {
  std::string path;
  int index = 0;  // the face inside the file, as FreeType counts

  friend bool operator==(const FontFile&, const FontFile&) = default;
};

struct FontRequest {
  std::string faceName;
  bool thin = false;

  friend bool operator==(const FontRequest&, const FontRequest&) = default;
};

// Reads the system's font configuration when it is made. Answers are not kept: ask once for each face, and
// once for each character.
class FontCatalogue {
 public:
  FontCatalogue();
  ~FontCatalogue();
  FontCatalogue(const FontCatalogue&) = delete;
  FontCatalogue& operator=(const FontCatalogue&) = delete;

  // The file nearest to the request; nothing only where the system has no font with outlines. A thin face is
  // taken only from the family that the same name gives without it.
  std::optional<FontFile> find(const FontRequest& request) const;
  // The name of the family that is nearest to the request; "" where there is none.
  std::string familyOf(const FontRequest& request) const;
  // A file that has the character, as near to the request as there is one; nothing where no font with
  // outlines has it. Quick while the requests are the same.
  std::optional<FontFile> findWithCharacter(const FontRequest& request, char32_t character) const;

 private:
  class Configuration;
  std::unique_ptr<Configuration> m_configuration;
};
