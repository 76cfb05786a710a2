// generalvalues.cpp -- the values of a general parameter, from its data file or the boring's table.
#include "logrender/generalvalues.h"

#include "logrender/logdata.h"
#include "session/files.h"
#include "session/platform.h"
#include "session/session.h"

// Field 0 is the first of a line. Each separator ends a field, so two blanks hold an empty one between them.
static std::string_view Field(std::string_view line, char separator, int number)
{
    for (; number > 0 && Holds(line, separator); --number)
        line = Behind(line, separator);
    return number == 0 ? Before(line, separator) : std::string_view();
}

static void AddOnPage(std::vector<VLOG::GeneralValue>& rows, float depth, std::string_view value)
{
    if (depth >= LogPage.PageStartDepth && depth <= LogPage.PageEndDepth && !value.empty())
        rows.push_back({depth, Text(value)});
}

// A field of blanks, as spreadsheets write an empty cell between two commas, is a missing value.
// Kept: field number 0, or none in the set-up, is the depth itself.
static void ReadDataFile(const Text& path, const Text& fieldCell, std::vector<VLOG::GeneralValue>& rows)
{
    const int field = RoundInt16(TextNumber(fieldCell));
    const int headerLines = RoundInt16(TextNumber(Behind(fieldCell, ',')));
    LineReader in(path);
    in.Skip(headerLines);
    char separator = 0;
    while (!in.AtEnd()) {
        const Text line = in.Line();
        if (separator == 0)
            separator = Holds(line, ',') ? ',' : ' ';
        const float depth = IsBlank(line) ? -1 : TextNumber(Field(line, separator, 0));
        const std::string_view value = Field(line, separator, field);
        if (!IsBlank(value))
            AddOnPage(rows, depth, value);
    }
}

void VLOG::findgeneralvalues(int n, GeneralValues& values)
{
    const LogParamSetup& setup = LogBoring.GenSetup[n];
    values.FromFile = !IsBlank(setup.File);
    if (values.FromFile) {
        const Text path = JoinPath(ProjectPath, setup.File);
        values.FileMissing = !FileExists(path);
        if (values.FileMissing)
            MsgBox("Parameter File Not Found: " + path, OkOnly, Exclamation);
        else
            ReadDataFile(path, setup.Field, values.Rows);
        return;
    }
    for (int row = 1; row <= LogBoring.ParamCount; ++row)
        AddOnPage(values.Rows, TextNumber(LogBoring.Params[row][1]), LogBoring.Params[row][n + 1]);
}
