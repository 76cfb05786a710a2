// tools_test.cpp -- the windows of the tools beside the log tool.

