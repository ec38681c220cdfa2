// Any text with any arguments is rendered or refused; arguments and escaped braces come out as they went in.
#include "localisation/uformat.h"
#include "tests/fuzz/fuzz.h"

void Fuzz(std::string_view input) {
    auto const key = TakeUntil(input, '\n'), text = TakeUntil(input, '\n'), first = TakeUntil(input, '\n');
    FormatPlusArguments<0> const none{Text(key), Text(text)};
    FormatPlusArguments const one(none, Text(first));
    FormatPlusArguments const two(one, Text(input));
    Succeeds([&] { MakeUString(none); });
    Succeeds([&] { MakeUString(one); });
    Succeeds([&] { MakeUString(two); });

    std::string escaped = "{b}";
    for (char byte : input) escaped += byte == '{' ? "{_obrace}" : std::string(1, byte);
    escaped += "{a}";
    FormatPlusArguments<0> const plain{"{b} {a}", Text(escaped)};
    auto const rendered = MakeUString(FormatPlusArguments(FormatPlusArguments(plain, Text(key)), Text(text)));
    Require(rendered.AsStringView() == std::string(key).append(input).append(text));
}
