#include "xml/simple_xml_parser_pl.h"

#include <algorithm>
#include <string_view>

#include "xml/byte_scan.h"
#include "xml/simple_xml_transitions.h"

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
