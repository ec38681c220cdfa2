#include "tests/support/program_test.h"

class Channel : public ProgramTest {};

TEST_F(Channel, TheLargestFrameIsAcceptedAndOneByteMoreEndsTheProgram) {
    // A locale that is none changes nothing. A colour that is none makes the toolkit complain, but neither into the channel
    // nor into its own connection.
    program_ = "sh";
    Start({{"LC_ALL", "no_SUCH.locale"}}, {"-c", "exec '" PROGRAM_UNDER_TEST "' -xrm '*foreground: none' 2>&-"});
    Play("initialize locale");
    std::string const document = Overdue(1), blanks(kLargestPayload - document.size(), ' ');
    Program().SendFrame(blanks + document);
    Play("expect ActionTaken ID=1");
    Program().SendFrame(blanks + document + " ");
    Play("expect exit 0");
}

TEST_F(Channel, ABadMessageTakesTheRestOfItsBatchAlong) {
    Play(
        "initialize\nmessage id=1 title=Note\nwait window Note\nrequest id=1 title=One\nwait window "
        "ActionRequestDialog");
    std::string batch;
    for (auto id : {"2", "bad", "3"}) batch += tools::Frame(Document(std::string("request title=One id=") + id));
    Program().SendBytes(batch);
    Play("select row 2");
    // What the C locale cannot show changes of a notice only how long it stays.
    Program().SendFrame(Document("message id=1 title=Changed text=é timeout=PT1S\nrequest id=5 title=Five"));
    Play(R"(
        wait window Note gone
        request id=4 title=Overdue force deadline=-1h
        expect ActionTaken ID=4
        click form.takeAllActions
        expect ActionTaken ID=1
        expect ActionTaken ID=2
    )");
}
