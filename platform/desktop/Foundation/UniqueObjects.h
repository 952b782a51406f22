// Equal values of a property list that is being written.
#pragma once

#include "platform/desktop/Foundation/BinaryObject.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace brimsound::desktop::binary {

/// The choice of a hash.
struct RandomHash {
    std::uint64_t point;
    std::uint64_t ofNumber;
    std::uint64_t ofMore;
    std::uint64_t ofBytes;
};

/// Finds the number of an object that is the same as one met before: a hash table with open addressing. Its
/// hash is chosen at random when the process starts, so that nobody can write a file whose values all
/// collide.
class UniqueObjects {
public:
    UniqueObjects();

    struct Place {
        std::uint32_t number;
        bool isNew;
    };

    /// Where the object is among `objects`; one that is not there yet is put at their end.
    Place place(const Object&, std::vector<Object>& objects);

private:
    struct Slot {
        std::uint32_t hash;
        /// One more than the object's number; 0 when the slot is free.
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
