// The moon's young craters, from north to south.
#include <array>

#include "moonCraterTable.h"

namespace {

constexpr CraterKind fresh = CraterKind::fresh;
constexpr CraterKind bright = CraterKind::bright;

constexpr std::array craters = std::to_array<Crater>({
    {"Anaxagoras", {73.4, -10.1}, 52, bright},  {"Philolaus", {72.1, -32.4}, 71, fresh},
    {"Carpenter", {69.4, -50.9}, 59, fresh},    {"Pythagoras", {63.5, -63.0}, 142, fresh},
    {"Timaeus", {62.8, -0.5}, 32, fresh},       {"Thales", {61.8, 50.3}, 31, bright},
    {"Archytas", {58.7, 5.0}, 31, fresh},       {"Harpalus", {52.6, -43.4}, 39, fresh},
    {"Aristoteles", {50.2, 17.4}, 87, fresh},   {"Burg", {45.0, 28.2}, 40, fresh},
    {"Eudoxus", {44.3, 16.3}, 67, fresh},       {"Geminus", {34.5, 56.7}, 86, fresh},
    {"Aristillus", {33.9, 1.2}, 55, fresh},     {"Autolycus", {30.7, 1.5}, 39, fresh},
    {"Linne", {27.7, 11.8}, 9, bright},         {"Timocharis", {26.7, -13.1}, 34, bright},
    {"Lambert", {25.8, -21.0}, 30, fresh},      {"Romer", {25.4, 36.4}, 39, fresh},
    {"Aristarchus", {23.7, -47.4}, 40, bright}, {"Euler", {23.3, -29.2}, 26, bright},
    {"Bessel", {21.8, 17.9}, 16, bright},       {"Macrobius", {21.3, 46.0}, 64, fresh},
    {"Pytheas", {20.5, -20.6}, 18, bright},     {"Peirce", {18.3, 53.5}, 18, fresh},
    {"Dawes", {17.2, 26.4}, 18, bright},        {"Menelaus", {16.3, 16.0}, 27, bright},
    {"Proclus", {16.1, 46.8}, 27, bright},      {"Plinius", {15.4, 23.7}, 41, fresh},
    {"Picard", {14.6, 54.7}, 22, fresh},        {"Eratosthenes", {14.5, -11.3}, 59, fresh},
    {"Manilius", {14.5, 9.1}, 38, bright},      {"Copernicus", {9.6, -20.1}, 93, bright},
    {"Kepler", {8.1, -38.0}, 32, bright},       {"Glushko", {8.1, -77.7}, 40, bright},
    {"Ukert", {7.8, 1.4}, 23, fresh},           {"Reiner", {7.0, -54.9}, 30, fresh},
    {"Bode", {6.7, -2.4}, 18, bright},          {"Arago", {6.2, 21.4}, 26, fresh},
    {"Taruntius", {5.6, 46.5}, 56, fresh},      {"Cavalerius", {5.1, -66.8}, 58, fresh},
    {"Encke", {4.7, -36.6}, 28, fresh},         {"Triesnecker", {4.2, 3.6}, 25, bright},
    {"Agrippa", {4.1, 10.5}, 44, fresh},        {"Reinhold", {3.3, -22.8}, 43, fresh},
    {"Dionysius", {2.8, 17.3}, 18, bright},     {"Maskelyne", {2.2, 30.1}, 24, fresh},
    {"Godin", {1.8, 10.2}, 34, bright},         {"Lansberg", {-0.3, -26.6}, 39, fresh},
    {"Censorinus", {-0.4, 32.7}, 16, bright},   {"Mosting", {-0.7, -5.9}, 24, fresh},
    {"Messier", {-1.9, 47.6}, 11, bright},      {"Delambre", {-1.9, 17.5}, 52, fresh},
    {"Messier A", {-2.0, 46.9}, 12, bright},    {"Mosting A", {-3.2, -5.2}, 13, bright},
    {"Lalande", {-4.4, -8.6}, 24, bright},      {"Flamsteed", {-4.5, -44.3}, 21, fresh},
    {"Alfraganus", {-5.4, 19.0}, 20, bright},   {"Herschel", {-5.7, -2.1}, 39, fresh},
    {"Langrenus", {-8.9, 61.1}, 132, bright},   {"Kant", {-10.6, 20.1}, 33, fresh},
    {"Madler", {-11.0, 29.8}, 28, fresh},       {"Theophilus", {-11.4, 26.4}, 99, fresh},
    {"Sirsalis", {-12.5, -60.4}, 42, fresh},    {"Rosse", {-17.9, 35.0}, 12, bright},
    {"Arzachel", {-18.2, -1.9}, 97, fresh},     {"Petavius B", {-19.9, 57.1}, 33, bright},
    {"Bullialdus", {-20.7, -22.2}, 61, fresh},  {"Thebit", {-22.0, -4.0}, 57, fresh},
    {"Birt", {-22.4, -8.5}, 16, bright},        {"Byrgius A", {-24.6, -63.8}, 19, bright},
    {"Werner", {-28.0, 3.3}, 70, fresh},        {"Piccolomini", {-29.7, 32.2}, 88, fresh},
    {"Stevinus A", {-31.8, 51.6}, 13, bright},  {"Lindenau", {-32.3, 24.9}, 53, fresh},
    {"Stevinus", {-32.5, 54.2}, 75, fresh},     {"Hell Q", {-33.0, -4.4}, 14, bright},
    {"Furnerius A", {-33.5, 59.0}, 14, bright}, {"Tycho", {-43.3, -11.2}, 85, bright},
    {"Zucchius", {-61.4, -50.3}, 64, fresh},
});

}  // namespace

std::span<const Crater> youngCraters() {
  return craters;
}
