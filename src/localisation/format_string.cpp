#include "localisation/format_string.h"

#include <algorithm>

#include "foundation/text/ascii.h"
#include "foundation/text/ustring_builder.h"

namespace {

ConstArrayOf<FormatBinding> ReservedVariables() {
    static FormatBinding const sorted[] = {
        {"_cbrace", "}"}, {"_cr", "\r"}, {"_crlf", "\r\n"}, {"_lf", "\n"}, {"_obrace", "{"}, {"_tab", "\t"},
    };
    return sorted;
}

}  // namespace

UFormatIterator::UFormatIterator(UStringRef<UTF8> format) : next_(format.begin()), end_(format.end()) {
    GetNextSegment();
}

UFormatIterator UFormatIterator::End(UStringRef<UTF8> format) {
    UFormatIterator end;
    end.current_ = end.next_ = end.end_ = format.end();
    return end;
}

void UFormatIterator::GetNextSegment() {
    current_ = next_;
    bool variable = current_ != end_ && *current_ == '{';
    auto begin = variable ? current_ + 1 : current_;
    auto stop = std::find(begin, end_, static_cast<UTF8::Unit>(variable ? '}' : '{'));
    if (variable && stop == end_) throw BadFormatStringError();
    segment_ = {variable, {begin, stop}};
    next_ = variable ? stop + 1 : stop;
}

bool IsFormatVariableNameReserved(UStringRef<UTF8> name) {
    return !name.empty() && name[0] == '_';
}

void CheckFormatVariableName(UStringRef<UTF8> name) {
    if (name.empty()) throw ImproperFormatVariableName();
    if (IsFormatVariableNameReserved(name))
        FormatExpressionValue(name, {});
    else if (!std::all_of(name.begin() + 1, name.end(), Ascii::Alphanumeric_))
        throw ImproperFormatVariableName();
}

void MakeFormatParameterBindings(UStringRef<UTF8> key, ConstArrayOf<UStringRef<UTF8>> arguments,
                                 ArrayOf<FormatBinding> bindings) {
    std::size_t used = 0;
    auto end = UFormatIterator::End(key);
    for (UFormatIterator segment(key); segment != end; ++segment) {
        if (!segment->variable) continue;
        CheckFormatVariableName(segment->text);
        if (IsFormatVariableNameReserved(segment->text)) continue;
        if (used == arguments.size()) throw TooManyFormatArguments();
        bindings[used] = {segment->text, arguments[used]};
        ++used;
    }
    if (used != arguments.size()) throw TooFewFormatArguments();
    std::sort(bindings.begin(), bindings.end());
}

UStringRef<UTF8> FormatExpressionValue(UStringRef<UTF8> name, ConstArrayOf<FormatBinding> bindings) {
    if (name.empty()) throw ImproperFormatVariableName();
    auto table = IsFormatVariableNameReserved(name) ? ReservedVariables() : bindings;
    auto found = std::lower_bound(table.begin(), table.end(), FormatBinding(name, {}));
    if (found == table.end() || !(found->first == name)) throw UndefinedFormatVariable();
    return found->second;
}

UStringRef<UTF8> FormatSegmentValue(UFormatSegment const& segment, ConstArrayOf<FormatBinding> bindings) {
    return segment.variable ? FormatExpressionValue(segment.text, bindings) : segment.text;
}

AutoUString<UTF8> MakeUString(FormattedStringIterator begin, FormattedStringIterator end) {
    UStringBuilder<UTF8> rendered;
    for (auto segment = begin; segment != end; ++segment) rendered.Append(*segment);
    return rendered.MakeString();
}
