#include <gtest/gtest.h>

#include <string>

#include "foundation/files/file_errors.h"
#include "foundation/text/numerals.h"
#include "foundation/text/ustring_builder.h"
#include "messages/action_request.h"
#include "messages/initialization_info.h"
#include "messages/message_request.h"
#include "messages/quiet_mode_start.h"
#include "messages/remove_request.h"
#include "xml/serialize.h"
#include "xml/simple_xml.h"

namespace {

template <class Record>
Record Read(std::string const& children) {
    auto const document = "<m>" + children + "</m>";
    auto const element = SimpleXML::Parse(UStringRef<UTF8>(std::string_view(document)));
    Record record;
    if constexpr (std::is_same_v<Record, RemoveRequest>)
        XMLLoad(*element, record);
    else
        XMLSerialize(*element, record);
    return record;
}

TEST(ActionRequestTest, EveryFieldIsReadAndTheFirstOfEqualNamesCounts) {
    auto request = Read<ActionRequest>(
        "<ID>18446744073709551615</ID><ID>1</ID><Title> T </Title><ShortDescription>S</ShortDescription>"
        "<Deadline>Thu, 01 Jan 1970 01:00:05 +0100</Deadline><Preview></Preview>"
        "<PreActionMessage>&lt;sure?></PreActionMessage><Cancellable>yes</Cancellable><Restart>1</Restart>"
        "<Shutdown>True</Shutdown><ForceRun></ForceRun><RequestSave>false</RequestSave>"
        "<UseCannedStrings>0</UseCannedStrings>");
    EXPECT_EQ(request.id, 18446744073709551615u);
    EXPECT_EQ(request.title.AsStringView(), " T ");
    EXPECT_EQ(request.short_description.AsStringView(), "S");
    EXPECT_EQ(*request.Deadline(), Instant(5'000'000));
    EXPECT_TRUE(request.preview && request.preview->empty());
    EXPECT_EQ(request.pre_action_message->AsStringView(), "<sure?>");
    EXPECT_TRUE(request.cancellable && request.restart && request.shutdown && request.force_run);
    EXPECT_FALSE(request.request_save || request.use_canned_strings);
}

TEST(ActionRequestTest, MalformedValuesThrow) {
    EXPECT_THROW(Read<ActionRequest>("<ID>-1</ID>"), NotANumeral);
    EXPECT_THROW(Read<ActionRequest>("<ID>18446744073709551616</ID>"), NumeralTooLarge);
    for (auto deadline : {"", "tomorrow", "Thu, 32 Jan 1970 01:00:05 +0100", "Thu, 01 Jan 1970 24:00:00 +0000"})
        EXPECT_ANY_THROW(Read<ActionRequest>("<Deadline>" + std::string(deadline) + "</Deadline>")) << deadline;
}

TEST(RemoveRequestTest, OnlyTheExactTypeNamesCountAndAreWritten) {
    for (auto type : {"Action", "Offer", "Message", "All"}) {
        auto const children = "<RemoveType>" + std::string(type) + "</RemoveType><ID>77</ID>";
        UStringBuilder<UTF8> text;
        XMLWriter writer(text, XMLFormatStyle::Compact);
        XMLSave(writer, Read<RemoveRequest>(children));
        EXPECT_EQ(text.Ref().AsStringView(), children);
    }
    for (auto other : {"", "<RemoveType>action</RemoveType>", "<RemoveType> Action</RemoveType>"})
        EXPECT_EQ(Read<RemoveRequest>(other).remove_type, RemoveType::All) << other;
}

TEST(MessageRequestTest, ATimeoutIsAnOptionalDuration) {
    auto request = Read<MessageRequest>(
        "<IsCompletionMessage>1</IsCompletionMessage><Timeout>PT1M30S</Timeout><Title>T</Title><Message>M</Message>"
        "<ID>3</ID>");
    EXPECT_TRUE(request.is_completion_message);
    EXPECT_EQ(*request.timeout, TimeInterval::Seconds(90));
    EXPECT_EQ(request.message.AsStringView(), "M");
    EXPECT_FALSE(Read<MessageRequest>("<ID>3</ID>").timeout);
    EXPECT_ANY_THROW(Read<MessageRequest>("<Timeout>soon</Timeout>"));
}

TEST(QuietModeStartTest, AnAbsentTimeIsTheBeginningOf1970) {
    auto period = Read<QuietModeStart>("<EndTime>Fri, 02 Jan 1970 00:00:00 +0000</EndTime>");
    EXPECT_EQ(Instant(period.start_time), Instant(0));
    EXPECT_EQ(Instant(period.end_time), Instant(TimeInterval::kDay));
}

std::string File(std::string const& name, std::string const& folder = "", std::string const& content = "") {
    return "<SupportFiles><FileName>" + name + "</FileName><SubFolder>" + folder + "</SubFolder><Content>" + content +
           "</Content></SupportFiles>";
}

TEST(InitializationInfoTest, SettingsAreReadAndFileContentsStayAsTheyAre) {
    auto info = Read<InitializationInfo>(
        "<InitialUISettings><RemindInterval>PT5M</RemindInterval><HistoryMode>4294967295</HistoryMode>"
        "<AllowSnooze>1</AllowSnooze><InitialTabID></InitialTabID></InitialUISettings>" +
        File("a", "", "QQ=="));
    EXPECT_EQ(info.SupportFiles().at(0).Content(), "QQ==");
    EXPECT_EQ(info.Settings().remind_interval, TimeInterval::Minutes(5));
    EXPECT_EQ(info.Settings().history_mode, 4294967295u);
    EXPECT_TRUE(info.Settings().allow_snooze && info.InitialTabID());
    EXPECT_FALSE(info.Settings().use_locale || info.Settings().max_history_age);
    EXPECT_THROW(Read<InitializationInfo>("<InitialUISettings><TrayMode>4294967296</TrayMode></InitialUISettings>"),
                 NumeralTooLarge);
}

TEST(InitializationInfoTest, TranslationsAreFoundByLocaleThenLanguageIgnoringCase) {
    auto info = Read<InitializationInfo>(File("fr.xlat", "", "first") + File("de.xlat", "sub") + File("FR_ca.XLAT") +
                                         File("FR.XLAT", "", "second") + File("_brandFR.xlat") + File("_BRAND.xlat"));
    auto name = [](NullOrConstRef<FileTransfer> found) {
        return found ? std::string(found->Name().AsStringView()) : std::string("none");
    };
    FileName const fr("fr"), fr_CA("fr_CA"), de("de"), none;
    EXPECT_EQ(name(info.GeneralLocalization(fr_CA, fr)), "FR_ca.XLAT");
    EXPECT_EQ(name(info.GeneralLocalization(FileName("fr_BE"), fr)), "fr.xlat");
    EXPECT_EQ(info.GeneralLocalization(fr, none)->Content(), "first");
    EXPECT_EQ(name(info.GeneralLocalization(none, none)), "none");
    EXPECT_EQ(name(info.GeneralLocalization(de, none)), "none");
    EXPECT_EQ(name(info.LocalizedBrandTranslation(fr_CA, fr)), "_brandFR.xlat");
    EXPECT_EQ(name(info.BrandTranslation()), "_BRAND.xlat");
    EXPECT_EQ(name(info.BrandIcon()), "none");
    EXPECT_THROW(info.GeneralLocalization(FileName(std::string(250, 'x')), none), IllegalFileName);
}

}  // namespace
