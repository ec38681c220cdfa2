#include "xml/simple_xml_parser_pl.h"

#include <gtest/gtest.h>

#include "xml/recorder_test_support.h"

namespace {

using namespace std::string_literals;

// What a document says when it is fed in two pieces, the first of that many bytes.
Stringy EventsOf(Stringy const& document, std::size_t cut) {
    Recorder recorder;
    SimpleXMLParserPL parser(recorder);
    parser.Parse(document.substr(0, cut));
    parser.Parse(document.substr(cut));
    return recorder.log;
}

Stringy EventsByteByByte(Stringy const& document) {
    Recorder recorder;
    SimpleXMLParserPL parser(recorder);
    for (char byte : document) parser.Parse(&byte, 1);
    return recorder.log;
}

// The events were worked out by hand.
std::pair<Stringy, Stringy> const kDocuments[] = {
    {"", ""},
    {"never ended", ""},
    {"ab&amp;c<", "[ab]\n[&]\n[c]\n"},
    {"&lt<a>;<b>", "[&lt<a>;]\n(b\n"},
    {"<?xml version=\"1.0\"?>\n<a>", "?(?xml version=1.0|\n[\n]\n(a\n"},
    // Tags.
    {"<a/>", ")a\n"},
    {"<a/b>", ")ab\n"},
    {"<>< a></ a>", "(\n(a\n) a\n"},
    {"<a\tb='c'>", "(a\tb='c'\n"},
    {"<a-b x='1'><c-d y='2'>", "(ab x=1|\n(cd y=2|\n"},
    {"<a x-y='1'></a-b-c>", "(a x-y=1|\n)a-b-c\n"},
    // Attributes.
    {"<a b='c\"' d=\"'e\" b='f'>", "(a b=c\"| d='e| b=f|\n"},
    {"<a b='&quot;1&#x41;2&lt'>;'>", "(a b=\"1A2&lt'>;|\n"},
    {"<a b= c 'd'e='f'?>", "(a b=d| e=f|\n"},
    {"<b c d='e'><f>", "(b c d=e|\n(f\n"},
    {"<a b><c d='e'>", "(a b><c d=e|\n"},
    {"<a b='c'/><d e='f'>", "(a b=c| /><d e=f|\n"},
    {"<a b='c", ""},
    // Comments.
    {"<!--><b>--><c>", "(c\n"},
    {"<!--->->--><d>", "(d\n"},
    {"<a-b-c --><d>", "(d\n"},
    {"x<!-- <y> -> -- > --->z<", "[x]\n[z]\n"},
    // CDATA sections.
    {"<a>b<![CDATA[c<d>&amp;]]>e</a>", "(a\n[b]\n[c<d>&amp;]\n[e]\n)a\n"},
    {"<![CDATA[]]><![CDATA[]]]><![CDATA[]]]]><![CDATA[]>]]>", "[]]\n[]]]\n[]>]\n"},
    {"<![CDATA[\0a\0\0b]\0]>c]]>"s, "[ab]]>c]\n"},
    {"<![CDATA[\0]]><![CDATA[a\0]]><![CDATA[]]\0>]]>"s, "[a]\n[]]>]\n"},
    {"<!-[CDATA[a]]><x![CDATA[b>]]>", "[a]\n(x![CDATA[b\n"},
};

TEST(SimpleXMLParser, HasOneFixedOutcomeForEveryDocumentWhereverItIsCut) {
    for (auto& [document, events] : kDocuments) {
        for (std::size_t cut = 0; cut <= document.size(); ++cut)
            EXPECT_EQ(EventsOf(document, cut), events) << document << " cut at " << cut;
        EXPECT_EQ(EventsByteByByte(document), events) << document;
    }
}

TEST(SimpleXMLParser, DecodesFourEntitiesAndReferencesToOneByte) {
    Stringy const kept = "&apos;&#65;&;&#x100;&#X41;&#x7FFFFFFF;";
    EXPECT_EQ(EventsOf("<a b='&quot;&lt;&gt;&amp;&#x41;&#x41z1;&#xFFFFFF41;&#x100000041;&#xFf;" + kept + "'>", 0),
              "(a b=\"<>&AAAA\xFF" + kept + "|\n");
    EXPECT_EQ(EventsOf("&#x;&#xe9;&quot;&#x100;&apos;", 0), "[\0]\n[\xE9]\n[\"]\n[&#x100;]\n[&apos;]\n"s);
}

}  // namespace
