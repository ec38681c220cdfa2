#include "xml/simple_xml_parser_pl.h"

#include <gtest/gtest.h>

#include <random>

#include "xml/plain_parser.h"

namespace {

using namespace std::string_literals;

Stringy EventsOf(std::initializer_list<Stringy> pieces) {
    Recorder recorder;
    SimpleXMLParserPL parser(recorder);
    for (auto& piece : pieces) parser.Parse(piece);
    return recorder.log;
}

TEST(SimpleXMLParser, HasOneFixedOutcomeForEveryDocument) {
    struct {
        Stringy document, events;
    } const cases[] = {
        {"<a>x</a>", "(a\n[x]\n)a\n"},
        {"<?xml version=\"1.0\"?>\n<a>", "?(?xml version=1.0|\n[\n]\n(a\n"},
        {"a&amp;b<", "[a]\n[&]\n[b]\n"},
        {"<a x='1\"' y=\"&lt;'\">", "(a x=1\"| y=<'|\n"},
        {"<a/>", ")a\n"},
        {"<a b='c'/><d e='f'>", "(a b=c| /><d e=f|\n"},
        {"<b c d='e'><f>", "(b c d=e|\n(f\n"},
        {"<first-name x-y='1'></last-name>", "(firstname x-y=1|\n)last-name\n"},
        {"<a-b-c --><d>", "(d\n"},
        {"x<!-- <y> -> -- > --->z<", "[x]\n[z]\n"},
        {"<!--><b>--><c>", "(c\n"},
        {"<a><![CDATA[a<b&amp;]]]]></a>", "(a\n[a<b&amp;]]]\n)a\n"},
        {"<![CDATA[]]><![CDATA[\0a\0\0b]\0]>c]]>"s, "[ab]]>c]\n"},
        {"<>< a></ a>", "(\n(a\n) a\n"},
        {"<a\tb='c'>", "(a\tb='c'\n"},
        {"<a b='1'><c>", "(a b=1|\n(c\n"},
        {"never ended", ""},
        {"<a x='&apos;&#65;", ""},
    };
    for (auto& each : cases) EXPECT_EQ(EventsOf({each.document}), each.events) << each.document;
}

TEST(SimpleXMLParser, DecodesFourEntitiesAndReferencesToOneByte) {
    struct {
        Stringy reference, text;
    } const cases[] = {
        {"&quot;", "\""},      {"&gt;", ">"},          {"&apos;", "&apos;"},
        {"&#65;", "&#65;"},    {"&;", "&;"},           {"&#x41;", "A"},
        {"&#xe9;", "\xE9"},    {"&#xFf;", "\xFF"},     {"&#x100;", "&#x100;"},
        {"&#x;", "\0"s},       {"&#x41zz;", "A"},      {"&#X41;", "&#X41;"},
        {"&#xFFFFFF41;", "A"}, {"&#x100000041;", "A"}, {"&#x7FFFFFFF;", "&#x7FFFFFFF;"},
    };
    for (auto& each : cases) {
        EXPECT_EQ(EventsOf({each.reference}), "[" + each.text + "]\n") << each.reference;
        EXPECT_EQ(EventsOf({"<a b='" + each.reference + "'>"}), "(a b=" + each.text + "|\n") << each.reference;
    }
}

TEST(SimpleXMLParser, TakesRunsAsThePlainMachineTakesBytesWhereverTheInputIsCut) {
    Stringy const pieces[] = {
        "<",   ">",    "&",    ";",    "/",    "-",    "?",    " ",   "=",        "\"",
        "'",   "abc",  "\0"s,  "#x4a", "#x",   "lt",   "]",    "]]>", "![CDATA[", "<!--",
        "-->", "</b>", "<b c", "='d'", "&gt;", "![CD", "ATA[", "<",   ">",        "long text, longer than a block"};
    std::mt19937 random(1);
    for (int round = 0; round < 4000; ++round) {
        Stringy document;
        for (int i = 0; i < 25; ++i) document += pieces[random() % std::size(pieces)];
        Recorder expected, bytewise;
        PlainParser(expected).Parse(document);
        SimpleXMLParserPL parser(bytewise);
        for (char byte : document) parser.Parse(&byte, 1);
        ASSERT_EQ(bytewise.log, expected.log) << document;
        for (std::size_t cut = 0; cut <= document.size(); ++cut)
            ASSERT_EQ(EventsOf({document.substr(0, cut), document.substr(cut)}), expected.log) << document << cut;
    }
}

}  // namespace
