// slots.h -- the fixed array of the program: slots 1 to N, every access checked.
//
// Slot 0 is there and its content is never used, so that an index left at 0 is harmless. Any other index outside 1 to N
// is failure 9, and never a write beside the record.
#pragma once

#include "session/failure.h"

#include <array>
#include <cstddef>
#include <deque>

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

// The same, of which only the slots that have been asked for are there: a copy of a large record costs no more than
// what it holds. A slot stays where it is until all are dropped.
template <class T, int N>
struct GrowingSlots {
    static constexpr int Bound = N;
    T& operator[](int i)
    {
        return At(i);
    }
    const T& operator[](int i) const
    {
        return At(i);
    }
    void Clear()
    {
        slot.clear();
    }

private:
    T& At(int i) const
    {
        if (i < 0 || i > N)
            throw RunTimeError{SubscriptOutOfRange};
        if (static_cast<std::size_t>(i) >= slot.size())
            slot.resize(static_cast<std::size_t>(i) + 1);
        return slot[static_cast<std::size_t>(i)];
    }
    mutable std::deque<T> slot; // one that is looked at and was never written is empty
};
