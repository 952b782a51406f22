#pragma once

#include "platform/desktop/Foundation/BinaryObject.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace brimsound::desktop::binary {

/// The random parameters of a hash function.
struct RandomHash {
    std::uint64_t point;
    std::uint64_t ofNumber;
    std::uint64_t ofMore;
    std::uint64_t ofBytes;
};

/// Finds equal objects in a property list that is being written: a hash table with open addressing. The hash
/// function is chosen at random when the process starts, so that a file cannot be made whose values all
/// collide.
class UniqueObjects {
public:
    UniqueObjects();

    struct Place {
        std::uint32_t number;
        bool isNew;
    };

    /// The position of the object in `objects`. A new object is appended.
    Place place(const Object&, std::vector<Object>& objects);

private:
    struct Slot {
        std::uint32_t hash;
        /// The object's number plus one; 0 for a free slot.
        std::uint32_t taken;
    };

    std::size_t firstSlot(std::uint32_t hash) const;
    void grow();

    const RandomHash& _hash;
    static constexpr unsigned smallest = 10;
    unsigned _logarithmOfSize = smallest;
    std::size_t _used = 0;
    std::vector<Slot> _slots = std::vector<Slot>(std::size_t { 1 } << smallest);
};

} // namespace brimsound::desktop::binary
