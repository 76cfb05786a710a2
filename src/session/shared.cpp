// shared.cpp -- the list of the records that the whole program shares.
#include "session/shared.h"

#include <algorithm>

// Made by the first record, whichever file comes first, and never taken down.
static std::vector<const SharedRecord*>& List()
{
    static auto* const list = new std::vector<const SharedRecord*>;
    return *list;
}

SharedRecord::SharedRecord(const char* name, Kind kind, void* record, Copier copy, Putter put, Giver give, Dropper drop)
    : name(name), kind(kind), record(record), copy(copy), put(put), give(give), drop(drop)
{
    List().push_back(this);
}

const std::vector<const SharedRecord*>& SharedRecords()
{
    return List();
}

KeptRecords::KeptRecords(std::initializer_list<Kind> kinds)
{
    for (const SharedRecord* record : SharedRecords())
        if (std::find(kinds.begin(), kinds.end(), record->kind) != kinds.end())
            records.push_back({record, record->Copy()});
}

KeptRecords::~KeptRecords()
{
    for (const KeptRecord& kept : records)
        kept.record->Drop(kept.copy);
}

void KeptRecords::PutBack() const
{
    for (const KeptRecord& kept : records)
        kept.record->Put(kept.copy);
}

void KeptRecords::GiveBack() const
{
    for (const KeptRecord& kept : records)
        kept.record->GiveBack(kept.copy);
}
