// filedialog.h -- the file chooser, as the system's own dialog.
#pragma once

void ShowFileDialog(); // by DialogMode; the path in DialogResult, "" when cancelled
