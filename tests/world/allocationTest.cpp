// A frame takes no memory: every allocation of the program is counted.
#include <atomic>
#include <cstdlib>
#include <new>

#include "oldTvFixture.h"
#include "worldFixture.h"

namespace {

std::atomic<long> allocations{0};

}  // namespace

void* operator new(std::size_t size) {
  ++allocations;
  if (void* memory = std::malloc(size == 0 ? 1 : size)) {
    return memory;
  }
  throw std::bad_alloc();
}

void operator delete(void* memory) noexcept {
  std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
  std::free(memory);
}

namespace {

TEST_F(World, TakesNoMemoryForAFrame) {
  for (const int background : {0, 2, 3}) {
    xplUserSettings().set("background", background);
    leaveOnlyStars();
    const auto world = makeWorld(160, 120);
    world->initializeWorld();
    world->update(0.04F);
    world->draw();
    const long before = allocations.load();
    for (int i = 0; i < 100; ++i) {
      world->update(0.04F);
      world->draw();
    }
    EXPECT_EQ(before, allocations.load()) << "background " << background;
  }
}

TEST_F(OldTv, TakesNoMemoryForAFrame) {
  makeEffect(160, 120);
  effect->draw();  // shows the whole desktop, for which a list of parts may grow once
  const long before = allocations.load();
  EXPECT_EQ(25, framesToTheEnd());
  EXPECT_EQ(before, allocations.load());
}

TEST_F(World, IsBuiltOfMemoryThatIsCounted) {
  const long before = allocations.load();
  const auto world = makeWorld(160, 120);
  EXPECT_GE(allocations.load() - before, static_cast<long>(TnoctisWorld::starCount));
}

}  // namespace
