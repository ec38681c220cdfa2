#pragma once

#include "xml/simple_xml_parser_pl.h"

// Writes a parser's events down, one a line: (name a=b|, )name, [text], ?(name a=b|.
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
