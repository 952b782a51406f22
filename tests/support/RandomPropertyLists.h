// Property lists made at random, the same ones for the same seed.
#pragma once

#include "platform/Foundation/PropertyList.h"

#include <cstdint>
#include <random>
#include <string>

namespace brimsound::tests {

class RandomPropertyLists {
public:
    explicit RandomPropertyLists(std::uint32_t seed);

    /// A value of any type, with up to a few hundred others in it.
    PropertyList value();
    /// A binary file such as no tidy writer makes: with objects that several containers share, and numbers,
    /// counts, references and offsets that are longer than need be.
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
