// The growable arrays of the netlist: contents survive growth across the
// size where an array moves from the heap into pages of its own, and back
// when it shrinks.
#include "db/PodArray.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace {

// A 12-byte element: the page size is no multiple of it.
struct Triple {
  uint32_t a, b, c;
};

constexpr size_t kPagedCount = cdm::kPagedBytes / sizeof(Triple);

void ExpectTriples(const cdm::PodArray<Triple>& array, size_t count) {
  ASSERT_EQ(array.size(), count);
  for (size_t i = 0; i < count; ++i) {
    const Triple& t = array[i];
    if (t.a != i || t.b != 2 * i || t.c != 3 * i) {
      ADD_FAILURE() << "element " << i << " is " << t.a << " " << t.b << " " << t.c;
      return;
    }
  }
}

cdm::PodArray<Triple> Filled(size_t count) {
  cdm::PodArray<Triple> array;
  for (size_t i = 0; i < count; ++i)
    array.push_back(Triple{static_cast<uint32_t>(i), static_cast<uint32_t>(2 * i),
                           static_cast<uint32_t>(3 * i)});
  return array;
}

TEST(PodArrayTest, GrowsIntoPagesAndBackKeepingItsElements) {
  // Pushed one by one from empty to three times the paged size: the array
  // starts in the heap, moves into pages, and is remapped as it grows.
  cdm::PodArray<Triple> array = Filled(3 * kPagedCount + 7);
  ExpectTriples(array, 3 * kPagedCount + 7);
  EXPECT_GE(array.capacity(), array.size());

  // Shrunk while still paged, then below the paged size: back in the heap.
  array.resize(2 * kPagedCount);
  array.shrink_to_fit();
  ExpectTriples(array, 2 * kPagedCount);
  array.resize(kPagedCount / 2);
  array.shrink_to_fit();
  EXPECT_EQ(array.capacity(), kPagedCount / 2);
  ExpectTriples(array, kPagedCount / 2);

  // And out again, in one step.
  array.reserve(2 * kPagedCount);
  ExpectTriples(array, kPagedCount / 2);
  array.clear();
  EXPECT_EQ(array.size(), 0u);
  EXPECT_EQ(array.capacity(), 0u);
}

TEST(PodArrayTest, PagedArraysCopyMoveAndFill) {
  const cdm::PodArray<Triple> paged = Filled(kPagedCount + 1);
  cdm::PodArray<Triple> copy = paged;  // a copy of a paged array
  ExpectTriples(copy, kPagedCount + 1);
  cdm::PodArray<Triple> small = Filled(3);
  small = paged;  // a small array given a paged one's contents
  ExpectTriples(small, kPagedCount + 1);
  cdm::PodArray<Triple> moved = std::move(copy);
  ExpectTriples(moved, kPagedCount + 1);
  EXPECT_EQ(copy.size(), 0u);

  // New elements of resize take the given value across the boundary.
  cdm::PodArray<uint8_t> bytes;
  bytes.resize(10, 1);
  bytes.resize(cdm::kPagedBytes + 10, 2);
  EXPECT_EQ(bytes[9], 1);
  EXPECT_EQ(bytes[10], 2);
  EXPECT_EQ(bytes[cdm::kPagedBytes + 9], 2);
  bytes.assign(cdm::kPagedBytes * 2, 3);
  EXPECT_EQ(bytes[0], 3);
  EXPECT_EQ(bytes[cdm::kPagedBytes * 2 - 1], 3);
}

}  // namespace
