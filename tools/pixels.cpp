#include "tools/pixels.h"

#include <X11/Xutil.h>
#include <png.h>

#include <algorithm>
#include <memory>
#include <stdexcept>

namespace tools {

namespace {

struct ImageDestroyer {
    void operator()(XImage* image) const { XDestroyImage(image); }
};

std::unique_ptr<XImage, ImageDestroyer> Grab(Display* display, Area const& area) {
    Window root = DefaultRootWindow(display);
    Screen* screen = DefaultScreenOfDisplay(display);
    Area visible = Intersect(area, {0, 0, WidthOfScreen(screen), HeightOfScreen(screen)});
    if (visible.width <= 0 || visible.height <= 0) throw std::runtime_error("nothing of it is on the screen");
    auto width = static_cast<unsigned>(visible.width), height = static_cast<unsigned>(visible.height);
    XImage* image = XGetImage(display, root, visible.x, visible.y, width, height, AllPlanes, ZPixmap);
    if (!image || image->bits_per_pixel != 32 || image->byte_order != LSBFirst || image->blue_mask != 0xff) {
        throw std::runtime_error("no screenshot of this kind of screen");
    }
    return std::unique_ptr<XImage, ImageDestroyer>(image);
}

Area Unite(Area const& one, Area const& other) {
    int x = std::min(one.x, other.x), y = std::min(one.y, other.y);
    return {x, y, std::max(one.Right(), other.Right()) - x, std::max(one.Bottom(), other.Bottom()) - y};
}

}  // namespace

Area Intersect(Area const& one, Area const& other) {
    int x = std::max(one.x, other.x), y = std::max(one.y, other.y);
    return {x, y, std::min(one.Right(), other.Right()) - x, std::min(one.Bottom(), other.Bottom()) - y};
}

void SaveScreenshot(Display* display, Area const& area, std::filesystem::path const& file) {
    auto image = Grab(display, area);
    for (int at = 3; at < image->bytes_per_line * image->height; at += 4) image->data[at] = '\xff';
    png_image png{};
    png.version = PNG_IMAGE_VERSION;
    png.width = static_cast<unsigned>(image->width);
    png.height = static_cast<unsigned>(image->height);
    png.format = PNG_FORMAT_BGRA;
    if (!png_image_write_to_file(&png, file.c_str(), 0, image->data, image->bytes_per_line, nullptr)) {
        throw std::runtime_error("cannot write " + file.string() + ": " + png.message);
    }
}

std::vector<TextLine> FindTextLines(Display* display, Area const& area) {
    auto image = Grab(display, area);
    unsigned long background = XGetPixel(image.get(), 0, 0);
    std::vector<TextLine> lines;
    bool inside = false;
    for (int y = 0; y < image->height; ++y) {
        int first = image->width, last = -1, ink = 0;
        for (int x = 0; x < image->width; ++x) {
            if (XGetPixel(image.get(), x, y) != background) first = std::min(first, x), last = x, ++ink;
        }
        bool text = last >= 0;
        if (text && !inside) lines.push_back({{area.x + first, area.y + y, 0, 0}});
        if (text) {
            lines.back().area = Unite(lines.back().area, {area.x + first, area.y + y, last + 1 - first, 1});
            lines.back().ink += ink;
        }
        inside = text;
    }
    return lines;
}

bool LookAlike(Display* display, Area const& one, Area const& other) {
    auto first = Grab(display, one), second = Grab(display, other);
    if (first->width != second->width || first->height != second->height) return false;
    for (int y = 0; y < first->height; ++y) {
        for (int x = 0; x < first->width; ++x) {
            if (XGetPixel(first.get(), x, y) != XGetPixel(second.get(), x, y)) return false;
        }
    }
    return true;
}

unsigned long PixelAt(Display* display, int x, int y) {
    return XGetPixel(Grab(display, {x, y, 1, 1}).get(), 0, 0);
}

}  // namespace tools
