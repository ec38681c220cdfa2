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

// A line of text on a plain background, or a highlighted one with the text left out of its bar.
struct TextLine {
    Area area;
    int ink = 0;  // how many of its pixels are not background

    bool IsHighlighted() const { return 2 * ink > area.width * area.height; }
};

// The lines that the eye sees there, from top to bottom. The area's top left pixel is background.
std::vector<TextLine> FindTextLines(Display* display, Area const& area);

// Whether the screen shows the same at both; false when they differ in size.
bool LookAlike(Display* display, Area const& one, Area const& other);

unsigned long PixelAt(Display* display, int x, int y);

}  // namespace tools
