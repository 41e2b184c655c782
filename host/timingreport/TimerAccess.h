// How the timing reports reach the timer and begin their text.
#pragma once

#include <string>
#include <vector>

namespace sta {

class Timer;

// The timer of the current design, brought up to date; null when there is
// no linked current design.
Timer* UpdatedTimer();

// The banner: a line of stars, `lines`, "Design : NAME", a line of stars
// and an empty line.
void PrintBanner(const std::vector<std::string>& lines);

}  // namespace sta
