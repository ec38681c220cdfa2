#include "xml/simple_xml_parser_pl.h"

#include <algorithm>
#include <charconv>

// Takes the bytes before the first of `stops`, or all that are left.
template <class... Bytes>
std::string_view SimpleXMLParserPL::TakeRun(Bytes... stops) {
    auto stop = std::find_if(rest_.begin(), rest_.end(), [=](char byte) { return ((byte == stops) || ...); });
    std::string_view run(rest_.begin(), stop);
    rest_.remove_prefix(run.size());
    return run;
}

// Answers whether a byte was left.
bool SimpleXMLParserPL::TakeByte() {
    if (rest_.empty()) return false;
    current_ = rest_.front();
    rest_.remove_prefix(1);
    return true;
}

// Appends to `buffer` what stands before the first of `stops` and takes that byte, if it has come.
template <class... Bytes>
bool SimpleXMLParserPL::TakeUpTo(Stringy& buffer, Bytes... stops) {
    buffer += TakeRun(stops...);
    return TakeByte();
}

void SimpleXMLParserPL::Parse(ConstData bytes) {
    rest_ = bytes.AsStringView();
    while (!rest_.empty()) Step();
}

// The table of states: what each collects, which bytes end that, and what such a byte does.
void SimpleXMLParserPL::Step() {
    switch (state_) {
        case State::Characters:
            AddCharacters(TakeRun('<', '&'));
            if (TakeByte()) TransitionState(current_ == '<' ? State::TagName : State::CharactersEntity);
            break;
        case State::CharactersEntity:
            if (TakeUpTo(escape_, ';')) TransitionState(State::Characters);
            break;
        case State::TagName:
            if (TakeUpTo(tag_name_, ' ', '/', '>', '-', '[')) StepInTagName();
            break;
        case State::EndTagName:
            if (TakeUpTo(tag_name_, '>')) TransitionState(State::Characters);
            break;
        case State::BetweenAttributes:
            TakeByte();
            if (current_ == '>')
                TransitionState(State::Characters);
            else if (current_ != ' ' && current_ != '?')
                TransitionState(State::AttributeName);
            break;
        case State::AttributeName:
            if (TakeUpTo(Attribute().first, '=')) TransitionState(State::BeforeAttributeValue);
            break;
        case State::BeforeAttributeValue:
            TakeRun('"', '\'');
            if (!TakeByte()) break;
            quote_ = current_;
            TransitionState(State::AttributeValue);
            break;
        case State::AttributeValue:
            if (TakeUpTo(Attribute().second, quote_, '&'))
                TransitionState(current_ == '&' ? State::AttributeEntity : State::BetweenAttributes);
            break;
        case State::AttributeEntity:
            if (TakeUpTo(escape_, ';')) TransitionState(State::AttributeValue);
            break;
        case State::Comment:
            TakeByte();
            StepInComment();
            break;
        case State::CData:
            if (TakeUpTo(text_, '>')) StepInCData();
            break;
    }
}

// A run that ends here goes to the handler as it stands: of a large text, collecting it would make a second copy.
void SimpleXMLParserPL::AddCharacters(std::string_view run) {
    if (!text_.empty() || rest_.empty())
        text_ += run;
    else if (!run.empty())
        handler_.Characters(run);
}

void SimpleXMLParserPL::StepInTagName() {
    if (current_ == '/') return TransitionState(State::EndTagName);
    if (current_ == '>') return TransitionState(State::Characters);
    if (current_ == ' ' && !tag_name_.empty()) return TransitionState(State::BetweenAttributes);
    if (current_ == '-' && ++dashes_ > 1) return TransitionState(State::Comment);
    if (current_ != '[') return;  // the first dash is dropped, and so are spaces before the name
    tag_name_ += current_;
    if (tag_name_ == "![CDATA[") TransitionState(State::CData);
}

void SimpleXMLParserPL::StepInComment() {
    if (current_ == '-')
        dashes_ = std::min(dashes_ + 1, 2);  // two are as good as more
    else if (current_ == '>' && dashes_ > 1)
        TransitionState(State::Characters);
    else
        dashes_ = 0;
}

void SimpleXMLParserPL::StepInCData() {
    if (!text_.ends_with("]]")) {
        text_ += current_;
        return;
    }
    text_.resize(text_.size() - 2);
    // Only now, or bytes that a zero keeps apart would count as the end.
    std::erase(text_, '\0');
    TransitionState(State::Characters);
}

void SimpleXMLParserPL::TransitionState(State next) {
    LeaveState(next);
    EnterState(next);
    state_ = next;
}

void SimpleXMLParserPL::LeaveState(State next) {
    if (state_ == State::CharactersEntity || state_ == State::AttributeEntity) escape_ += ';';
    if (state_ == State::Characters || state_ == State::CData) ReportText();
    if (state_ == State::CharactersEntity) handler_.Characters(DecodeEscapeString());
    if ((state_ == State::TagName || state_ == State::BetweenAttributes) && next == State::Characters) ReportTag();
    if (state_ == State::EndTagName && next == State::Characters) handler_.EndElement(tag_name_);
    if (state_ == State::AttributeValue && next != State::AttributeEntity) ++attribute_count_;
    if (state_ == State::AttributeEntity) Attribute().second += DecodeEscapeString();
}

void SimpleXMLParserPL::EnterState(State next) {
    if (next == State::CharactersEntity || next == State::AttributeEntity) escape_ = '&';
    if (next == State::TagName || next == State::Comment) dashes_ = 0;
    if (next == State::TagName) tag_name_.clear();
    if (next == State::TagName) attribute_count_ = 0;
    if (next == State::BetweenAttributes) BeginAttribute();
    if (next == State::AttributeName) Attribute().first += current_;
}

void SimpleXMLParserPL::BeginAttribute() {
    if (pairs_.size() == attribute_count_) pairs_.emplace_back();
    Attribute().first.clear();
    Attribute().second.clear();
}

void SimpleXMLParserPL::ReportText() {
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

Stringy SimpleXMLParserPL::DecodeEscapeString() const {
    constexpr std::pair<std::string_view, char> kEntities[] = {
        {"&lt;", '<'}, {"&gt;", '>'}, {"&amp;", '&'}, {"&quot;", '"'}};
    for (auto [entity, character] : kEntities)
        if (escape_ == entity) return Stringy(1, character);
    if (!escape_.starts_with("&#x")) return escape_;
    auto digits = std::string_view(escape_).substr(3);
    digits = digits.substr(0, digits.find_first_not_of("0123456789abcdefABCDEF"));
    // The number has 32 bits, which are the last eight digits, and a sign: the upper half of the range is negative.
    if (digits.size() > 8) digits.remove_prefix(digits.size() - 8);
    std::uint32_t number = 0;
    std::from_chars(digits.begin(), digits.end(), number, 16);
    // One raw byte, not the UTF-8 form of the character.
    return static_cast<std::int32_t>(number) > 255 ? escape_ : Stringy(1, static_cast<char>(number));
}
