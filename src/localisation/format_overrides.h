#pragma once

#include <string_view>
#include <vector>

#include "foundation/base/debuggable_exception.h"
#include "localisation/format_string.h"
#include "localisation/list.h"

// Texts that stand in for the program's English ones.
//
// A set holds the entries of one translation file; a scope makes a set count in a context for as long as the scope
// lives; a context answers from its scopes, the one added last first. Main thread only.

// The set has no override for the key.
class FormatOverrideNotFound : public DebuggableException {};

// The overrides of one translation file, by key: views into its text, which must outlive the set.
//
// Each line of the text, ended by a carriage return, a line feed or the end, is an entry if it has a tab but does not
// begin with one: the key before the first tab, the override after the last. Every other line is skipped. Nothing is
// trimmed, unescaped or validated. Of several overrides of one key the smallest counts.
//
// Reading takes one pass and a sort, a lookup a binary search.
class FormatOverrideSet {
  public:
    explicit FormatOverrideSet(UStringRef<UTF8> text);

    bool HasOverride(UStringRef<UTF8> key) const;
    // Throws FormatOverrideNotFound.
    UStringRef<UTF8> GetOverride(UStringRef<UTF8> key) const;

  private:
    void AddLine(std::string_view line);
    // Null when there is none.
    FormatBinding const* Find(UStringRef<UTF8> key) const;

    std::vector<FormatBinding> sorted_;
};

class FormatOverrideScope;

// Answers which text to render for a key. Owns nothing.
class FormatOverrideContext {
  public:
    bool HasOverride(UStringRef<UTF8> key) const;
    // The override of the scope added last among those that have one, else `defaultText`. An override is valid as long
    // as its scope's set.
    UStringRef<UTF8> Override(UStringRef<UTF8> key, UStringRef<UTF8> defaultText) const;

  private:
    friend class FormatOverrideScope;
    // The first scope's set that has the key, null when there is none.
    FormatOverrideSet const* Find(UStringRef<UTF8> key) const;

    List scopes_;
};

// While it lives, the set's overrides count in the context, before all that were added earlier. Both must outlive it.
class FormatOverrideScope : public ListNode {
  public:
    FormatOverrideScope(FormatOverrideSet const& set, FormatOverrideContext& context) : set_(&set) {
        context.scopes_.PushFront(*this);
    }

    FormatOverrideSet const& Set() const { return *set_; }

  private:
    FormatOverrideSet const* set_;
};

// The context of the whole process. Empty at first; never destroyed, so scopes of any lifetime may refer to it.
FormatOverrideContext& GlobalFormatOverrideContext();
