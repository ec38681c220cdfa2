// The parser, the tree and the writer against expat and pugixml, on the same documents in the same run.

#include <benchmark/benchmark.h>
#include <expat.h>

#include <algorithm>
#include <map>
#include <pugixml.hpp>

#include "foundation/text/ustring_builder.h"
#include "heap_meter.h"
#include "xml/simple_xml.h"
#include "xml/simple_xml_parser_pl.h"
#include "xml/xml_writer.h"

namespace {

constexpr std::size_t k1MiB = 1 << 20;
constexpr std::size_t k2MiB = 2 << 20;
constexpr std::size_t kMessage = k2MiB / 20 * 19;  // a little less than a frame holds

// Small elements with attributes and text.
std::string Elements(std::size_t size) {
    std::string document = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<Actions>\n";
    for (int i = 0; document.size() < size - 300; ++i) {
        auto id = std::to_string(100'000 + i);
        document += "\t<Action id=\"" + id + "\" state=\"pending\" site=\"actionsite\">\n\t\t<Title>Install update " +
                    id + "</Title>\n\t\t<Description lang=\"en\">Fixes &lt;" + id +
                    "&gt; and asks for a restart.</Description>\n\t\t<ForceRun>false</ForceRun>\n\t</Action>\n";
    }
    return document + "</Actions>\n";
}

// Base64 lines in one element.
std::string Base64(std::size_t size) {
    std::string document = "<Content>\n";
    for (unsigned i = 1; document.size() < size - 100; ++i) {
        for (unsigned column = 0; column < 76; ++column)
            document += "ABCDEFGHabcdefgh01234567+/ijklmnop"[(i * 7 + column * i) % 34];
        document += '\n';
    }
    return document + "</Content>\n";
}

std::string Nested(std::size_t size) {
    std::string opening, closing;
    while (opening.size() + closing.size() + 7 <= size) opening += "<a>", closing += "</a>";
    return opening + closing;
}

std::string Opening(std::size_t size) {
    std::string document;
    while (document.size() + 3 <= size) document += "<a>";
    return document;
}

// Takes every event and does next to nothing with it.
class Counter : public XMLHandler {
  public:
    void StartElement(ConstData name, Attributes attributes) override { sum += name.size() + attributes.size(); }
    void EndElement(ConstData name) override { sum += name.size(); }
    void Characters(ConstData text) override { sum += text.size(); }
    std::size_t sum = 0;
};

void OwnEvents(std::string const& document) {
    Counter counter;
    SimpleXMLParserPL(counter).Parse(document);
    benchmark::DoNotOptimize(counter.sum);
}

void OwnTree(std::string const& document) {
    benchmark::DoNotOptimize(SimpleXML::Parse(UStringRef<UTF8>(document)));
}

class Expat {
  public:
    explicit Expat(void* user) : parser_(XML_ParserCreate_MM(nullptr, &memory_, nullptr)) {
        XML_SetUserData(parser_, user);
    }
    Expat(Expat const&) = delete;
    ~Expat() { XML_ParserFree(parser_); }
    void Parse(XML_StartElementHandler start, XML_EndElementHandler end, XML_CharacterDataHandler text,
               std::string const& document) {
        XML_SetElementHandler(parser_, start, end);
        XML_SetCharacterDataHandler(parser_, text);
        auto status = XML_Parse(parser_, document.data(), static_cast<int>(document.size()), 1);
        if (status != XML_STATUS_OK) std::abort();
    }

  private:
    static constexpr XML_Memory_Handling_Suite memory_{HeapMeter::Allocate, HeapMeter::Reallocate, HeapMeter::Free};
    XML_Parser parser_;
};

void ExpatEvents(std::string const& document) {
    std::size_t sum = 0;
    Expat(&sum).Parse(
        [](void* to, char const* name, char const**) {
            *static_cast<std::size_t*>(to) += static_cast<unsigned char>(*name);
        },
        [](void* to, char const* name) { *static_cast<std::size_t*>(to) += static_cast<unsigned char>(*name); },
        [](void* to, char const*, int size) { *static_cast<std::size_t*>(to) += static_cast<std::size_t>(size); },
        document);
    benchmark::DoNotOptimize(sum);
}

// A tree as one would write it down without a second thought.
struct Node {
    std::string name;
    std::map<std::string, std::string> attributes;
    std::string text;
    std::vector<Node> children;
};

void ExpatTree(std::string const& document) {
    Node top;
    std::vector<Node*> open{&top};
    Expat(&open).Parse(
        [](void* to, char const* name, char const** attributes) {
            auto& stack = *static_cast<std::vector<Node*>*>(to);
            auto& node = stack.back()->children.emplace_back();
            node.name = name;
            for (; *attributes; attributes += 2) node.attributes.emplace(attributes[0], attributes[1]);
            stack.push_back(&node);
        },
        [](void* to, char const*) { static_cast<std::vector<Node*>*>(to)->pop_back(); },
        [](void* to, char const* text, int size) {
            (*static_cast<std::vector<Node*>*>(to)).back()->text.append(text, static_cast<std::size_t>(size));
        },
        document);
    benchmark::DoNotOptimize(top);
}

void PugiTree(std::string const& document) {
    pugi::set_memory_management_functions(HeapMeter::Allocate, HeapMeter::Free);
    pugi::xml_document tree;
    if (!tree.load_buffer(document.data(), document.size())) std::abort();
    benchmark::DoNotOptimize(tree);
}

struct Reading {
    char const* name;
    void (*read)(std::string const&);
    std::string (*document)(std::size_t);
    std::size_t size;
};

Reading const kReadings[] = {
    {"Events/Elements/own", OwnEvents, Elements, kMessage},
    {"Events/Elements/expat", ExpatEvents, Elements, kMessage},
    {"Events/Base64/own", OwnEvents, Base64, kMessage},
    {"Events/Base64/expat", ExpatEvents, Base64, kMessage},
    {"Events/Nested/own", OwnEvents, Nested, kMessage},
    {"Events/Nested/expat", ExpatEvents, Nested, kMessage},
    {"Tree/Elements/own", OwnTree, Elements, kMessage},
    {"Tree/Elements/expat", ExpatTree, Elements, kMessage},
    {"Tree/Elements/pugixml", PugiTree, Elements, kMessage},
    {"Tree/Base64/own", OwnTree, Base64, kMessage},
    {"Tree/Base64/expat", ExpatTree, Base64, kMessage},
    {"Tree/Base64/pugixml", PugiTree, Base64, kMessage},
    // Twice the input must take about twice the time.
    {"Growth/Events/Elements/1MiB", OwnEvents, Elements, k1MiB},
    {"Growth/Events/Elements/2MiB", OwnEvents, Elements, k2MiB},
    {"Growth/Events/Base64/1MiB", OwnEvents, Base64, k1MiB},
    {"Growth/Events/Base64/2MiB", OwnEvents, Base64, k2MiB},
    {"Growth/Events/Opening/1MiB", OwnEvents, Opening, k1MiB},
    {"Growth/Events/Opening/2MiB", OwnEvents, Opening, k2MiB},
    {"Growth/Tree/Elements/1MiB", OwnTree, Elements, k1MiB},
    {"Growth/Tree/Elements/2MiB", OwnTree, Elements, k2MiB},
    {"Growth/Tree/Base64/1MiB", OwnTree, Base64, k1MiB},
    {"Growth/Tree/Base64/2MiB", OwnTree, Base64, k2MiB},
    {"Growth/Tree/Opening/1MiB", OwnTree, Opening, k1MiB},
    {"Growth/Tree/Opening/2MiB", OwnTree, Opening, k2MiB},
};

void Read(benchmark::State& state, Reading const& reading) {
    auto document = reading.document(reading.size);
    state.counters["heap_MiB"] = HeapMeter::PeakMiB([&] { reading.read(document); });
    for (auto _ : state) reading.read(document);
    state.SetBytesProcessed(state.iterations() * static_cast<long long>(document.size()));
}

void WriteOwn(benchmark::State& state) {
    auto tree = SimpleXML::Parse(UStringRef<UTF8>(Elements(kMessage)));
    std::size_t written = 0;
    for (auto _ : state) {
        UStringBuilder<UTF8> builder;
        XMLWriter(builder, XMLFormatStyle::Indented).WriteXMLElement(*tree);
        benchmark::DoNotOptimize(written = builder.size());
    }
    state.SetBytesProcessed(state.iterations() * static_cast<long long>(written));
}

void WritePugi(benchmark::State& state) {
    struct Collector : pugi::xml_writer {
        void write(void const* data, std::size_t size) override { text.append(static_cast<char const*>(data), size); }
        std::string text;
    };
    pugi::xml_document tree;
    tree.load_string(Elements(kMessage).c_str());
    std::size_t written = 0;
    for (auto _ : state) {
        Collector collector;
        tree.save(collector);
        benchmark::DoNotOptimize(written = collector.text.size());
    }
    state.SetBytesProcessed(state.iterations() * static_cast<long long>(written));
}

// On a machine with other work the least of several repetitions says most.
double Least(std::vector<double> const& times) {
    return *std::min_element(times.begin(), times.end());
}

[[maybe_unused]] bool const m_registered = [] {
    auto finish = [](benchmark::internal::Benchmark* added) {
        added->Unit(benchmark::kMillisecond)->ComputeStatistics("least", Least);
    };
    for (auto& each : kReadings) finish(benchmark::RegisterBenchmark(each.name, Read, each));
    finish(benchmark::RegisterBenchmark("Write/Elements/own", WriteOwn));
    finish(benchmark::RegisterBenchmark("Write/Elements/pugixml", WritePugi));
    return true;
}();

}  // namespace
