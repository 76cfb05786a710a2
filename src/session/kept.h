// kept.h -- variables that are put back at the end of a scope.
#pragma once

#include <memory>

// A variable put back at the end of the scope.
template <class T>
struct Kept {
    explicit Kept(T& variable) : live(variable), before(std::make_unique<T>(variable))
    {
    }
    ~Kept()
    {
        live = std::move(*before);
    }
    Kept(const Kept&) = delete;
    Kept& operator=(const Kept&) = delete;

    T& live;
    std::unique_ptr<T> before;
};
