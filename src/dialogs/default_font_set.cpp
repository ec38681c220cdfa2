#include "dialogs/default_font_set.h"

#include <X11/Intrinsic.h>
#include <X11/StringDefs.h>
#include <X11/Xresource.h>

#include <memory>
#include <optional>
#include <set>

#include "core/process/process_state.h"

namespace {

// The height of the font set's largest logical extent in pixels, or null when no font set can be created.
std::optional<int> HeightOfFontSet(char const* pattern) {
    char** missing = nullptr;
    int count = 0;
    char* substitute = nullptr;
    XFontSet made = XCreateFontSet(display, pattern, &missing, &count, &substitute);
    if (missing) XFreeStringList(missing);
    if (!made) return std::nullopt;
    int height = XExtentsOfFontSet(made)->max_logical_extent.height;
    XFreeFontSet(display, made);
    return height;
}

bool ConfiguredFontSetWorks() {
    char* type = nullptr;
    XrmValue value;
    if (!XrmGetResource(XtDatabase(display), "xtDefaultFontSet", "XtDefaultFontSet", &type, &value)) return false;
    return std::string_view(type) == XtRString && HeightOfFontSet(value.addr).has_value();
}

struct FontNames {
    explicit FontNames(char const* pattern) : names(XListFonts(display, pattern, 1000, &count)) {}
    ~FontNames() {
        if (names) XFreeFontNames(names);
    }
    int count = 0;
    char** names;
};

std::string LowestFontSet() {
    FontNames fonts("-*-*-*-r-*-*-*-120-*-*-*-*");
    std::set<std::string> seen;
    std::string winner;
    std::optional<int> lowest;
    for (int i = 0; fonts.names && i < fonts.count; ++i) {
        std::string candidate = FontSetPattern(fonts.names[i]);
        if (candidate.empty() || !seen.insert(candidate).second) continue;
        auto height = HeightOfFontSet(candidate.c_str());
        if (!height || (lowest && *height >= *lowest)) continue;
        lowest = height;
        winner = candidate;
    }
    return winner;
}

}  // namespace

std::string FontSetPattern(std::string_view fontName) {
    std::size_t dash = std::string_view::npos;
    for (int i = 0; i < 13; ++i) {
        dash = fontName.find('-', dash + 1);
        if (dash == std::string_view::npos) return {};
    }
    return std::string(fontName.substr(0, dash + 1)) + "*,*";
}

void ConfigValidDefaultFontSet() {
    if (ConfiguredFontSetWorks() || HeightOfFontSet("-*-*-*-R-*-*-*-120-*-*-*-*,*")) return;
    std::string winner = LowestFontSet();
    if (winner.empty()) return;
    XrmDatabase database = XtDatabase(display);
    XrmPutStringResource(&database, "XtDefaultFontSet", winner.c_str());
}
