// Random property lists. The same seed gives the same lists.
#pragma once

#include "platform/Foundation/PropertyList.h"

#include <cstdint>
#include <random>
#include <string>

namespace brimsound::tests {

class RandomPropertyLists {
public:
    explicit RandomPropertyLists(std::uint32_t seed);

    /// A value of any type, with up to a few hundred values in it.
    PropertyList value();
    /// A binary file that a careful writer would not produce, with objects that several containers share, and
    /// with numbers, counts, references and offsets longer than necessary.
    std::string file();

private:
    PropertyList scalar();
    PropertyList container(int depth);
    std::string text();
    std::string key();
    std::uint64_t bits();
    std::size_t upTo(std::size_t most);
    bool oneIn(std::size_t count) { return upTo(count - 1) == 0; }

    struct FileObject;
    FileObject fileObject(std::size_t place, const std::vector<FileObject>& later);
    std::string fileScalar();
    std::string fileText();
    std::string head(unsigned kind, std::size_t count);

    std::mt19937 _random;
    std::size_t _referenceSize = 1;
};

} // namespace brimsound::tests
