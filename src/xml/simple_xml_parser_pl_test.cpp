#include "xml/simple_xml_parser_pl.h"

#include <gtest/gtest.h>

#include <random>

#include "xml/plain_parser.h"

namespace {

using namespace std::string_literals;

// What the document says when it is fed in pieces of that size.
Stringy EventsOf(Stringy const& document, std::size_t size = 1000) {
    Recorder recorder;
    SimpleXMLParserPL parser(recorder);
    for (std::size_t at = 0; at < document.size(); at += size) parser.Parse(document.substr(at, size));
    return recorder.log;
}

TEST(SimpleXMLParser, HasOneFixedOutcomeForEveryDocument) {
    std::pair<Stringy, Stringy> const cases[] = {
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
        {"never ended", ""},
        {"<a x='&apos;&#65;", ""},
    };
    for (auto& [document, events] : cases) EXPECT_EQ(EventsOf(document), events) << document;
}

TEST(SimpleXMLParser, DecodesFourEntitiesAndReferencesToOneByte) {
    std::pair<Stringy, Stringy> const cases[] = {
        {"&quot;", "\""},      {"&gt;", ">"},          {"&apos;", "&apos;"},
        {"&#65;", "&#65;"},    {"&;", "&;"},           {"&#x41;", "A"},
        {"&#xe9;", "\xE9"},    {"&#xFf;", "\xFF"},     {"&#x100;", "&#x100;"},
        {"&#x;", "\0"s},       {"&#x41zz;", "A"},      {"&#X41;", "&#X41;"},
        {"&#xFFFFFF41;", "A"}, {"&#x100000041;", "A"}, {"&#x7FFFFFFF;", "&#x7FFFFFFF;"},
    };
    for (auto& [reference, text] : cases) {
        EXPECT_EQ(EventsOf(reference), "[" + text + "]\n") << reference;
        EXPECT_EQ(EventsOf("<a b='" + reference + "'>"), "(a b=" + text + "|\n") << reference;
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
        Recorder expected;
        PlainParser(expected).Parse(document);
        for (auto size : {1u, 2u, 3u, 5u, 8u, 13u, 1000u})
            ASSERT_EQ(EventsOf(document, size), expected.log) << document << size;
    }
}

}  // namespace
