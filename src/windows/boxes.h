// boxes.h -- message boxes and the input box.
#pragma once

#include "session/platform.h"

int ShowMessageBox(const Text& words, Buttons buttons, Icon icon);
Text ShowInputBox(const Text& prompt, const Text& title, const Text& answer);
