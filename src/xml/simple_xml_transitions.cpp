#include <string_view>

#include "xml/simple_xml_parser_pl.h"
#include "xml/simple_xml_transitions.h"

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
