// painting.h -- a page of tests, and its picture.
#pragma once

#include "canvas/pageobjects.h"
#include "painter/pagepainter.h"
#include "testing.h"

#include <QImage>

void StartTestPage(int width, int height); // an empty page of 600 units to the inch, fills folder in the scratch folder
// A 150 by 150 print form with one black square of 30 pixels at (left, top) on white, as F n .BMP; its screen form is
// black in the pixel (left / 6, top / 6) and its neighbours.
void WriteTestPattern(const char* name, int left, int top);
QImage Painted(double scale = 1, PatternForm form = PatternForm::Print);
bool Dark(const QImage& image, int x, int y);
// The lengths of the dark and light runs along a row or column of pixels, beginning with the first dark one.
std::vector<int> Runs(const QImage& image, int x, int y, int dx, int dy);
