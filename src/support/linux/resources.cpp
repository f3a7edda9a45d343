// Finds resources in the table that the assembler put into the program.
#include "support/linux/resources.h"

#include "support/linux/resourceTable.h"

std::optional<std::span<const std::uint8_t>> findResource(std::string_view type, int id) {
  for (const LunariaResource* entry = lunariaResourceTable; entry->type != nullptr; ++entry) {
    if (type == entry->type && static_cast<std::int64_t>(entry->id) == id) {
      return std::span(entry->data, entry->size);
    }
  }
  return std::nullopt;
}
