#pragma once

#include <cstdint>
#include <string>

/// What the monkey did last. It is printed where anything ends the program before its time: a
/// broken promise, a sanitizer, an assertion, an event that is never done with.
namespace mevracard::monkey {

void beginTrail(std::uint64_t seed);
/// The next event begins. It may take a minute.
void nextEvent();
/// What it consists in; several calls add up.
void note(const std::string& what);
/// Prints what is wrong and what led to it, and ends the program with status 1.
[[noreturn]] void fail(const std::string& what);

}  // namespace mevracard::monkey
