// fencelayers_test.cpp -- being written
