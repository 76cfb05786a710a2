// kept.h -- a variable put back at the end of a scope, for work that the session is not to notice.
#pragma once

#include <memory>
#include <utility>

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
