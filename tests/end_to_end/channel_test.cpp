#include "tests/support/program_test.h"

class Channel : public ProgramTest {};

TEST_F(Channel, FramesMayArriveByteByByteAndCutAnywhere) {
    // A locale that is none makes the toolkit complain, but not into the channel.
    Start({{"LC_ALL", "no_SUCH.locale"}});
    for (char byte : tools::Frame(Document("initialize locale"))) Program().SendBytes({&byte, 1});
    Program().SendFrame("");
    std::string const frames = tools::Frame(Overdue(1)) + tools::Frame(Overdue(2));
    // What waits for the rest of a header, or of a document, keeps nothing else waiting.
    Program().SendBytes(frames.substr(0, 2));
    Play("open\nwait window ActionRequestDialog");
    Program().SendBytes(frames.substr(2, 298));
    Play("click form.snoozeButton\nwait window ActionRequestDialog gone");
    Program().SendBytes(frames.substr(300));
    Play("expect ActionTaken ID=1\nexpect ActionTaken ID=2");
    Program().SendBytes(frames.substr(0, 100));  // and there the client ends
}

TEST_F(Channel, TheLargestFrameIsAcceptedAndOneByteMoreEndsTheProgram) {
    Play("initialize");
    std::string const document = Overdue(1), blanks(largest_payload - document.size(), ' ');
    Program().SendFrame(blanks + document);
    Play("expect ActionTaken ID=1");
    Program().SendFrame(blanks + document + " ");
    Play("expect exit 0");
}

TEST_F(Channel, ABadMessageTakesTheRestOfItsBatchAlong) {
    Play("initialize\nrequest id=1 title=One\nwait window ActionRequestDialog");
    std::string batch;
    for (auto id : {"2", "bad", "3"}) batch += tools::Frame(Document(std::string("request title=One id=") + id));
    Program().SendBytes(batch);
    Play(R"(
        select row 2
        request id=4 title=Overdue force deadline=-1h
        expect ActionTaken ID=4
        click form.takeAllActions
        expect ActionTaken ID=1
        expect ActionTaken ID=2
    )");
}
