// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

/// An Objective-C runtime whose objects answer by selector, for sources that only send messages. ARC's calls
/// keep no count here.
namespace standin::objc {

/// What a method returns, in the registers of integers and pointers and of real numbers.
struct Answer
{
    std::uint64_t word;
    double real;
};

using Method = std::function<Answer(const std::uint64_t *arguments)>;

struct Thing
{
    std::string name;
    std::map<std::string, Method> methods;
    const void *itsClass = nullptr;
    std::vector<const void *> elements; ///< of an array
};

Answer word(std::uint64_t value);
Answer pointer(const void *value);
Answer real(double value);
Method answers(Answer answer);

/// Objects live until the program ends.
Thing *thing(std::string name, std::map<std::string, Method> methods = {}, const void *itsClass = nullptr);
Thing *string(std::string utf8);
Thing *array(std::vector<const void *> elements);

/// The characters of a literal @"…".
std::string literal(std::uint64_t argument);

/// Gives a class that the sources know by its symbol its methods.
Thing &classNamed(const void *symbol, const char *name);

/// For methods that return a structure in memory: its bytes, by selector.
extern std::map<std::string, std::vector<std::uint8_t>> structures;

/// Messages that no test answers. A selector that is misspelt ends up here.
extern std::vector<std::string> unanswered;

/// The system that @available asks about.
extern int system;

} // namespace standin::objc

#define CLASS(name)                                                                                          \
    extern "C" {                                                                                             \
    extern int class##name asm("OBJC_CLASS_$_" #name);                                                       \
    int class##name;                                                                                         \
    }                                                                                                        \
    static ::standin::objc::Thing &name = ::standin::objc::classNamed(&class##name, #name)
