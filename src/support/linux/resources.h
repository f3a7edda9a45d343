// The files that the program carries, found by type and id.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

// The bytes of a resource, which live as long as the process; nothing where there is none of this type and
// id. Types are the words of src/resources/resources.txt: "bitmap", "wave", "icon". The program links
// lunaria_resources.
std::optional<std::span<const std::uint8_t>> findResource(std::string_view type, int id);
