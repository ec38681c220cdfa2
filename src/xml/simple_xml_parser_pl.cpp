#include "xml/simple_xml_parser_pl.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>
#include <string_view>

// Finding where a run of ordinary bytes ends, eight bytes at a time.

namespace ByteScan {

// Marks the bytes of the word that equal `byte` by their top bits. Above the lowest mark there may be false ones.
inline std::uint64_t MarksOf(std::uint64_t word, char byte) {
    constexpr std::uint64_t ones = 0x0101010101010101;
    auto difference = word ^ (ones * static_cast<unsigned char>(byte));
    return (difference - ones) & ~difference & (ones << 7);
}

// The first place of either byte, or `end`.
inline char const* FindEither(char const* at, char const* end, char one, char other) {
    for (; end - at >= 8; at += 8) {
        std::uint64_t word;
        std::memcpy(&word, at, 8);
        auto marks = MarksOf(word, one) | MarksOf(word, other);
        if (marks == 0) continue;
        if constexpr (std::endian::native != std::endian::little) break;
        return at + std::countr_zero(marks) / 8;
    }
    while (at != end && *at != one && *at != other) ++at;
    return at;
}

}  // namespace ByteScan

// What leaving and entering a state entails: a part of the parser's own sources, inlined where both states are known,
// so that a transition costs no more than its actions.

[[gnu::always_inline]] inline void SimpleXMLParserPL::LeaveState(State from, State next) {
    switch (from) {
        case State::Characters:
        case State::CData:
            FlushText();
            break;
        case State::CharactersEntity:
            escape_ += ';';
            handler_.Characters(DecodeEscapeString());
            break;
        case State::TagName:
        case State::BetweenAttributes:
            if (next == State::Characters) ReportTag();
            break;
        case State::EndTagName:
            if (next == State::Characters) handler_.EndElement(tag_name_);
            break;
        case State::AttributeValue:
            if (next != State::AttributeEntity) ++attribute_count_;
            break;
        case State::AttributeEntity:
            escape_ += ';';
            attribute_->second += DecodeEscapeString();
            break;
        default:
            break;
    }
}

[[gnu::always_inline]] inline void SimpleXMLParserPL::EnterState(State next) {
    switch (next) {
        case State::CharactersEntity:
        case State::AttributeEntity:
            escape_ = '&';
            break;
        case State::TagName:
            dashes_ = 0;
            tag_name_.clear();
            attribute_count_ = 0;
            break;
        case State::BetweenAttributes:
            BeginAttribute();
            break;
        case State::AttributeName:
            attribute_->first += current_;
            break;
        case State::Comment:
            dashes_ = 0;
            break;
        default:
            break;
    }
}

[[gnu::always_inline]] inline void SimpleXMLParserPL::Go(State from, State next) {
    LeaveState(from, next);
    EnterState(next);
    state_ = next;
}

namespace {

constexpr std::string_view kCDataMark = "![CDATA[";

std::size_t Length(char const* begin, char const* end) {
    return static_cast<std::size_t>(end - begin);
}

// The first place of the byte, or `end`.
char const* Find(char const* at, char const* end, char byte) {
    auto found = static_cast<char const*>(std::memchr(at, byte, Length(at, end)));
    return found ? found : end;
}

bool EndsRunOfTagName(char byte) {
    return byte == ' ' || byte == '/' || byte == '>' || byte == '-';
}

}  // namespace

void SimpleXMLParserPL::Feed(char const* at, char const* end) {
    while (at != end) switch (state_) {
            case State::Characters:
                at = InCharacters(at, end);
                break;
            case State::CharactersEntity:
                at = InEntity(at, end, State::Characters);
                break;
            case State::TagName:
                at = InTagName(at, end);
                break;
            case State::EndTagName:
                at = InEndTagName(at, end);
                break;
            case State::BetweenAttributes:
                at = BetweenAttributes(at);
                break;
            case State::AttributeName:
                at = InAttributeName(at, end);
                break;
            case State::BeforeAttributeValue:
                at = BeforeAttributeValue(at, end);
                break;
            case State::AttributeValue:
                at = InAttributeValue(at, end);
                break;
            case State::AttributeEntity:
                at = InEntity(at, end, State::AttributeValue);
                break;
            case State::Comment:
                at = InComment(at, end);
                break;
            case State::CData:
                at = InCData(at, end);
                break;
        }
}

char const* SimpleXMLParserPL::InCharacters(char const* at, char const* end) {
    auto stop = ByteScan::FindEither(at, end, '<', '&');
    if (stop == end || !text_.empty())
        text_.append(at, Length(at, stop));
    else if (stop != at)
        handler_.Characters(std::string_view(at, Length(at, stop)));  // a whole run: no need to collect it
    if (stop == end) return end;
    Go(State::Characters, *stop == '<' ? State::TagName : State::CharactersEntity);
    return stop + 1;
}

char const* SimpleXMLParserPL::InEntity(char const* at, char const* end, State after) {
    auto stop = Find(at, end, ';');
    escape_.append(at, Length(at, stop));
    if (stop == end) return end;
    Go(state_, after);
    return stop + 1;
}

char const* SimpleXMLParserPL::InTagName(char const* at, char const* end) {
    auto stop = std::find_if(at, end, EndsRunOfTagName);
    if (stop != at) return AppendToTagName(at, stop);
    EndTagNameRun(*at);
    return at + 1;
}

// Appends as much as may be taken without missing the moment when the name is the mark of a CDATA section.
char const* SimpleXMLParserPL::AppendToTagName(char const* at, char const* end) {
    auto size = tag_name_.size();
    bool maybe_mark = size < kCDataMark.size() && (size == 0 ? *at : tag_name_[0]) == kCDataMark[0];
    if (maybe_mark) end = at + std::min(Length(at, end), kCDataMark.size() - size);
    tag_name_.append(at, Length(at, end));
    if (maybe_mark && tag_name_ == kCDataMark) {
        tag_name_.clear();
        previous_ = before_previous_ = 0;
        Go(State::TagName, State::CData);
    }
    return end;
}

void SimpleXMLParserPL::EndTagNameRun(char byte) {
    switch (byte) {
        case ' ':
            if (!tag_name_.empty()) Go(State::TagName, State::BetweenAttributes);
            break;
        case '/':
            Go(State::TagName, State::EndTagName);
            break;
        case '>':
            Go(State::TagName, State::Characters);
            break;
        // Dropped from the name, even when no comment follows.
        case '-':
            if (++dashes_ > 1) Go(State::TagName, State::Comment);
            break;
    }
}

char const* SimpleXMLParserPL::InEndTagName(char const* at, char const* end) {
    auto stop = Find(at, end, '>');
    tag_name_.append(at, Length(at, stop));
    if (stop == end) return end;
    Go(State::EndTagName, State::Characters);
    return stop + 1;
}

char const* SimpleXMLParserPL::BetweenAttributes(char const* at) {
    current_ = *at;
    if (current_ == '>')
        Go(State::BetweenAttributes, State::Characters);
    else if (current_ != ' ' && current_ != '?')
        Go(State::BetweenAttributes, State::AttributeName);
    return at + 1;
}

char const* SimpleXMLParserPL::InAttributeName(char const* at, char const* end) {
    auto stop = Find(at, end, '=');
    attribute_->first.append(at, Length(at, stop));
    if (stop == end) return end;
    Go(State::AttributeName, State::BeforeAttributeValue);
    return stop + 1;
}

char const* SimpleXMLParserPL::BeforeAttributeValue(char const* at, char const* end) {
    auto stop = ByteScan::FindEither(at, end, '"', '\'');
    if (stop == end) return end;
    quote_ = *stop;
    Go(State::BeforeAttributeValue, State::AttributeValue);
    return stop + 1;
}

char const* SimpleXMLParserPL::InAttributeValue(char const* at, char const* end) {
    auto stop = ByteScan::FindEither(at, end, quote_, '&');
    attribute_->second.append(at, Length(at, stop));
    if (stop == end) return end;
    Go(State::AttributeValue, *stop == '&' ? State::AttributeEntity : State::BetweenAttributes);
    return stop + 1;
}

char const* SimpleXMLParserPL::InComment(char const* at, char const* end) {
    auto stop = Find(at, end, '>');
    auto dashes = stop;
    while (dashes != at && dashes[-1] == '-') --dashes;
    // Two are as good as more.
    auto count = (dashes == at ? dashes_ : 0) + static_cast<std::int32_t>(std::min<std::ptrdiff_t>(stop - dashes, 2));
    dashes_ = std::min(count, 2);
    if (stop == end) return end;
    if (dashes_ > 1)
        Go(State::Comment, State::Characters);
    else
        dashes_ = 0;
    return stop + 1;
}

char const* SimpleXMLParserPL::InCData(char const* at, char const* end) {
    auto stop = Find(at, end, '>');
    AppendToCData(at, stop);
    if (stop == end) return end;
    if (previous_ == ']' && before_previous_ == ']')
        Go(State::CData, State::Characters);
    else
        AppendToCData(stop, stop + 1);
    return stop + 1;
}

// Content becomes text two bytes late: the last two may belong to the end of the section.
void SimpleXMLParserPL::AppendToCData(char const* at, char const* end) {
    if (at == end) return;
    char const held[] = {before_previous_, previous_};
    if (end - at == 1) {
        AppendWithoutZeros(held, held + 1);
        before_previous_ = previous_;
    } else {
        AppendWithoutZeros(held, held + 2);
        AppendWithoutZeros(at, end - 2);
        before_previous_ = end[-2];
    }
    previous_ = end[-1];
}

// A zero byte in the history means that there is none yet, so zero bytes of the content are lost.
void SimpleXMLParserPL::AppendWithoutZeros(char const* at, char const* end) {
    while (at != end) {
        auto zero = Find(at, end, 0);
        text_.append(at, Length(at, zero));
        at = zero == end ? end : zero + 1;
    }
}

namespace {

// The value of the hexadecimal digits that the text begins with. It wraps around at 32 bits.
std::uint32_t LeadingHexNumber(std::string_view text) {
    std::uint32_t number = 0;
    for (char byte : text) {
        auto lower = byte | 0x20;
        if (byte >= '0' && byte <= '9')
            number = number * 16 + static_cast<std::uint32_t>(byte - '0');
        else if (lower >= 'a' && lower <= 'f')
            number = number * 16 + static_cast<std::uint32_t>(lower - 'a' + 10);
        else
            break;
    }
    return number;
}

}  // namespace

void SimpleXMLParserPL::TransitionState(State next) {
    Go(state_, next);
}

void SimpleXMLParserPL::FlushText() {
    if (text_.empty()) return;
    handler_.Characters(text_);
    text_.clear();
}

void SimpleXMLParserPL::ReportTag() {
    attributes_.clear();
    for (std::uint32_t i = 0; i < attribute_count_; ++i) attributes_.push_back(&pairs_[i]);
    if (tag_name_.starts_with('?'))
        handler_.DoProcessingInstructionElement(tag_name_, attributes_);
    else
        handler_.StartElement(tag_name_, attributes_);
}

void SimpleXMLParserPL::BeginAttribute() {
    if (pairs_.size() == attribute_count_) pairs_.emplace_back();
    attribute_ = &pairs_[attribute_count_];
    attribute_->first.clear();
    attribute_->second.clear();
}

Stringy SimpleXMLParserPL::DecodeEscapeString() const {
    if (escape_ == "&lt;") return "<";
    if (escape_ == "&gt;") return ">";
    if (escape_ == "&amp;") return "&";
    if (escape_ == "&quot;") return "\"";
    if (!escape_.starts_with("&#x")) return escape_;
    auto number = LeadingHexNumber(std::string_view(escape_).substr(3));
    // One raw byte, not the UTF-8 form of the character; the upper half of the range counts as negative.
    if (static_cast<std::int32_t>(number) > 255) return escape_;
    return Stringy(1, static_cast<char>(number));
}
