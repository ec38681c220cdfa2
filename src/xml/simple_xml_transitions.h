#pragma once

#include "xml/simple_xml_parser_pl.h"

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
