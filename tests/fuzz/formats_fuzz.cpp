// Any text with any arguments is rendered or refused; arguments and escaped braces come out as they went in.
#include "localisation/uformat.h"
#include "tests/fuzz/fuzz.h"

void Fuzz(std::string_view input) {
    auto const key = TakeUntil(input, '\n'), text = TakeUntil(input, '\n'), first = TakeUntil(input, '\n');
    FormatPlusArguments<0> const format{Text(key), Text(text)};
    Succeeds([&] { MakeUString(format); });
    Succeeds([&] { MakeUString(format.With(Text(first))); });
    Succeeds([&] { MakeUString(format.With(Text(first), Text(input))); });

    std::string escaped = "{b}";
    for (char byte : input) escaped += byte == '{' ? "{_obrace}" : std::string(1, byte);
    escaped += "{a}";
    FormatPlusArguments<0> const plain{"{b} {a}", Text(escaped)};
    auto const rendered = MakeUString(plain.With(Text(key), Text(text)));
    Require(rendered.AsStringView() == std::string(key).append(input).append(text));
}
