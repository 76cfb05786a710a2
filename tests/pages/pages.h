// pages.h -- golden pages: runs drawn from files, their listings against kept ones.
#pragma once

#include "session/text.h"

#include <vector>

// Makes the scratch folder, emptied first, a working folder: links to the stock data of the build, and the files of the
// folder over them.
void LayOutFolder(const std::string& folder);

// Draws the borings in a working folder made of the stock data with the files of the folder over it, and gives the
// listing of all its pages. The date is fixed and the paths are bare names, so that a listing is the same on every
// machine.
std::string DrawLogs(const std::string& folder, const std::vector<Text>& borings);

// The intro pages of the borings in the same way, in arrangement 1 or 2.
std::string DrawIntro(const std::string& folder, const std::vector<Text>& borings, int arrangement);

// Sections, fences or tables in the same way, by the code of the job that prints them: 4 sections, 6 fences, 8 soil
// tables.
std::string DrawSheets(const std::string& folder, int16_t job, const std::vector<Text>& files);

// Compares with the kept listing tests/pages/NAME.jsonl, line by line; says the first lines that differ. With
// STRATAVUE_ACCEPT set to the name, its folder or "all", the kept listing is replaced instead.
void CheckListing(const std::string& name, const std::string& listing);
void CheckSilentListing(const std::string& name, const std::string& listing); // and that the run has shown no message
