// shared.h -- the list of the records that the whole program shares. A record is entered where it is defined, by a line
// of its own that tells its name and its kind:
//
//     BoringRecord BoringData;
//     static const SharedRecord shared[] = {{"BoringData", Kind::Document, BoringData}};
//
// What goes through all records of a kind goes by this list, in no order that could be relied on: the files of the
// program are linked in any. A record that may change and is not in the list fails a test.
#pragma once

#include <initializer_list>
#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

enum class Kind {
    Session,  // goes on from the start of the program to its end
    Document, // is part of what is open, or written by a step of its opening and saving: its records, its name
    Boxes,    // stands in the boxes of what is open, and in its title: a save reads it and writes none of it
    Run,      // is written by a run of pages, a conversion or a step of them
    Window,   // stands in a window while it is open
    Machine   // belongs to this process and nobody puts it back: the seam, pictures in memory, counts that only grow
};

class SharedRecord
{
public:
    template <class T>
    SharedRecord(const char* name, Kind kind, T& record)
        : SharedRecord(name, kind, &record, CopyAs<T>, PutAs<T>, GiveAs<T>, DropAs<T>)
    {
        static_assert(!std::is_const_v<T>, "what never changes needs no list");
    }
    SharedRecord(const SharedRecord&) = delete;
    SharedRecord& operator=(const SharedRecord&) = delete;

    // Returns a copy of the record as it is now, for Put, GiveBack and Drop.
    void* Copy() const
    {
        return copy(record);
    }
    void Put(const void* kept) const
    {
        put(record, kept);
    }
    // Puts the copy into the record for the last time: it is moved, and still to be dropped.
    void GiveBack(void* kept) const
    {
        give(record, kept);
    }
    void Drop(void* kept) const
    {
        drop(kept);
    }

    const char* const name; // as in the code, with its namespaces
    const Kind kind;

private:
    using Copier = void* (*)(const void* record);
    using Putter = void (*)(void* record, const void* kept);
    using Giver = void (*)(void* record, void* kept);
    using Dropper = void (*)(void* kept);
    SharedRecord(const char* name, Kind kind, void* record, Copier copy, Putter put, Giver give, Dropper drop);

    template <class T>
    static void* CopyAs(const void* record)
    {
        return new T(*static_cast<const T*>(record));
    }
    template <class T>
    static void PutAs(void* record, const void* kept)
    {
        T& live = *static_cast<T*>(record);
        if constexpr (std::is_copy_assignable_v<T>) {
            live = *static_cast<const T*>(kept);
        } else { // one that holds references
            std::destroy_at(&live);
            std::construct_at(&live, *static_cast<const T*>(kept));
        }
    }
    template <class T>
    static void GiveAs(void* record, void* kept)
    {
        if constexpr (std::is_move_assignable_v<T>)
            *static_cast<T*>(record) = std::move(*static_cast<T*>(kept));
        else
            PutAs<T>(record, kept);
    }
    template <class T>
    static void DropAs(void* kept)
    {
        delete static_cast<T*>(kept);
    }

    void* const record;
    const Copier copy;
    const Putter put;
    const Giver give;
    const Dropper drop;
};

// Returns the records of all files that are linked.
const std::vector<const SharedRecord*>& SharedRecords();

// Copies of all records of those kinds as they are when it is made.
class KeptRecords
{
public:
    KeptRecords(std::initializer_list<Kind> kinds);
    ~KeptRecords();
    KeptRecords(const KeptRecords&) = delete;
    KeptRecords& operator=(const KeptRecords&) = delete;
    void PutBack() const;  // Puts the copies into the records; any number of times.
    void GiveBack() const; // Moves the copies into the records: once, and quicker.

private:
    struct KeptRecord {
        const SharedRecord* record;
        void* copy;
    };
    std::vector<KeptRecord> records;
};

// Puts all records of the kinds back at the end of the scope: for a run in the midst of another one, and for what
// nobody is to notice. What is written on the disk meanwhile is the caller's to put back.
class KeepAll
{
public:
    KeepAll(std::initializer_list<Kind> kinds) : records(kinds)
    {
    }
    ~KeepAll()
    {
        records.GiveBack();
    }
    KeepAll(const KeepAll&) = delete;
    KeepAll& operator=(const KeepAll&) = delete;

private:
    const KeptRecords records;
};
