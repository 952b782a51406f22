// Binary property lists put together by hand, for what no writer writes.
#pragma once

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace brimsound::tests {

/// A file whose objects, the root first, are given as bytes; references are two bytes long.
std::string binaryFile(const std::vector<std::string>& objects);

/// A file that has an object start at each of these bytes.
std::string overlappingFile(const std::string& objects);

/// An array of the objects at those places.
std::string arrayOf(std::initializer_list<int> references);
/// An array that refers to one object many times.
std::string arrayOfCopies(std::size_t count, int reference);
/// A dictionary from the string at one place to the object at another.
std::string dictionaryOf(int key, int value);
/// A dictionary from the strings at some places to the objects at as many others.
std::string dictionaryOf(const std::vector<int>& keys, const std::vector<int>& values);
/// A string marked as ASCII, whatever its bytes are.
std::string stringOf(std::string_view bytes);

/// The text that many times.
std::string repeat(std::string_view text, std::size_t times);

/// 65,536 keys of one hash for a hash that multiplies by 33, as many do: two characters after one another
/// stand for two others.
std::vector<std::string> collidingKeys();

} // namespace brimsound::tests
