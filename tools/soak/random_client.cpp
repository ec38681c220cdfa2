#include "tools/soak/random_client.h"

#include <array>
#include <stdexcept>

#include "tools/client_messages.h"

namespace tools {

namespace {

// Longer than the program takes from one look at its messages to the next.
constexpr Milliseconds kBatch = std::chrono::seconds(4);

constexpr std::array kTexts = {"Install updates",
                               "",
                               " ",
                               "a \"quoted\" {title} with } and {_lf} and {{",
                               "<b>&amp;</b> ]]> <![CDATA[",
                               "two\nlines\r\nand\ta tab",
                               "\x01\x02\x1b[31m\x7f",
                               "Z\u00fcrich \u20ac \u65e5\u672c\u8a9e \U0001f600 e\u0301",
                               "\u202eright to left\u202c \u200f\u05e9\u05dc\u05d5\u05dd",
                               "%s %n %p"};
constexpr std::array kSoon = {"+3s", "-1s", "Sat, 01 Jan 0000 00:00:00 +0000"};
constexpr std::array kLater = {"+4m", "+2h", "+40d", "Fri, 31 Dec 4294967295 23:59:59 -9959"};
constexpr std::array kTimeouts = {"PT0S", "PT1S", "PT5S", "PT1H", "-PT5S", "P106751991DT4H54.775807S"};
constexpr std::array kMalformed = {"<m><ActionRequest><ID>x</ID></ActionRequest></m>",
                                   "<m><ActionRequest><Deadline>soon</Deadline></ActionRequest></m>",
                                   "<m><MessageRequest><Timeout>never</Timeout></MessageRequest></m>",
                                   "<m><RemoveRequest><ID>-1</ID></RemoveRequest></m>",
                                   "<m><QuietModeStart><StartTime>now</StartTime></QuietModeStart></m>",
                                   "<m><InitializationInfo><BaseDirectory>/</BaseDirectory></InitializationInfo></m>",
                                   "<m><Unknown/><ActionRequest",
                                   "no document"};

std::string Repeated(std::string const& text, int times) {
    std::string repeated;
    while (times-- > 0) repeated += text;
    return repeated;
}

}  // namespace

RandomClient::RandomClient(Launch const& launch, std::string base_directory, unsigned seed)
    : dice(seed), base_directory_(std::move(base_directory)), program_(launch) {}

void RandomClient::Send(std::string const& document) {
    program_.SendFrame(document);
    ++sent_;
}

bool RandomClient::EachCounts() const {
    return Clock::now() > hostile_ + kBatch;
}

void RandomClient::Initialize() {
    ScenarioLine line{{"initialize", "locale"}, {{"base", base_directory_}}};
    if (dice.Chance(70)) line.words.push_back("snooze");
    if (dice.Chance(50)) line.values["remind"] = "PT1M";
    Send(Document(MessageFor(line)));
}

void RandomClient::SendAnything() {
    if (dice.Chance(4)) SendHostile();
    std::string elements;
    for (int left = dice.Chance(3) ? 50 : 1; left > 0; --left) {
        elements += Anything();
        if (left > 1 && dice.Chance(70)) continue;
        Send(Document(elements));
        elements.clear();
    }
    TakeAnswers();
}

void RandomClient::SendHostile() {
    hostile_ = Clock::now();
    std::string document = dice.AnyOf(kMalformed);
    if (dice.Chance(30))
        document = Repeated(dice.AnyOf(std::array{"<", "<a>", "&", "<>", "<!--", "<![CDATA[", "\xff"}), 50'000);
    if (dice.Chance(5)) document.clear();
    Send(document);
}

std::string RandomClient::Anything() {
    int const kind = dice.Roll(100);
    if (open_.size() > 50 || kind < 30) return Removal();
    if (kind < 65) return Request();
    if (kind < 85) return Message();
    return kind < 95 ? Quiet() : Element("Unknown", Escape(Text()));
}

std::string RandomClient::Text() {
    std::string const text = dice.AnyOf(kTexts);
    return dice.Chance(2) ? Repeated(text, 1000) : text;
}

std::string RandomClient::Request() {
    ScenarioLine line{{"request"}, {{"id", std::to_string(++last_id_)}, {"title", Text()}}};
    bool const is_soon = dice.Chance(40), forced = dice.Chance(30);
    for (auto flag : {"cancellable", "restart", "shutdown", "save", "canned"})
        if (dice.Chance(30)) line.words.push_back(flag);
    for (auto text : {"description", "preview", "confirm"})
        if (dice.Chance(30)) line.values[text] = Text();
    if (forced) line.words.push_back("force");
    if (is_soon) line.values["deadline"] = dice.AnyOf(kSoon);
    if (!is_soon && dice.Chance(50)) line.values["deadline"] = dice.AnyOf(kLater);
    open_.insert(last_id_);
    answerable_.insert(last_id_);
    if (is_soon && forced && EachCounts()) owed_.insert(last_id_);
    return MessageFor(line);
}

std::string RandomClient::Message() {
    ID const id = open_.empty() || dice.Chance(70) ? ++last_id_ : dice.AnyOf(open_);
    ScenarioLine line{{"message"}, {{"id", std::to_string(id)}, {"title", Text()}, {"text", Text()}}};
    if (dice.Chance(60)) line.values["timeout"] = dice.AnyOf(kTimeouts);
    if (dice.Chance(20)) line.words.push_back("completion");
    open_.insert(id);
    return MessageFor(line);
}

std::string RandomClient::Removal() {
    ID const id = open_.empty() ? 0 : dice.AnyOf(open_);
    std::string const type = dice.Chance(70) ? "all" : dice.AnyOf(std::array{"action", "message", "offer"});
    owed_.erase(id);
    if (type == "all" && EachCounts()) open_.erase(id);
    return MessageFor({{"remove", type, std::to_string(id)}, {}});
}

std::string RandomClient::Quiet() {
    if (dice.Chance(60)) return MessageFor({{"quiet", "end"}, {}});
    return MessageFor({{"quiet"}, {{"start", "-1h"}, {"end", dice.AnyOf(kLater)}}});
}

void RandomClient::SendOverdue() {
    answerable_.insert(++last_id_);
    Send(Document(MessageFor({{"quiet", "end"}, {}}) +
                  MessageFor({{"request", "force"}, {{"id", std::to_string(last_id_)}, {"deadline", "-1s"}}})));
}

void RandomClient::SendUnshowable() {
    may_report_ = true;
    Send(Document(MessageFor({{"message"}, {{"id", std::to_string(++last_id_)}, {"title", "\xff\xfe\xfd\xfc"}}})));
}

void RandomClient::Settle() {
    std::this_thread::sleep_until(hostile_ + kBatch);
    Send(Document(MessageFor({{"quiet", "end"}, {}})));
    WaitUntil(std::chrono::seconds(30), [&] { return TakeAnswers(), owed_.empty(); });
    if (!owed_.empty()) throw std::runtime_error("not taken: " + std::to_string(*owed_.begin()));
    std::string elements;
    for (ID id : open_) elements += MessageFor({{"remove", "all", std::to_string(id)}, {}});
    Send(Document(elements));
    std::this_thread::sleep_for(kBatch);
    TakeAnswers();
    open_.clear();
    answerable_.clear();
}

void RandomClient::TakeAnswers() {
    while (auto document = program_.ReceiveFrame(Milliseconds(0))) CheckAnswer(*document);
}

void RandomClient::CheckAnswer(std::string const& document) {
    Answer answer = ReadAnswer(document);
    ++answers_;
    if (answer.name == "ClientUIErrorMessage" && !may_report_) throw std::runtime_error(answer.Text());
    if (answer.name != "ActionTaken") return;
    ID const id = std::stoul(answer.fields["ID"]);
    if (answerable_.erase(id) == 0) throw std::runtime_error("nobody asked for it: " + answer.Text());
    owed_.erase(id);
    open_.erase(id);
}

std::string RandomClient::Figures() const {
    return std::to_string(sent_) + " sent, " + std::to_string(answers_) + " answers";
}

}  // namespace tools
