#include "tests/support/program_test.h"
#include "tools/client_messages.h"

namespace {

// What a broken or malicious client sends: it may cost itself answers, but no accepted request is lost, and the program
// goes on.
class Hostile : public ProgramTest {
  protected:
    std::string NextTaken() { return tools::ReadAnswer(Receive()).fields["ID"]; }

    // Returns once the program handles messages again: what came in one batch with a bad one is lost.
    void Settle() {
        std::optional<std::string> answer;
        while (!answer) {
            ASSERT_TRUE(Program().SendFrame(Overdue(++many_)));
            do answer = Program().ReceiveFrame(std::chrono::seconds(2));
            while (answer && tools::ReadAnswer(*answer).fields["ID"] != std::to_string(many_));
        }
    }

    int many_ = 10000;
};

}  // namespace

TEST_F(Hostile, TwoMebibytesOfMarkupLoseNothing) {
    Play("initialize");
    int id = 0;
    for (auto unit : {"<a>", "<>", "&", "<", "<a b=\"", "&#x", "<![CDATA[", "</a>", "\xff"}) {
        Play("request title=Accepted id=" + std::to_string(++id));
        Program().SendFrame(Repeated(unit, kLargestPayload));
        Settle();
    }
    Play("wait window ActionRequestDialog\nclick form.takeAllActions");
    for (int taken = 1; taken <= id; ++taken) EXPECT_EQ(NextTaken(), std::to_string(taken));
}

// Far more than the pipe holds wait when the window is closed, and the client reads them only then.
TEST_F(Hostile, TheCloseButtonIsHeardWhileAnswersWaitOfWhichNoneIsLost) {
    Play("initialize");
    std::string burst;
    for (int id = 1; id <= many_; ++id) burst += tools::Frame(Overdue(id));
    Program().SendBytes(burst);
    EXPECT_TRUE(tools::WaitUntil(std::chrono::seconds(60), [this] { return Program().WaitingBytes() > 60000; }));
    Play("request id=10001 title=Alive\nwait window ActionRequestDialog\nselect row 1\nclose window");
    Play("wait window ActionRequestDialog gone");
    for (int id = 1; id <= many_; ++id) ASSERT_EQ(NextTaken(), std::to_string(id));
}

TEST_F(Hostile, LongAndStrangeTextsAreShownAndTaken) {
    Start({{"LC_ALL", "C.UTF-8"}});
    Play("initialize locale");
    std::string const strange = "\x01\x02\x08\x1b\x7f \u202eright to left\u202d \u05d0 \ufeff \U0001F600 \u0301 {x} %s";
    for (auto const& text : {strange, std::string(1000000, 'x'), Repeated("a\\n", 1000000), Repeated("é ", 1000000)}) {
        std::string const title = " id=1 title=\"" + text + "\"";
        Play("message text=\"" + text + "\"" + title + "\nwait window MessageDialog\nclick form.dismiss");
        Play("request confirm=\"" + text + "\"" + title);
        Play(R"(
            wait window ActionRequestDialog
            click form.takeAllActions
            wait window ConfirmationDialog
            click form.ok
            expect ActionTaken ID=1
            wait window ActionRequestDialog
        )");
    }
}
