#include "localisation/formatted_string.h"

#include "foundation/text/ustring_builder.h"

AutoUString<UTF8> MakeUString(FormattedStringIterator begin, FormattedStringIterator end) {
    UStringBuilder<UTF8> rendered;
    for (auto segment = begin; segment != end; ++segment) rendered.Append(*segment);
    return rendered.MakeString();
}
