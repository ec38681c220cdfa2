#pragma once

// The facts about the product that its texts mention, each in this one place.

// The legal notice of the About box, a text with the variable {year}, and the year that belongs in it.
inline constexpr char const* legal_notice = "Copyright {year} Corvane. All rights reserved.";
inline constexpr char const* legal_notice_year = "2026";

// Four decimal numbers separated by points, as the build sets them.
extern char const* const product_version;
