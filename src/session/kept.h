// kept.h -- variables that are put back at the end of a scope, and the records that every drawing run changes.
#pragma once

#include <functional>
#include <memory>
#include <vector>

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

// Says at the definition of a shared record that drawing runs change it, so that no list of them is kept by hand:
//     LogGeometryRecord LogGeometry;
//     static const RunRecord geometryOfRun(LogGeometry);
class RunRecord
{
public:
    template <class T>
    explicit RunRecord(T& record)
    {
        Add([&record]() -> std::shared_ptr<void> { return std::make_shared<Kept<T>>(record); });
    }

private:
    static void Add(std::function<std::shared_ptr<void>()> keep);
};

// A run in the midst of another one, or one that nobody is to notice: all records of runs are put back at the end of
// the scope. What the run writes on the disk is the caller's to put back.
class RunKept
{
public:
    RunKept();
    RunKept(const RunKept&) = delete;
    RunKept& operator=(const RunKept&) = delete;

private:
    std::vector<std::shared_ptr<void>> records;
};
