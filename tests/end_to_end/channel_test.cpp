#include "tests/support/program_test.h"

namespace {

class Channel : public ProgramTest {};

// The same document with blanks up to that length.
std::string Padded(std::string document, size_t length) {
    document.insert(document.find("<ClientToUI>"), length - document.size(), ' ');
    return document;
}

}  // namespace

TEST_F(Channel, FramesMayArriveByteByByteAndCutAnywhere) {
    // A locale that is none makes the toolkit complain, but not into the channel.
    Start({{"LC_ALL", "no_SUCH.locale"}});
    for (char byte : tools::Frame(Document("initialize locale"))) Program().SendBytes({&byte, 1});
    Program().SendFrame("");
    std::string frame = tools::Frame(Overdue(1)) + tools::Frame(Overdue(2));
    // What waits for the rest of a header, or of a document, keeps nothing else waiting.
    Program().SendBytes(frame.substr(0, 2));
    Play("open\nwait window ActionRequestDialog");
    Program().SendBytes(frame.substr(2, 298));
    Play("click form.snoozeButton\nwait window ActionRequestDialog gone");
    Program().SendBytes(frame.substr(300));
    Play("expect ActionTaken ID=1\nexpect ActionTaken ID=2");
}

TEST_F(Channel, TheLargestFrameIsAcceptedAndOneByteMoreEndsTheProgram) {
    Start();
    Play("initialize");
    Program().SendFrame(Padded(Overdue(1), largest_payload));
    Play("expect ActionTaken ID=1");
    Program().SendFrame(Padded(Overdue(2), largest_payload + 1));
    Play("expect exit 0");
}

TEST_F(Channel, ABadMessageTakesTheRestOfItsBatchAlong) {
    Start();
    Play("initialize\nrequest id=1 title=One\nwait window ActionRequestDialog");
    Program().SendBytes(tools::Frame(Document("request id=2 title=Two")) +
                        tools::Frame(Document("request id=bad title=Bad")) +
                        tools::Frame(Document("request id=3 title=Three")));
    Play(R"(
        select row 2
        request id=4 title=Overdue force deadline=-1h
        expect ActionTaken ID=4
        click form.takeAllActions
        expect ActionTaken ID=1
        expect ActionTaken ID=2
    )");
}
