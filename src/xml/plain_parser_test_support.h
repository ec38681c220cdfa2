#pragma once

#include <cctype>
#include <vector>

#include "xml/simple_xml_parser_pl.h"

// What the parser is measured against, in tests.

// Writes events down: (name a=b|, )name, [text], ?(name a=b|.
class Recorder : public XMLHandler {
  public:
    void StartElement(ConstData name, Attributes attributes) override { Tag("(", name, attributes); }
    void EndElement(ConstData name) override { log += ")" + Stringy(name.AsStringView()) + "\n"; }
    void Characters(ConstData text) override { log += "[" + Stringy(text.AsStringView()) + "]\n"; }
    void DoProcessingInstructionElement(ConstData name, Attributes attributes) override { Tag("?(", name, attributes); }

    Stringy log;

  private:
    void Tag(char const* kind, ConstData name, Attributes attributes) {
        log += kind + Stringy(name.AsStringView());
        for (auto pair : attributes) log += " " + pair->first + "=" + pair->second + "|";
        log += "\n";
    }
};

// The state machine byte by byte, as plainly as it can be put.
class PlainParser {
  public:
    explicit PlainParser(XMLHandler& handler) : handler_(handler) {}
    void Parse(Stringy const& bytes) {
        for (char byte : bytes) Step(byte_ = byte);
    }

  private:
    void Step(char c) {
        switch (state_) {
            case 0:
                return c == '<' ? Go(2) : c == '&' ? Go(1) : Add(text_);
            case 1:
                return c == ';' ? Go(0) : Add(escape_);
            case 2:
                return StepTagName(c);
            case 3:
                return c == '>' ? Go(0) : Add(name_);
            case 4:
                return c == '>' ? Go(0) : c == ' ' || c == '?' ? void() : Go(5);
            case 5:
                return c == '=' ? Go(6) : Add(pairs_.back().first);
            case 6:
                return c == '"' || c == '\'' ? (quote_ = c, Go(7)) : void();
            case 7:
                return c == quote_ ? Go(4) : c == '&' ? Go(8) : Add(pairs_.back().second);
            case 8:
                return c == ';' ? Go(7) : Add(escape_);
            case 9:
                return c == '-' ? void(++dashes_) : c == '>' && dashes_ > 1 ? Go(0) : void(dashes_ = 0);
            case 10:
                if (c == '>' && last_ == ']' && before_ == ']') return Go(0);
                if (before_) text_ += before_;
                before_ = last_;
                last_ = c;
        }
    }
    void StepTagName(char c) {
        if (c == ' ') return name_.empty() ? void() : Go(4);
        if (c == '/' || c == '>') return Go(c == '/' ? 3 : 0);
        if (c == '-') return ++dashes_ > 1 ? Go(9) : void();
        name_ += c;
        if (name_ == "![CDATA[") name_ = "", last_ = before_ = 0, Go(10);
    }
    void Go(int next) {
        if ((state_ == 0 || state_ == 10) && !text_.empty()) handler_.Characters(text_), text_ = "";
        if (state_ == 1) handler_.Characters(Decoded());
        if ((state_ == 2 || state_ == 4) && next == 0) Report();
        if (state_ == 3 && next == 0) handler_.EndElement(name_);
        if (state_ == 7 && next != 8) ++count_;
        if (state_ == 8) pairs_.back().second += Decoded();
        if (next == 1 || next == 8) escape_ = "&";
        if (next == 2) dashes_ = 0, name_ = "", count_ = 0;
        if (next == 4) pairs_.resize(count_), pairs_.emplace_back();
        if (next == 5) Add(pairs_.back().first);
        if (next == 9) dashes_ = 0;
        state_ = next;
    }
    void Add(Stringy& to) { to += byte_; }
    void Report() {
        std::vector<XMLAttributePair const*> list;
        for (std::size_t i = 0; i < count_; ++i) list.push_back(&pairs_[i]);
        name_[0] == '?' ? handler_.DoProcessingInstructionElement(name_, list) : handler_.StartElement(name_, list);
    }
    Stringy Decoded() {
        escape_ += ';';
        for (auto [reference, text] : {std::pair("&lt;", "<"), {"&gt;", ">"}, {"&amp;", "&"}, {"&quot;", "\""}})
            if (escape_ == reference) return text;
        if (escape_.substr(0, 3) != "&#x") return escape_;
        unsigned number = 0;
        for (auto at = escape_.begin() + 3; std::isxdigit(static_cast<unsigned char>(*at)); ++at)
            number = number * 16 + static_cast<unsigned>(std::stoi(Stringy(1, *at), nullptr, 16));
        return static_cast<int>(number) <= 255 ? Stringy(1, static_cast<char>(number)) : escape_;
    }

    int state_ = 0, dashes_ = 0;
    char byte_ = 0, last_ = 0, before_ = 0, quote_ = 0;
    std::size_t count_ = 0;
    Stringy text_, escape_, name_;
    std::vector<XMLAttributePair> pairs_;
    XMLHandler& handler_;
};
