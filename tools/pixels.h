#pragma once

#include <X11/Xlib.h>

#include <filesystem>
#include <vector>

namespace tools {

// A rectangle of the screen.
struct Area {
    int x, y, width, height;

    int Right() const { return x + width; }
    int Bottom() const { return y + height; }
    int MiddleX() const { return x + width / 2; }
    int MiddleY() const { return y + height / 2; }
};

// What both have in common; no width or height is left when they do not meet.
Area Intersect(Area const& one, Area const& other);

// Writes what the screen shows there as a PNG file. Throws std::runtime_error when that fails or the screen is not of
// the common kind with 32 bits for each pixel, blue first.
void SaveScreenshot(Display* display, Area const& area, std::filesystem::path const& file);

// The lines of text that the eye sees there, from top to bottom. Everything that differs from the area's top left pixel
// counts as text.
std::vector<Area> FindTextLines(Display* display, Area const& area);

}  // namespace tools
