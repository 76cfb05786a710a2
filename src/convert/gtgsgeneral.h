// gtgsgeneral.h -- the text tables of a GTGS export by a mapping that the user makes: its record, its file, and the
// conversion, one new boring a run.
#pragma once

#include "session/slots.h"
#include "session/text.h"

constexpr int MaxMapRows = 25;

// What a field of headers.txt is in the boring.
enum FieldKind { NotUsed, BoringName, ClientInfo, BoringInfo, WellInfo, WellConstInfo };

// Filled by OpenGTGSConversionFile and, before a save or a conversion, from the boxes of its editor.
struct GtgsMappingRecord {
    Text templateFile; // the boring that gives prompts, report parts, layout, set-ups and client
    Text textPath;     // folder of the tables; "": the project folder
    // 0: a character stands behind each field of headers.txt, fieldSpec 1 comma, 0 tab, any other a blank.
    // Any other value: fields of fieldSpec characters.
    int16_t fixedFields = 2;
    int16_t fieldSpec = 0;
    struct Field {
        int16_t kind = NotUsed, number = 0;
    };
    Slots<Field, MaxMapRows> fieldMap; // where field n goes
    struct Fill {
        Text gtgs, uscs;
    };
    Slots<Fill, MaxMapRows> fillMap; // the first row that fits a code
};
extern GtgsMappingRecord GtgsMapping;

void OpenGTGSConversionFile(const Text& name); // Reads a .GCV file into GtgsMapping.
void SaveGTGSConversionFile(const Text& name); // Writes GtgsMapping into one.

// Stands for the name that headers.txt gives.
extern const Text NameFromHeaders;

// Returns the name in the box of the editor as that of a file: with its ending, in the folder of the tables.
Text NewBoringFile(const Text& name);

// Converts the tables by GtgsMapping into the file, or into one of the boring's name in the project folder. Returns
// the name of the new file; "" when there is none, which has been told.
Text ConvertGTGSGeneral(const Text& newFile);
