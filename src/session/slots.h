// slots.h -- the fixed array of the program: slots 1 to N, every access checked.
//
// Slot 0 is there and its content is never used, so that an index left at 0 is harmless. Any other index outside 1 to N
// is failure 9, and never a write beside the record.
#pragma once

#include "session/failure.h"

#include <array>
#include <cstddef>

template <class T, int N>
struct Slots {
    static constexpr int Bound = N;
    T& operator[](int i)
    {
        if (i < 0 || i > N)
            throw RunTimeError{SubscriptOutOfRange};
        return slot[static_cast<std::size_t>(i)];
    }
    const T& operator[](int i) const
    {
        if (i < 0 || i > N)
            throw RunTimeError{SubscriptOutOfRange};
        return slot[static_cast<std::size_t>(i)];
    }
    std::array<T, N + 1> slot{};
};
