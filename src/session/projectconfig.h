// projectconfig.h -- project.cfg: the settings of a project that no other file has a line for.
//
//     # a comment
//     key = value
//
// It lies in the project folder; a project without one has the settings of the file in the working folder, if there is
// one. A key is found in any case of its letters, a value goes from behind the first "=" to the end of its line, blanks
// around both are none of them. Of two lines with one key the last one counts. Lines of any other form are left alone.
#pragma once

#include "session/text.h"

#include <vector>

// Returns the value of the key as it stands on disk now; the fallback where no line has the key.
Text ProjectSetting(const Text& key, const Text& fallback = "");

// Writes the value into the line that counts, or into a new one at the end; all other lines, the unknown ones too, stay
// byte for byte. It is always the project's own file that is written: a project without one gets a copy of the working
// folder's, so that no other project changes. Returns false where the file could not be written, and a box has told so.
bool SetProjectSetting(const Text& key, const Text& value);

// Returns the parts of a value that is a list, "a, b, c", without blanks around them and without empty ones.
std::vector<Text> SettingList(const Text& value);
// Returns the parts as such a value.
Text ListSetting(const std::vector<Text>& parts);

// Returns the name of the file that the settings are read from; "" where there is none.
Text ProjectConfigFile();
