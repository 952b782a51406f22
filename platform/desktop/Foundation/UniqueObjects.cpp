#include "platform/desktop/Foundation/UniqueObjects.h"

#include <algorithm>
#include <cstring>
#include <random>

namespace brimsound::desktop::binary {

namespace {

constexpr std::uint64_t prime = (std::uint64_t { 1 } << 61) - 1;

const RandomHash& hashOfThisProcess()
{
    static const RandomHash chosen = [] {
        std::random_device random;
        const auto number = [&] { return std::uint64_t { random() } << 32 | random(); };
        // The factors are odd; the point is neither 0 nor 1.
        return RandomHash { number() % (prime - 2) + 2, number() | 1, number() | 1, number() | 1 };
    }();
    return chosen;
}

std::uint64_t timesModuloPrime(std::uint64_t a, std::uint64_t b)
{
    __extension__ using Wide = unsigned __int128;
    const auto product = static_cast<Wide>(a) * b;
    const auto sum = static_cast<std::uint64_t>(product & prime) + static_cast<std::uint64_t>(product >> 61);
    return sum >= prime ? sum - prime : sum;
}

/// The value of a polynomial at the point. The coefficients are the bytes, seven at a time.
std::uint64_t hashOfBytes(std::string_view bytes, std::uint64_t point)
{
    constexpr std::size_t atATime = 7;
    std::uint64_t value = bytes.size();
    while (!bytes.empty()) {
        std::uint64_t coefficient = 0;
        const auto count = std::min(atATime, bytes.size());
        std::memcpy(&coefficient, bytes.data(), count);
        bytes.remove_prefix(count);
        value = timesModuloPrime((value + coefficient) % prime, point);
    }
    return value;
}

std::uint32_t hashOf(const Object& object, const RandomHash& hash)
{
    auto value = object.number * hash.ofNumber
        + (object.more << 4 | static_cast<unsigned>(object.type)) * hash.ofMore;
    if (!object.bytes.empty())
        value += hashOfBytes(object.bytes, hash.point) * hash.ofBytes;
    // The upper bits depend on all input bits.
    return static_cast<std::uint32_t>(value >> 32);
}

} // namespace

UniqueObjects::UniqueObjects()
    : _hash(hashOfThisProcess())
{
}

std::size_t UniqueObjects::firstSlot(std::uint32_t hash) const
{
    return hash >> (32 - _logarithmOfSize);
}

UniqueObjects::Place UniqueObjects::place(const Object& object, std::vector<Object>& objects)
{
    if (2 * _used >= _slots.size())
        grow();
    const auto hash = hashOf(object, _hash);
    auto slot = firstSlot(hash);
    for (; _slots[slot].taken != 0; slot = (slot + 1) & (_slots.size() - 1)) {
        const auto number = _slots[slot].taken - 1;
        if (_slots[slot].hash == hash && objects[number].isSameAs(object))
            return { number, false };
    }
    const auto number = static_cast<std::uint32_t>(objects.size());
    objects.push_back(object);
    _slots[slot] = { hash, number + 1 };
    ++_used;
    return { number, true };
}

void UniqueObjects::grow()
{
    _logarithmOfSize += 2;
    std::vector<Slot> slots(std::size_t { 1 } << _logarithmOfSize);
    slots.swap(_slots);
    for (const auto& old : slots) {
        if (old.taken == 0)
            continue;
        auto slot = firstSlot(old.hash);
        while (_slots[slot].taken != 0)
            slot = (slot + 1) & (_slots.size() - 1);
        _slots[slot] = old;
    }
}

} // namespace brimsound::desktop::binary
