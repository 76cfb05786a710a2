// outputnames.cpp -- names of pages, none of them twice.
#include "programs/outputnames.h"

#include "session/files.h"

Text OutputNames::Next(const Text& source, int number)
{
    Text stem = BaseName(source);
    if (HasEnding(stem))
        stem.resize(stem.rfind('.'));
    if (stem.empty())
        stem = "page";
    if (!job.empty())
        stem += "-" + job;
    for (int copy = 1;; ++copy) {
        Text name = stem + "-" + PlainNumber(number == 0 ? copy : number);
        if (number != 0 && copy > 1)
            name += "-" + PlainNumber(copy);
        if (given.insert(UpperCase(name)).second)
            return name;
    }
}
