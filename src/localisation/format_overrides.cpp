#include "localisation/format_overrides.h"

#include <algorithm>

#include "foundation/base/const_data.h"
#include "foundation/base/never_destroyed.h"

// Calls visit(ConstData line) for each line of `text`, in order and without what ends it.
//
// A carriage return and a line feed each end a line by themselves, so the two together leave an empty line between
// them. The last line needs no end. The lines are views of `text`. Time is linear in it.
template <class Visit>
void ForEachLine(ConstData text, Visit visit) {
    auto ends_line = [](unsigned char byte) { return byte == '\r' || byte == '\n'; };
    for (auto begin = text.begin(); begin != text.end();) {
        auto end = std::find_if(begin, text.end(), ends_line);
        visit(ConstData(begin, end));
        begin = end == text.end() ? end : end + 1;
    }
}

FormatOverrideSet::FormatOverrideSet(UStringRef<UTF8> text) {
    ForEachLine(text.AsData(), [this](ConstData line) { AddLine(line.AsStringView()); });
    std::sort(sorted_.begin(), sorted_.end());
}

void FormatOverrideSet::AddLine(std::string_view line) {
    auto firstTab = line.find('\t');
    if (firstTab == line.npos || firstTab == 0) return;
    sorted_.emplace_back(line.substr(0, firstTab), line.substr(line.rfind('\t') + 1));
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
    ListIterator scopes(scopes_);
    while (auto* node = scopes.Next()) {
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
