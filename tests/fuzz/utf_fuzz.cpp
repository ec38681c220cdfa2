// Any bytes as UTF-8, and as UTF-16, decode or are refused, and what encodes again comes back; what the C library takes
// for UTF-8 decodes to the same here, and goes back to the same bytes.
#include <clocale>

#include "foundation/text/local_encoding.h"
#include "foundation/text/transcode.h"
#include "tests/fuzz/fuzz.h"

template <class E>
static void Check(UStringRef<E> text) {
    AutoUString<UTF32> decoded;
    AutoUString<E> encoded;
    Succeeds([&] { decoded = Transcode<UTF32>(text); });
    if (Succeeds([&] { encoded = Transcode<E>(decoded.Ref()); })) Require(Transcode<UTF32>(encoded.Ref()) == decoded);
}

static void CheckLocal(std::string_view text) {
    static bool const has_locale = std::setlocale(LC_CTYPE, "C.UTF-8");
    AutoUString<UTF32> native;
    UStringRef<Local8Bit> const local(text.data(), text.data() + text.size());
    if (!Succeeds([&] { native = UnixPlatform::ToNativeUnicode(local); })) return;
    if (std::ranges::any_of(native, [](UTF32::Unit unit) { return unit > 0x10FFFF; })) return;
    Require(has_locale && Transcode<UTF32>(Text(text)) == native);
    Require(UnixPlatform::FromNativeUnicode(native).Ref() == local);
}

void Fuzz(std::string_view input) {
    Check(Text(input));
    UStringBuilder<UTF16> units;
    for (auto rest = input; !rest.empty();) units.Receive(std::array{TakeInteger<std::uint16_t>(rest)});
    Check(units.Ref());
    CheckLocal(input.substr(0, input.find('\0')));
}
