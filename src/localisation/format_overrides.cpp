#include "localisation/format_overrides.h"

#include <algorithm>

#include "foundation/base/never_destroyed.h"

FormatOverrideSet::FormatOverrideSet(UStringRef<UTF8> text) {
    for (auto rest = text.AsStringView(); !rest.empty();) {
        auto const line = rest.substr(0, rest.find_first_of("\r\n"));
        AddLine(line);
        rest.remove_prefix(std::min(line.size() + 1, rest.size()));
    }
    std::sort(sorted_.begin(), sorted_.end());
}

void FormatOverrideSet::AddLine(std::string_view line) {
    auto const first_tab = line.find('\t');
    if (first_tab == line.npos || first_tab == 0) return;
    sorted_.emplace_back(line.substr(0, first_tab), line.substr(line.rfind('\t') + 1));
}

FormatBinding const* FormatOverrideSet::Find(UStringRef<UTF8> key) const {
    auto found = std::lower_bound(sorted_.begin(), sorted_.end(), FormatBinding(key, {}));
    return found != sorted_.end() && found->first == key ? &*found : nullptr;
}

bool FormatOverrideSet::HasOverride(UStringRef<UTF8> key) const {
    return Find(key) != nullptr;
}

UStringRef<UTF8> FormatOverrideSet::GetOverride(UStringRef<UTF8> key) const {
    auto* found = Find(key);
    if (!found) throw FormatOverrideNotFound();
    return found->second;
}

FormatOverrideSet const* FormatOverrideContext::Find(UStringRef<UTF8> key) const {
    for (ListIterator scopes(scopes_); auto* node = scopes.Next();) {
        auto const& set = static_cast<FormatOverrideScope*>(node)->Set();
        if (set.HasOverride(key)) return &set;
    }
    return nullptr;
}

bool FormatOverrideContext::HasOverride(UStringRef<UTF8> key) const {
    return Find(key) != nullptr;
}

UStringRef<UTF8> FormatOverrideContext::Override(UStringRef<UTF8> key, UStringRef<UTF8> defaultText) const {
    auto* set = Find(key);
    return set ? set->GetOverride(key) : defaultText;
}

FormatOverrideContext& GlobalFormatOverrideContext() {
    static auto& context = NeverDestroyed<FormatOverrideContext>();
    return context;
}
