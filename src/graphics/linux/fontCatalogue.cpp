// Implements the search for font files.
#include "graphics/linux/fontCatalogue.h"

#include <fontconfig/fontconfig.h>

namespace {

struct PatternDeleter {
  void operator()(FcPattern* pattern) const { FcPatternDestroy(pattern); }
};
using Pattern = std::unique_ptr<FcPattern, PatternDeleter>;

struct FontSetDeleter {
  void operator()(FcFontSet* fonts) const { FcFontSetDestroy(fonts); }
};
using FontSet = std::unique_ptr<FcFontSet, FontSetDeleter>;

struct ConfigDeleter {
  void operator()(FcConfig* config) const { FcConfigDestroy(config); }
};
using Config = std::unique_ptr<FcConfig, ConfigDeleter>;

const FcChar8* asFontconfigText(const std::string& text) {
  return reinterpret_cast<const FcChar8*>(text.c_str());
}

std::string textOf(const FcPattern& pattern, const char* property) {
  FcChar8* text = nullptr;
  if (FcPatternGetString(&pattern, property, 0, &text) != FcResultMatch) {
    return {};
  }
  return reinterpret_cast<const char*>(text);
}

// Outlines can be drawn at any height; a colour font or a bitmap font cannot be drawn here at all.
bool hasOutlines(const FcPattern& pattern) {
  FcBool outline = FcFalse;
  return FcPatternGetBool(&pattern, FC_OUTLINE, 0, &outline) == FcResultMatch && outline == FcTrue;
}

bool hasCharacter(const FcPattern& pattern, char32_t character) {
  FcCharSet* covered = nullptr;
  return FcPatternGetCharSet(&pattern, FC_CHARSET, 0, &covered) == FcResultMatch &&
         FcCharSetHasChar(covered, character) == FcTrue;
}

std::optional<FontFile> fileOf(const FcPattern* pattern) {
  if (pattern == nullptr || !hasOutlines(*pattern)) {
    return std::nullopt;
  }
  FontFile file{textOf(*pattern, FC_FILE), 0};
  if (file.path.empty()) {
    return std::nullopt;
  }
  FcPatternGetInteger(pattern, FC_INDEX, 0, &file.index);
  return file;
}

Pattern patternOf(const FontRequest& request, int weight) {
  Pattern pattern(FcPatternCreate());
  if (pattern) {
    FcPatternAddString(pattern.get(), FC_FAMILY, asFontconfigText(request.faceName));
    FcPatternAddInteger(pattern.get(), FC_WEIGHT, weight);
    FcPatternAddInteger(pattern.get(), FC_SLANT, FC_SLANT_ROMAN);
    FcPatternAddInteger(pattern.get(), FC_WIDTH, FC_WIDTH_NORMAL);
    FcPatternAddBool(pattern.get(), FC_OUTLINE, FcTrue);
    FcPatternAddBool(pattern.get(), FC_COLOR, FcFalse);
    FcPatternAddBool(pattern.get(), FC_VARIABLE, FcFalse);
  }
  return pattern;
}

}  // namespace

class FontCatalogue::Configuration {
 public:
  // The nearest font's full pattern; null where there is none.
  Pattern match(FcPattern* pattern) const {
    if (!m_config || pattern == nullptr) {
      return nullptr;
    }
    FcConfigSubstitute(m_config.get(), pattern, FcMatchPattern);
    FcDefaultSubstitute(pattern);
    FcResult result = FcResultNoMatch;
    return Pattern(FcFontMatch(m_config.get(), pattern, &result));
  }

  // All fonts, the nearest to the request first; null where there is none. To match anew for each character
  // would take hundreds of times as long, and a text may lack thousands. They stay until another request.
  const FcFontSet* allFontsFor(const FontRequest& request) {
    if (m_config && m_sortedFor != request) {
      m_sortedFor = request;
      m_sorted.reset();
      if (const Pattern pattern = patternOf(request, request.thin ? FC_WEIGHT_THIN : FC_WEIGHT_REGULAR)) {
        FcConfigSubstitute(m_config.get(), pattern.get(), FcMatchPattern);
        FcDefaultSubstitute(pattern.get());
        FcResult result = FcResultNoMatch;
        m_sorted.reset(FcFontSort(m_config.get(), pattern.get(), FcFalse, nullptr, &result));
      }
    }
    return m_sorted.get();
  }

 private:
  Config m_config{FcInitLoadConfigAndFonts()};
  std::optional<FontRequest> m_sortedFor;
  FontSet m_sorted;
};

FontCatalogue::FontCatalogue() : m_configuration(std::make_unique<Configuration>()) {}

FontCatalogue::~FontCatalogue() = default;

std::optional<FontFile> FontCatalogue::find(const FontRequest& request) const {
  const Pattern regular = m_configuration->match(patternOf(request, FC_WEIGHT_REGULAR).get());
  if (regular && request.thin) {
    const Pattern thin = m_configuration->match(patternOf(request, FC_WEIGHT_THIN).get());
    if (thin && textOf(*thin, FC_FAMILY) == textOf(*regular, FC_FAMILY)) {
      return fileOf(thin.get());
    }
  }
  return fileOf(regular.get());
}

std::string FontCatalogue::familyOf(const FontRequest& request) const {
  const Pattern regular = m_configuration->match(patternOf(request, FC_WEIGHT_REGULAR).get());
  return regular ? textOf(*regular, FC_FAMILY) : "";
}

std::optional<FontFile> FontCatalogue::findWithCharacter(const FontRequest& request,
                                                         char32_t character) const {
  const FcFontSet* fonts = m_configuration->allFontsFor(request);
  for (int i = 0; fonts != nullptr && i < fonts->nfont; ++i) {
    if (hasCharacter(*fonts->fonts[i], character)) {
      if (std::optional<FontFile> file = fileOf(fonts->fonts[i])) {
        return file;
      }
    }
  }
  return std::nullopt;
}
