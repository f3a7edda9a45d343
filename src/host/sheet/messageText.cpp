// Implements the tidying of texts.
#include "host/sheet/messageText.h"

namespace {

constexpr char firstPrintable = ' ';
constexpr char deleteCharacter = '\x7f';

bool isControlCharacter(char character) {
  // Bytes above 127 belong to letters of the code page or of UTF-8.
  return (static_cast<unsigned char>(character) < static_cast<unsigned char>(firstPrintable)) ||
         character == deleteCharacter;
}

std::string tidy(std::string_view text, const char* lineBreak) {
  std::string result;
  result.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char character = text[i];
    if (character == '\r' || character == '\n') {
      result += lineBreak;
      const bool isPair = character == '\r' && i + 1 < text.size() && text[i + 1] == '\n';
      i += isPair ? 1 : 0;
    } else if (character == '\t') {
      result += ' ';
    } else if (!isControlCharacter(character)) {
      result += character;
    }
  }
  return result;
}

}  // namespace

std::string tidyMessage(std::string_view text) {
  return tidy(text, "\r\n");
}

std::string tidyBottomLine(std::string_view text) {
  return tidy(text, " ");
}
