// The moon's mountains, each crest from one end to the other.
#include "moonRangeTable.h"

#include <array>

namespace {

constexpr auto apenninus = std::to_array<Place>(
    {{15.0, -9.5}, {16.5, -6.5}, {18.5, -3.5}, {20.3, -0.8}, {23.0, 1.8}, {25.5, 4.2}, {28.0, 6.0}});
constexpr auto caucasus = std::to_array<Place>({{32.0, 9.0}, {35.0, 9.6}, {38.5, 9.8}, {41.5, 8.8}});
constexpr auto alpes = std::to_array<Place>({{42.5, 5.5}, {45.5, 2.8}, {48.0, -0.5}, {49.8, -4.5}});
constexpr auto jura = std::to_array<Place>(
    {{41.5, -36.3}, {45.0, -38.0}, {48.0, -36.0}, {49.0, -31.5}, {48.0, -27.0}, {46.3, -25.0}});
constexpr auto carpatus = std::to_array<Place>({{15.0, -18.5}, {14.8, -23.0}, {14.6, -28.0}});
constexpr auto haemus = std::to_array<Place>({{21.0, 9.0}, {18.0, 12.5}, {16.0, 16.5}, {15.0, 20.0}});
constexpr auto riphaeus = std::to_array<Place>({{-4.5, -26.5}, {-7.5, -27.6}, {-9.5, -28.0}});
constexpr auto altai = std::to_array<Place>({{-17.8, 20.8}, {-22.0, 22.3}, {-25.5, 24.8}, {-28.5, 28.5}});
constexpr auto cordillera =
    std::to_array<Place>({{-8.0, -79.5}, {-15.0, -80.5}, {-22.0, -81.5}, {-28.0, -83.5}});
constexpr auto taurus = std::to_array<Place>({{24.5, 32.5}, {27.0, 37.0}, {29.5, 41.5}});

constexpr std::array<Range, 10> ranges = {{
    {"Montes Apenninus", 2.2, 0.10, apenninus},
    {"Montes Caucasus", 1.5, 0.08, caucasus},
    {"Montes Alpes", 1.5, 0.08, alpes},
    {"Montes Jura", 1.5, 0.07, jura},
    {"Montes Carpatus", 0.9, 0.10, carpatus},
    {"Montes Haemus", 1.5, 0.06, haemus},
    {"Montes Riphaeus", 0.8, 0.16, riphaeus},
    {"Rupes Altai", 0.9, 0.09, altai},
    {"Montes Cordillera", 1.5, 0.05, cordillera},
    {"Montes Taurus", 2.0, 0.05, taurus},
}};

}  // namespace

std::span<const Range> mountainRanges() {
  return ranges;
}
