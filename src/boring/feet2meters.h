// feet2meters.h -- the depths of the boring that is open, from feet to meters. The file is not touched.
#pragma once

#include "session/text.h"

// Returns one value in meters. "" stays "", "0" stays "0"; others have up to two decimals ("10" gives "3.05"), and a
// text with no number gives "".
Text cv2m(const Text& text);

// Converts the boxes and BoringData, which is taken from the boxes first, and sets FileChanged. Nothing stops a second
// conversion. More lines of descriptions, well notes or remarks than the record holds are failure 9, and nothing is
// converted then.
void convertfeet2meters();
