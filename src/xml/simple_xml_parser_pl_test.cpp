#include "xml/simple_xml_parser_pl.h"

#include <gtest/gtest.h>

#include "xml/plain_parser_test_support.h"

namespace {

using namespace std::string_literals;

// What the document says when it is fed in pieces of that size.
Stringy EventsOf(Stringy const& document, std::size_t size) {
    Recorder recorder;
    SimpleXMLParserPL parser(recorder);
    for (std::size_t at = 0; at < document.size(); at += size) parser.Parse(document.substr(at, size));
    return recorder.log;
}

TEST(SimpleXMLParser, HasOneFixedOutcomeForEveryDocument) {
    std::pair<Stringy, Stringy> const cases[] = {
        {"<?xml version=\"1.0\"?>\n<a>", "?(?xml version=1.0|\n[\n]\n(a\n"},
        {"abcd&amp;b<", "[abcd]\n[&]\n[b]\n"},
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
    for (auto& [document, events] : cases)
        for (auto size : {1u, 2u, 3u, 8u, 1000u}) EXPECT_EQ(EventsOf(document, size), events) << document << size;
}

TEST(SimpleXMLParser, DecodesFourEntitiesAndReferencesToOneByte) {
    Stringy const kept = "&apos;&#65;&;&#x100;&#X41;&#x7FFFFFFF;";
    EXPECT_EQ(EventsOf("<a b='&quot;&lt;&gt;&amp;&#x41;&#x41z1;&#xFFFFFF41;&#x100000041;&#xFf;" + kept + "'>", 1000),
              "(a b=\"<>&AAAA\xFF" + kept + "|\n");
    EXPECT_EQ(EventsOf("&#x;&#xe9;&quot;&#x100;&apos;", 1000), "[\0]\n[\xE9]\n[\"]\n[&#x100;]\n[&apos;]\n"s);
}

}  // namespace
