// What the C library takes for UTF-8 decodes to the same here, and goes back to the same bytes.
#include "foundation/text/local_encoding.h"

#include <clocale>

#include "foundation/text/transcode.h"
#include "tests/fuzz/fuzz.h"

void Fuzz(std::string_view input) {
    static bool const has_locale = std::setlocale(LC_CTYPE, "C.UTF-8");
    Require(has_locale);
    AutoUString<UTF32> native;
    std::string_view const text = input.substr(0, input.find('\0'));
    UStringRef<Local8Bit> const local(text.data(), text.data() + text.size());
    if (!Succeeds([&] { native = UnixPlatform::ToNativeUnicode(local); })) return;
    if (std::ranges::any_of(native, [](UTF32::Unit unit) { return unit > 0x10FFFF; })) return;
    Require(Transcode<UTF32>(Text(text)) == native && UnixPlatform::FromNativeUnicode(native).Ref() == local);
}
