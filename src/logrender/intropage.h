// intropage.h -- the intro page, the cover sheet of a boring log: logo and client block, the boring's name, its well
// construction, the project map and a legend of fill patterns, in one of two arrangements.
#pragma once

namespace VLOG
{
void vlogintrostart(); // the loop over the borings of log.mas, a page for each; introType is the arrangement
void drawframeintro(); // starts the page: frame, date line, logo and client block
void drawintromain();  // draws all that stands in the frame
void drawintrowcon();  // draws the well construction block of arrangement 1, and of arrangement 2
void drawintrowcon2();
void drawintromap(); // draws the project map of arrangement 1, and of arrangement 2
void drawintromap2();
} // namespace VLOG
