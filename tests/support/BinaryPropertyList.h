// Binary property lists built by hand, including some that no writer produces.
#pragma once

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace brimsound::tests {

/// A file of those objects, the root first. The objects are given as bytes; references take two bytes.
std::string binaryFile(const std::vector<std::string>& objects);

/// A file in which an object starts at each of these bytes.
std::string overlappingFile(const std::string& objects);

/// An array of references to the objects with those numbers.
std::string arrayOf(std::initializer_list<int> references);
/// An array with many references to one object.
std::string arrayOfCopies(std::size_t count, int reference);
/// A dictionary with one key and one value, given by their object numbers.
std::string dictionaryOf(int key, int value);
/// A dictionary with several keys and as many values, given by their object numbers.
std::string dictionaryOf(const std::vector<int>& keys, const std::vector<int>& values);
/// A string marked as ASCII, whatever bytes it contains.
std::string stringOf(std::string_view bytes);

/// The text repeated that many times.
std::string repeat(std::string_view text, std::size_t times);

/// 65,536 keys with the same hash in hash functions that multiply by 33, as many do: each consists of pairs
/// of characters that can be exchanged for another pair.
std::vector<std::string> collidingKeys();

} // namespace brimsound::tests
