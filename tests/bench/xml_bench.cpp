// The parser and the tree against expat and pugixml, on the same documents in the same run.

#include <benchmark/benchmark.h>
#include <expat.h>
#include <malloc.h>

#include <algorithm>
#include <map>
#include <pugixml.hpp>

#include "xml/simple_xml.h"
#include "xml/simple_xml_parser_pl.h"

// The heap that a piece of work takes at its peak, over what was in use before it: of all that allocates, as the
// allocator rounds the blocks.
static bool m_measuring = false;
static long long m_used = 0, m_peak = 0;

static void* Counted(void* block, int sign) {
    if (m_measuring) m_used += sign * static_cast<long long>(malloc_usable_size(block));
    m_peak = std::max(m_peak, m_used);
    return block;
}

// In place of the C library's, under which it keeps other names.
extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_realloc(void* block, std::size_t size);
void __libc_free(void* block);

void* malloc(std::size_t size) noexcept {
    return Counted(__libc_malloc(size), 1);
}
void* realloc(void* block, std::size_t size) noexcept {
    return Counted(__libc_realloc(Counted(block, -1), size), 1);
}
void free(void* block) noexcept {
    __libc_free(Counted(block, -1));
}
}

namespace {

// A document: the unit over and over.
struct Kind {
    std::string_view head, unit, tail;
    // A little less than a frame holds.
    std::string Document() const {
        auto const count = ((2 << 20) / 20 * 19 - head.size() - tail.size()) / unit.size();
        std::string document(head);
        for (std::size_t i = 0; i < count; ++i) document += unit;
        return document.append(tail);
    }
};

// Small elements with attributes and text, and lines in one element.
constexpr Kind Elements{"<Actions>\n", R"(	<Action id="100042" state="pending" site="actionsite">
		<Title>Install update 100042</Title>
		<Description lang="en">Fixes &lt;100042&gt; and asks for a restart.</Description>
		<ForceRun>false</ForceRun>
	</Action>
)",
                        "</Actions>\n"};
constexpr Kind Base64{"<Content>\n", "/9j4AAQSkZJRgABAQEASABIAAD+2wBDAAYEBQYFBAYGBQYHBwYIChAKCgkJChQODwwQFxQYGBcU\n",
                      "</Content>\n"};

// Takes every event and does next to nothing with it.
struct Counter : XMLHandler {
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

void Expat(std::string const& document, void* user, XML_StartElementHandler start, XML_EndElementHandler end,
           XML_CharacterDataHandler text) {
    auto const parser = XML_ParserCreate(nullptr);
    XML_SetUserData(parser, user);
    XML_SetElementHandler(parser, start, end);
    XML_SetCharacterDataHandler(parser, text);
    if (!XML_Parse(parser, document.data(), static_cast<int>(document.size()), 1)) std::abort();
    XML_ParserFree(parser);
}

void ExpatEvents(std::string const& document) {
    std::size_t sum = 0;
    auto const add = [](void* to, char const* text, auto...) { *static_cast<std::size_t*>(to) += *text == 'a'; };
    Expat(document, &sum, add, add, add);
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
    using Stack = std::vector<Node*>;
    Node top;
    Stack open{&top};
    Expat(
        document, &open,
        [](void* to, char const* name, char const** attributes) {
            auto& stack = *static_cast<Stack*>(to);
            stack.push_back(&stack.back()->children.emplace_back(Node{name, {}, {}, {}}));
            for (; *attributes; attributes += 2) stack.back()->attributes.emplace(attributes[0], attributes[1]);
        },
        [](void* to, char const*) { static_cast<Stack*>(to)->pop_back(); },
        [](void* to, char const* text, int size) {
            static_cast<Stack*>(to)->back()->text.append(text, static_cast<std::size_t>(size));
        });
    benchmark::DoNotOptimize(top);
}

void PugiTree(std::string const& document) {
    pugi::xml_document tree;
    if (!tree.load_buffer(document.data(), document.size())) std::abort();
    benchmark::DoNotOptimize(tree);
}

template <void (*read)(std::string const&), Kind const& kind>
void Read(benchmark::State& state) {
    auto const document = kind.Document();
    m_used = m_peak = 0;
    m_measuring = true;
    read(document);
    m_measuring = false;
    state.counters["heap_MiB"] = static_cast<double>(m_peak) / (1 << 20);
    for (auto _ : state) read(document);
}

// On a machine with other work the least of several repetitions says most.
void Least(benchmark::internal::Benchmark* added) {
    added->Unit(benchmark::kMillisecond)->ComputeStatistics("least", [](std::vector<double> const& times) {
        return *std::ranges::min_element(times);
    });
}

BENCHMARK_TEMPLATE(Read, OwnEvents, Elements)->Apply(Least);
BENCHMARK_TEMPLATE(Read, OwnEvents, Base64)->Apply(Least);
BENCHMARK_TEMPLATE(Read, ExpatEvents, Elements)->Apply(Least);
BENCHMARK_TEMPLATE(Read, ExpatEvents, Base64)->Apply(Least);
BENCHMARK_TEMPLATE(Read, OwnTree, Elements)->Apply(Least);
BENCHMARK_TEMPLATE(Read, OwnTree, Base64)->Apply(Least);
BENCHMARK_TEMPLATE(Read, ExpatTree, Elements)->Apply(Least);
BENCHMARK_TEMPLATE(Read, ExpatTree, Base64)->Apply(Least);
BENCHMARK_TEMPLATE(Read, PugiTree, Elements)->Apply(Least);
BENCHMARK_TEMPLATE(Read, PugiTree, Base64)->Apply(Least);

}  // namespace
